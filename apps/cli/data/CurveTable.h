#pragma once

#include "data/CurveData.h"
#include "data/DataTable.h"

namespace cli {

/// Reads a table with a column of times or labels and a column of values a curve, an empty cell being a gap.
/// The first row is a heading with the curves' names unless its first cell is a whole number. If the first
/// cells below it are no whole numbers, they are labels, and the times count the rows from 0.
void ReadCurveTable(DataTable& table, CurveData& data);

} // namespace cli
