#include "model/TableCells.h"

#include <algorithm>

namespace host {
namespace {

bool IsEmpty(const std::vector<std::string>& row) {
    return std::all_of(row.begin(), row.end(), [](const std::string& cell) { return cell.empty(); });
}

std::size_t CountUntilEmpty(const TableCells& cells) {
    std::size_t count = cells.size();
    while (count > 1 && IsEmpty(cells[count - 1])) {
        --count;
    }
    return count - 1;
}

} // namespace

TableCells CellsOf(const designer::DataTable& table) {
    const std::size_t columns = table.ColumnCount() + 1;
    TableCells cells(table.RowCount() + 1, std::vector<std::string>(columns));
    for (std::size_t column = 0; column + 1 < columns; ++column) {
        cells[0][column] = table.Heading(column);
        for (std::size_t row = 0; row < table.RowCount(); ++row) {
            cells[row + 1][column] = table.Text(row, column);
        }
    }
    return cells;
}

/// Only what is another is set: a number that is written otherwise than it was given keeps its digits.
void TakeCells(designer::DataTable& table, const TableCells& cells) {
    if (cells.empty()) {
        return;
    }
    const std::size_t rows = CountUntilEmpty(cells);
    if (rows < table.RowCount()) {
        table.RemoveRows(rows, table.RowCount() - rows);
    }
    for (std::size_t column = 0; column < cells[0].size(); ++column) {
        for (std::size_t row = 0; row < rows; ++row) {
            if (cells[row + 1][column] != table.Text(row, column)) {
                table.SetText(row, column, cells[row + 1][column]);
            }
        }
        if (cells[0][column] != table.Heading(column)) {
            table.SetHeading(column, cells[0][column]);
        }
    }
}

} // namespace host
