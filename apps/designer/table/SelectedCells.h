#pragma once

#include "table/TableChange.h"

#include <QItemSelection>
#include <QMetaType>
#include <vector>

namespace designer {

/// What a status bar says of the selected cells.
struct SelectionFacts {
    std::size_t Filled = 0;  ///< cells that are not empty
    std::size_t Numbers = 0; ///< those of them that count as numbers
    double Sum = 0.0;
    double Mean = 0.0; ///< 0 without numbers
};

/// The ranges of a selection as far as the table reaches, those outside of it left out.
std::vector<CellRange> RangesIn(const QItemSelection& selection, const DataTable& table);

/// The smallest range that holds all of them; a default one for none.
CellRange BoundsOf(const std::vector<CellRange>& ranges);

/// The rows and columns of the ranges, ascending, with those that touch joined.
std::vector<Span> RowsOf(const std::vector<CellRange>& ranges);
std::vector<Span> ColumnsOf(const std::vector<CellRange>& ranges);

SelectionFacts SumUp(const DataTable& table, const std::vector<CellRange>& ranges);

} // namespace designer

Q_DECLARE_METATYPE(designer::SelectionFacts)
