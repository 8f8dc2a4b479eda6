#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// One record of a CSV text and the line on which it begins, from 1.
struct CsvRow {
    std::size_t Line = 1;
    std::vector<std::string> Cells;
};

struct CsvTable {
    std::vector<CsvRow> Rows;  ///< without empty lines
    std::size_t OpenQuote = 0; ///< the line of a quote that never closes, or 0
};

/// Reads comma, semicolon or tab separated text, whichever the first line with any has
/// most of.
/// A cell in double quotes may hold separators, line breaks and doubled quotes. Lines end with LF or CRLF; a
/// byte order mark is passed over. Blanks round an unquoted cell are dropped.
CsvTable ParseCsv(std::string_view text);

/// Is this well-formed UTF-8?
bool IsUtf8(std::string_view text);

} // namespace cli
