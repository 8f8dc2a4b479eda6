#pragma once

#include "model/TableCells.h"

#include <vector>
#include <windows.h>

namespace host {

/// Shows a chart's tables, one at a time, in a list with editable cells. True after OK: they have what the
/// user made of them.
bool EditCells(HWND owner, std::vector<TableCells>& tables);

} // namespace host
