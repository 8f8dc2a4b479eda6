#include "table/EdgeOfData.h"

#include <algorithm>
#include <cmath>

namespace designer {
namespace {

/// Without writing a number as a text, of which there may be a million.
bool IsFilled(const DataTable& table, QPoint at) {
    const auto row = static_cast<std::size_t>(at.y());
    const auto column = static_cast<std::size_t>(at.x());
    return column == 0 ? !table.Text(row, 0).empty()
                       : !std::isnan(table.Number(row, column)) || table.IsOdd(row, column);
}

} // namespace

QPoint EdgeOfData(const DataTable& table, QPoint from, QPoint by) {
    const int right = std::max(static_cast<int>(table.ColumnCount()) - 1, from.x());
    const int bottom = std::max(static_cast<int>(table.RowCount()) - 1, from.y());
    const auto isInside = [&](QPoint at) {
        return at.x() >= 0 && at.y() >= 0 && at.x() <= right && at.y() <= bottom;
    };
    QPoint at = from + by;
    if (!isInside(at)) {
        return from;
    }
    const bool isLeavingBlock = IsFilled(table, from) && IsFilled(table, at);
    while (isInside(at + by) && (isLeavingBlock ? IsFilled(table, at + by) : !IsFilled(table, at))) {
        at += by;
    }
    return at;
}

} // namespace designer
