#include "documents/tables/Csv.h"

#include "documents/tables/Encoding.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <utility>

namespace millichart::documents {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kSeparators = ",;\t";
constexpr std::string_view kSeparatorWord = "sep=";

/// Behind the quote that closes the cell whose text begins at `at`. Doubled ones belong to it.
std::size_t BehindQuoted(std::string_view text, std::size_t at) {
    std::size_t quote = text.find('"', at);
    while (quote != std::string_view::npos && text.substr(quote + 1, 1) == "\"") {
        quote = text.find('"', quote + 2);
    }
    return quote == std::string_view::npos ? text.size() : quote + 1;
}

using Counts = std::array<std::size_t, kSeparators.size()>;

/// Adds the separators outside quotes from `at` on, up to and with the line break after which `isOver` says
/// that they are enough. Gives the place behind.
template <class Over> std::size_t Count(std::string_view text, std::size_t at, Counts& counts, Over isOver) {
    bool beginsCell = true;
    for (; at < text.size(); ++at) {
        if (text[at] == '"' && beginsCell) {
            at = BehindQuoted(text, at + 1) - 1;
            beginsCell = false;
            continue;
        }
        if (text[at] == '\n' && isOver()) {
            return at + 1;
        }
        const std::size_t found = kSeparators.find(text[at]);
        if (found != std::string_view::npos) {
            ++counts[found];
        }
        beginsCell = found != std::string_view::npos || text[at] == '\n' || (beginsCell && text[at] == ' ');
    }
    return at;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Do all commas look like those of decimals?
bool AreCommasDecimal(std::string_view line) {
    for (std::size_t at = line.find(','); at != std::string_view::npos; at = line.find(',', at + 1)) {
        if (at == 0 || at + 1 == line.size() || !IsDigit(line[at - 1]) || !IsDigit(line[at + 1])) {
            return false;
        }
    }
    return true;
}

/// The separator of which the first line has most; where several have as many, with the lines below. A title
/// may have a comma where the table has semicolons: then the lines below have none.
char SeparatorOf(std::string_view text) {
    constexpr int kLinesBelow = 20;
    Counts counts{};
    const auto most = [](const Counts& of) { return std::max_element(of.begin(), of.end()) - of.begin(); };
    const auto isDecided = [&] {
        return std::count(counts.begin(), counts.end(), counts[static_cast<std::size_t>(most(counts))]) == 1;
    };
    const std::size_t below = Count(text, 0, counts, isDecided);
    const bool hasOthers = std::accumulate(counts.begin() + 1, counts.end(), std::size_t{0}) != 0;
    if (hasOthers && AreCommasDecimal(text.substr(0, text.find('\n')))) {
        counts.front() = 0;
    }
    Counts ofBelow{};
    Count(text, below, ofBelow, [lines = 0]() mutable { return ++lines == kLinesBelow; });
    const bool isBelow = ofBelow[static_cast<std::size_t>(most(counts))] != 0;
    const bool hasOther = ofBelow[static_cast<std::size_t>(most(ofBelow))] != 0;
    return kSeparators[static_cast<std::size_t>(most(!isBelow && hasOther ? ofBelow : counts))];
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

} // namespace

CsvReader::CsvReader(std::string_view bytes) : m_text(bytes) {
    if (!IsUtf8(bytes) || IsUtf16(bytes)) {
        std::optional<std::string> decoded = DecodedText(bytes);
        m_isText = decoded.has_value();
        m_decoded = std::move(decoded).value_or("");
        m_text = m_decoded;
    }
    m_passed = m_text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    m_text.remove_prefix(m_passed);
    const std::string_view line = m_text.substr(0, m_text.find('\n'));
    if (line.starts_with(kSeparatorWord) && Trimmed(line.substr(kSeparatorWord.size() + 1)).empty()) {
        m_separator = line[kSeparatorWord.size()];
        m_begin = std::min(line.size() + 1, m_text.size());
        m_firstLine = 2;
    } else {
        m_separator = SeparatorOf(m_text);
    }
    CsvReader::Rewind();
}

CsvReader::CsvReader(std::string_view rows, char separator, std::size_t line)
    : m_text(rows), m_separator(separator), m_firstLine(line), m_line(line) {}

std::string CsvReader::Fault() const {
    if (!m_isText) {
        return "found another encoding, expected UTF-8, UTF-16 or GB18030; a spreadsheet program calls the "
               "first \"CSV UTF-8\"";
    }
    return m_openQuote == 0 ? "" : "found a quote that never closes, expected a closing quote";
}

bool CsvReader::Rewind() {
    m_at = m_begin;
    m_line = m_firstLine;
    m_openQuote = 0;
    return true;
}

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

} // namespace millichart::documents
