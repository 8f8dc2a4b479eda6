#pragma once

#include "model/DataTable.h"

#include <optional>
#include <string>
#include <string_view>

/// How cells are written and read.
namespace designer {

/// The shortest text that reads back the same; empty for a gap.
std::string NumberCell(double number);
std::optional<double> ReadNumberCell(std::string_view text);

/// "1990", "2024-03-15" or "2024-03-15 14:30:00"; empty for DataTable::kNoTime.
std::string TimeCell(std::int64_t time, RowHeads heads);
/// Nothing for what is no time of that sort, or none that a chart can hold.
std::optional<std::int64_t> ReadTimeCell(std::string_view text, RowHeads heads);

/// Without the blanks round it.
std::string_view Trimmed(std::string_view text);

/// Narrow texts as documents have them, and back; of ASCII without a detour.
std::string ToUtf8(const std::string& narrow);
std::string ToNarrow(const std::string& utf8);

} // namespace designer
