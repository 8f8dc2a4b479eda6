#include "documents/tables/Csv.h"

#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace millichart::documents {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kSeparators = ",;\t";

/// Behind the quote that closes the cell whose text begins at `at`. Doubled ones belong to it.
std::size_t BehindQuoted(std::string_view text, std::size_t at) {
    std::size_t quote = text.find('"', at);
    while (quote != std::string_view::npos && text.substr(quote + 1, 1) == "\"") {
        quote = text.find('"', quote + 2);
    }
    return quote == std::string_view::npos ? text.size() : quote + 1;
}

/// The separator of which the first line has most; where several have as many, with the lines below.
char SeparatorOf(std::string_view text) {
    std::array<std::size_t, kSeparators.size()> counts{};
    const auto most = [&counts] { return std::max_element(counts.begin(), counts.end()); };
    bool beginsCell = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"' && beginsCell) {
            i = BehindQuoted(text, i + 1) - 1;
            beginsCell = false;
            continue;
        }
        if (text[i] == '\n' && std::count(counts.begin(), counts.end(), *most()) == 1) {
            break;
        }
        const std::size_t found = kSeparators.find(text[i]);
        if (found != std::string_view::npos) {
            ++counts[found];
        }
        beginsCell = found != std::string_view::npos || text[i] == '\n' || (beginsCell && text[i] == ' ');
    }
    return kSeparators[static_cast<std::size_t>(most() - counts.begin())];
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

constexpr std::uint64_t kBeyondAscii = 0x8080808080808080U;

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80U;
}

/// The first byte from `at` on that is no ASCII; looked for eight at a time.
const char* EndOfAscii(const char* at, const char* end) {
    for (std::uint64_t word = 0; end - at >= static_cast<std::ptrdiff_t>(sizeof word); at += sizeof word) {
        std::memcpy(&word, at, sizeof word);
        if ((word & kBeyondAscii) != 0) {
            break;
        }
    }
    return std::find_if_not(at, end, IsAscii);
}

} // namespace

CsvReader::CsvReader(std::string_view text)
    : m_text(text.substr(text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0)),
      m_separator(SeparatorOf(m_text)) {}

bool CsvReader::Next(TableRow& row) {
    while (!AtEnd()) {
        ReadRow(row);
        if (FilledCells(row) != 0) {
            return true;
        }
    }
    return false;
}

/// Passes the line break too. Cells of the old row keep their memory.
void CsvReader::ReadRow(TableRow& row) {
    row.Line = m_line;
    std::size_t cells = 0;
    for (bool hasMore = true; hasMore; ++cells) {
        if (cells == row.Cells.size()) {
            row.Cells.emplace_back();
        }
        ReadCell(row.Cells[cells]);
        hasMore = !AtEnd() && m_text[m_at] == m_separator;
        m_at += hasMore ? 1 : 0;
    }
    row.Cells.resize(cells);
    if (!AtEnd()) {
        ++m_at;
        ++m_line;
    }
}

/// What stands behind a closing quote belongs to the cell as it is.
void CsvReader::ReadCell(std::string& cell) {
    cell.clear();
    const std::size_t begin = std::min(m_text.find_first_not_of(' ', m_at), m_text.size());
    if (begin < m_text.size() && m_text[begin] == '"') {
        m_at = begin + 1;
        ReadQuoted(cell);
    }
    std::size_t end = m_at;
    while (end < m_text.size() && m_text[end] != m_separator && m_text[end] != '\n') {
        ++end;
    }
    cell += Trimmed(m_text.substr(m_at, end - m_at));
    m_at = end;
}

void CsvReader::ReadQuoted(std::string& cell) {
    const std::size_t line = m_line;
    for (; !AtEnd(); ++m_at) {
        const char c = m_text[m_at];
        if (c == '"' && m_text.substr(m_at + 1, 1) != "\"") {
            ++m_at;
            return;
        }
        m_at += c == '"' ? 1 : 0;
        m_line += c == '\n' ? 1 : 0;
        cell += c;
    }
    m_openQuote = line;
}

std::size_t FilledCells(const TableRow& row) {
    const auto last = std::find_if(row.Cells.rbegin(), row.Cells.rend(),
                                   [](const std::string& cell) { return !cell.empty(); });
    return static_cast<std::size_t>(row.Cells.rend() - last);
}

/// Long texts are mostly ASCII, so only the runs between are looked at closely.
bool IsUtf8(std::string_view text) {
    const char* const textEnd = text.data() + text.size();
    for (const char* at = text.data(); (at = EndOfAscii(at, textEnd)) != textEnd;) {
        const char* const end = std::find_if(at, textEnd, IsAscii);
        const std::string_view run(at, static_cast<std::size_t>(end - at));
        if (penlode::CStringUtil::WideToUtf8(penlode::CStringUtil::Utf8ToWideString(run)) != run) {
            return false;
        }
        at = end;
    }
    return true;
}

} // namespace millichart::documents
