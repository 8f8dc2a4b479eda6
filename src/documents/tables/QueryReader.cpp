#include "documents/tables/QueryReader.h"

#include "documents/tables/QuerySource.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace millichart {
namespace {

QueryWatchMaker g_watchMaker;

} // namespace

void WatchQueries(QueryWatchMaker maker) {
    g_watchMaker = std::move(maker);
}

namespace documents {
namespace {

using penlode::CStringUtil;

/// Of all cells, as of a file.
constexpr std::size_t kMaxBytes = std::size_t{1} << 30U;

bool IsAscii(const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80U; });
}

/// A data base may hold bytes that are no text.
void MakeUtf8(std::string& text) {
    if (!IsAscii(text)) {
        text = CStringUtil::WideToUtf8(CStringUtil::Utf8ToWideString(text));
    }
}

} // namespace

std::unique_ptr<QueryWatch> NewQueryWatch(const std::string& name) {
    return g_watchMaker ? g_watchMaker(name) : nullptr;
}

WatchedQuery::WatchedQuery(std::unique_ptr<QueryWatch> watch, std::function<void()> cancel)
    : m_watch(std::move(watch)), m_cancel(std::move(cancel)) {
    try {
        m_thread = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        // A query that is not watched is better than none.
    }
}

WatchedQuery::~WatchedQuery() {
    Rest();
}

void WatchedQuery::Rest() {
    {
        const std::lock_guard lock(m_mutex);
        m_rests = true;
    }
    m_change.notify_one();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void WatchedQuery::Run() {
    constexpr std::chrono::milliseconds kPause{50};
    const auto begin = std::chrono::steady_clock::now();
    std::unique_lock lock(m_mutex);
    while (!m_change.wait_for(lock, kPause, [this] { return m_rests; })) {
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
        if (m_isStopped || !m_watch->MayGoOn(m_rows, seconds.count())) {
            m_isStopped = true;
            m_cancel();
        }
    }
}

QueryReader::QueryReader(const TableInput& input)
    : m_name(input.Input.Name), m_source(input.Source), m_query(input.Options.Query) {}

bool QueryReader::Next(TableRow& row) {
    if (m_isOver) {
        return false;
    }
    if (m_line == 0) {
        m_isOver = !Open(m_names);
        row.Cells = m_names;
    } else {
        row.Cells.resize(m_names.size());
        m_isOver = !Fetch(row.Cells);
    }
    row.Line = ++m_line;
    m_isOver = m_isOver || !IsSound(row);
    if (m_isOver) {
        Rest();
    }
    return !m_isOver;
}

bool QueryReader::IsSound(TableRow& row) {
    for (std::size_t column = 0; column < row.Cells.size(); ++column) {
        std::string& cell = row.Cells[column];
        m_bytes += cell.size() + 1;
        if (cell.size() > kMaxCell) {
            return Fail("the column \"" + m_names[column] + "\" has a text of more than 1 MB");
        }
        MakeUtf8(cell);
    }
    if (m_watched && m_line > 1) {
        m_watched->CountRow();
    }
    const bool isStopped = m_watched && m_watched->IsStopped();
    return (m_bytes <= kMaxBytes && !isStopped) || Fail("it is larger than 1 GB");
}

bool QueryReader::Fail(std::string reason) {
    const bool isStopped = m_watched && m_watched->IsStopped();
    std::replace_if(
        reason.begin(), reason.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    m_fault = isStopped ? "stopped" : "cannot be read: " + WithoutPasswords(std::move(reason), m_source);
    return false;
}

void QueryReader::Watch(std::function<void()> cancel) {
    std::unique_ptr<QueryWatch> watch = NewQueryWatch(m_name);
    if (watch != nullptr) {
        m_watched.emplace(std::move(watch), std::move(cancel));
    }
}

void QueryReader::Rest() {
    if (m_watched) {
        m_watched->Rest();
    }
}

} // namespace documents
} // namespace millichart
