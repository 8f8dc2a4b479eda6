#pragma once

#include "model/DataTable.h"

#include <string>
#include <vector>

/// A chart's data as a plain list of rows of texts, for a list with editable cells: the headings first.
namespace host {

/// All rows are equally long.
using TableCells = std::vector<std::vector<std::string>>;

/// With an empty column beyond the last, which a user may fill.
TableCells CellsOf(const designer::DataTable& table);

/// Puts cells that were changed into the table that they were taken from. Rows that are missing at the end go
/// from it; empty ones there count as missing.
void TakeCells(designer::DataTable& table, const TableCells& cells);

} // namespace host
