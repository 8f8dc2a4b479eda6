#include "Csv.h"

#include "penlode/StringUtil.h"

#include <algorithm>
#include <array>

namespace cli {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::array<char, 3> kSeparators{'\t', ';', ','};

char SeparatorOf(std::string_view text) {
    std::array<std::size_t, kSeparators.size()> counts{};
    bool quoted = false;
    for (const char c : text) {
        quoted = quoted != (c == '"');
        if (!quoted && c == '\n' && *std::max_element(counts.begin(), counts.end()) > 0) {
            break;
        }
        const auto found = std::find(kSeparators.begin(), kSeparators.end(), c);
        if (!quoted && found != kSeparators.end()) {
            ++counts[static_cast<std::size_t>(found - kSeparators.begin())];
        }
    }
    return kSeparators[static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) -
                                                counts.begin())];
}

std::string Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    return first == std::string_view::npos
               ? std::string()
               : std::string(text.substr(first, text.find_last_not_of(" \t\r") - first + 1));
}

class CsvReader {
public:
    explicit CsvReader(std::string_view text) : m_text(text), m_separator(SeparatorOf(text)) {}

    CsvTable Read() {
        while (!AtEnd()) {
            CsvRow row = ReadRow();
            if (row.Cells.size() > 1 || !row.Cells.front().empty()) {
                m_table.Rows.push_back(std::move(row));
            }
        }
        return std::move(m_table);
    }

private:
    bool AtEnd() const { return m_at >= m_text.size(); }

    /// Passes the line break too.
    CsvRow ReadRow() {
        CsvRow row{m_line, {ReadCell()}};
        while (!AtEnd() && m_text[m_at] == m_separator) {
            ++m_at;
            row.Cells.push_back(ReadCell());
        }
        if (!AtEnd()) {
            ++m_at;
            ++m_line;
        }
        return row;
    }

    /// What stands behind a closing quote belongs to the cell as it is.
    std::string ReadCell() {
        const std::size_t begin = std::min(m_text.find_first_not_of(' ', m_at), m_text.size());
        std::string quoted;
        if (begin < m_text.size() && m_text[begin] == '"') {
            m_at = begin + 1;
            quoted = ReadQuoted();
        }
        const std::array<char, 2> ends{m_separator, '\n'};
        const std::size_t end = std::min(m_text.find_first_of(ends.data(), m_at, ends.size()), m_text.size());
        const std::string rest = Trimmed(m_text.substr(m_at, end - m_at));
        m_at = end;
        return quoted + rest;
    }

    std::string ReadQuoted() {
        const std::size_t line = m_line;
        std::string text;
        for (; !AtEnd(); ++m_at) {
            const char c = m_text[m_at];
            if (c == '"' && m_text.substr(m_at + 1, 1) != "\"") {
                ++m_at;
                return text;
            }
            m_at += c == '"' ? 1 : 0;
            m_line += c == '\n' ? 1 : 0;
            text += c;
        }
        m_table.OpenQuote = line;
        return text;
    }

    std::string_view m_text;
    char m_separator;
    std::size_t m_at = 0;
    std::size_t m_line = 1;
    CsvTable m_table;
};

} // namespace

CsvTable ParseCsv(std::string_view text) {
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    return CsvReader(text).Read();
}

bool IsUtf8(std::string_view text) {
    return penlode::CStringUtil::WideToUtf8(penlode::CStringUtil::Utf8ToWideString(text)) == text;
}

} // namespace cli
