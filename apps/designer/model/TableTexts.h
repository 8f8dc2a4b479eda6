#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Cells as spreadsheets exchange them: tab-separated, in double quotes where they hold tabs, quotes or line
/// feeds.
namespace designer {

/// Lines may end in LF, CRLF or CR; one that ends the text begins no row. A quote that nothing closes is a
/// character.
std::vector<std::vector<std::string>> CellsOf(std::string_view texts);

std::string QuotedCell(const std::string& text);

} // namespace designer
