#pragma once

#include "documents/tables/RowReader.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace millichart::documents {

/// Reads comma, semicolon or tab separated text row by row, separated by whichever the first line with any
/// has most of; the lines below decide between equals. A cell in double quotes may hold separators, line
/// breaks and doubled quotes. Lines end with LF or CRLF; a byte order mark is passed over, and so are rows
/// whose cells are all empty. Blanks round an unquoted cell are dropped.
class CsvReader {
public:
    /// The text must outlive the reader.
    explicit CsvReader(std::string_view text);

    /// The next row in the place of the old one; false when there is none.
    bool Next(TableRow& row);

    /// The line of a quote that never closed, or 0.
    std::size_t OpenQuote() const { return m_openQuote; }

private:
    bool AtEnd() const { return m_at >= m_text.size(); }

    void ReadRow(TableRow& row);
    void ReadCell(std::string& cell);
    void ReadQuoted(std::string& cell);

    std::string_view m_text;
    char m_separator;
    std::size_t m_at = 0;
    std::size_t m_line = 1;
    std::size_t m_openQuote = 0;
};

/// How many cells a row has up to the last one that is not empty.
std::size_t FilledCells(const TableRow& row);

/// Is this well-formed UTF-8?
bool IsUtf8(std::string_view text);

} // namespace millichart::documents
