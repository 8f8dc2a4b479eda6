#pragma once

#include "model/DataTable.h"

#include <QPoint>

namespace designer {

/// Where Ctrl with an arrow goes from a cell, of which x is the column: to the last of the filled cells that
/// follow each other, or over empty ones to the next filled one, or to the end of the table. `by` is one step
/// in one of four directions.
QPoint EdgeOfData(const DataTable& table, QPoint from, QPoint by);

} // namespace designer
