#include "table/SelectedCells.h"

#include <algorithm>
#include <cmath>

namespace designer {
namespace {

std::vector<Span> Joined(std::vector<Span> spans) {
    std::sort(spans.begin(), spans.end(), [](const Span& a, const Span& b) { return a.First < b.First; });
    std::vector<Span> joined;
    for (const Span& span : spans) {
        if (!joined.empty() && span.First <= joined.back().End()) {
            joined.back().Count = std::max(joined.back().End(), span.End()) - joined.back().First;
        } else {
            joined.push_back(span);
        }
    }
    return joined;
}

void Count(SelectionFacts& facts, const DataTable& table, std::size_t row, std::size_t column) {
    if (column == 0) {
        facts.Filled += table.Text(row, 0).empty() ? 0U : 1U;
        return;
    }
    const double number = table.Number(row, column);
    if (!std::isnan(number)) {
        ++facts.Filled;
        ++facts.Numbers;
        facts.Sum += number;
    } else if (table.IsOdd(row, column)) {
        ++facts.Filled;
    }
}

} // namespace

std::vector<CellRange> RangesIn(const QItemSelection& selection, const DataTable& table) {
    std::vector<CellRange> ranges;
    for (const QItemSelectionRange& range : selection) {
        const auto row = static_cast<std::size_t>(range.top());
        const auto column = static_cast<std::size_t>(range.left());
        if (row < table.RowCount() && column < table.ColumnCount()) {
            ranges.push_back(
                {row, column, std::min(static_cast<std::size_t>(range.height()), table.RowCount() - row),
                 std::min(static_cast<std::size_t>(range.width()), table.ColumnCount() - column)});
        }
    }
    return ranges;
}

CellRange BoundsOf(const std::vector<CellRange>& ranges) {
    if (ranges.empty()) {
        return {};
    }
    CellRange bounds = ranges.front();
    for (const CellRange& range : ranges) {
        const std::size_t bottom = std::max(bounds.Row + bounds.Rows, range.Row + range.Rows);
        const std::size_t right = std::max(bounds.Column + bounds.Columns, range.Column + range.Columns);
        bounds.Row = std::min(bounds.Row, range.Row);
        bounds.Column = std::min(bounds.Column, range.Column);
        bounds.Rows = bottom - bounds.Row;
        bounds.Columns = right - bounds.Column;
    }
    return bounds;
}

std::vector<Span> RowsOf(const std::vector<CellRange>& ranges) {
    std::vector<Span> spans;
    for (const CellRange& range : ranges) {
        spans.push_back({range.Row, range.Rows});
    }
    return Joined(std::move(spans));
}

std::vector<Span> ColumnsOf(const std::vector<CellRange>& ranges) {
    std::vector<Span> spans;
    for (const CellRange& range : ranges) {
        spans.push_back({range.Column, range.Columns});
    }
    return Joined(std::move(spans));
}

SelectionFacts SumUp(const DataTable& table, const std::vector<CellRange>& ranges) {
    SelectionFacts facts;
    for (const CellRange& range : ranges) {
        for (std::size_t column = range.Column; column < range.Column + range.Columns; ++column) {
            for (std::size_t row = range.Row; row < range.Row + range.Rows; ++row) {
                Count(facts, table, row, column);
            }
        }
    }
    facts.Mean = facts.Numbers > 0 ? facts.Sum / static_cast<double>(facts.Numbers) : 0.0;
    return facts;
}

} // namespace designer
