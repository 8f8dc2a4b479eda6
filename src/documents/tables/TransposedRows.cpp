#include "documents/tables/TransposedRows.h"

#include "documents/tables/TableShape.h"

#include <algorithm>
#include <utility>

namespace millichart::documents {

TransposedRows::TransposedRows(std::unique_ptr<RowReader> table) : m_table(std::move(table)) {
    constexpr std::size_t kMostCells = std::size_t{1} << 24U;
    for (TableRow row; m_table->Next(row);) {
        m_rows.push_back(row);
    }
    if (const std::size_t titles = TitleRows(m_rows, true, true); titles != 0) {
        m_title = FirstText(m_rows.front());
        m_rows.erase(m_rows.begin(), m_rows.begin() + static_cast<std::ptrdiff_t>(titles));
    }
    for (const TableRow& row : m_rows) {
        m_lines.push_back(static_cast<std::uint32_t>(row.Line));
        m_columns = std::max(m_columns, FilledCells(row));
    }
    if (m_columns != 0 && m_rows.size() > kMostCells / m_columns) {
        m_isTooLarge = true;
        m_columns = 0;
    }
}

bool TransposedRows::Next(TableRow& row) {
    for (; m_next < m_columns; ++m_next) {
        row.Line = m_next + 1;
        row.Cells.assign(m_rows.size(), "");
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (m_next < m_rows[i].Cells.size()) {
                row.Cells[i] = m_rows[i].Cells[m_next];
            }
        }
        if (FilledCells(row) != 0) {
            ++m_next;
            return true;
        }
    }
    return false;
}

bool TransposedRows::Rewind() {
    m_next = 0;
    return true;
}

} // namespace millichart::documents
