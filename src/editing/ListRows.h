#pragma once

#include "editing/DialogView.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace millichart {

/// The rows of an editable list, and what its user does to them: a toolkit's list shows these, and keeps none
/// of its own. A row's cells stay together, so that a record's parallel lists do.
class ListRows {
public:
    /// The columns must outlive the list.
    void SetColumns(std::span<const ListColumn> columns) { m_columns = columns; }

    std::span<const ListColumn> Columns() const { return m_columns; }

    /// Rows of other lengths are cut or filled up.
    void SetRows(std::vector<ListRow> rows);

    const std::vector<ListRow>& Rows() const { return m_rows; }

    std::size_t Count() const { return m_rows.size(); }

    const std::string& Cell(std::size_t row, std::size_t column) const { return m_rows[row][column]; }

    /// False for a text that is none for the column, such as a choice that it has not: nothing changes.
    bool SetCell(std::size_t row, std::size_t column, std::string_view text);

    /// Adds one before row `at`, or at the end.
    void Add(std::size_t at);
    void Remove(std::size_t first, std::size_t count);
    /// Moves a row one up (−1) or down (1), and tells where it is now.
    std::size_t Move(std::size_t row, int step);

    /// Rows as a spreadsheet takes them: cells apart by tabs, rows by line ends.
    std::string Copied(std::size_t first, std::size_t count) const;
    /// Writes such a text over the cells from (`row`, `column`) on; rows that are missing are added. Cells
    /// that a column does not take stay.
    void Paste(std::size_t row, std::size_t column, std::string_view text);

private:
    ListRow NewRow(std::size_t index) const;

    std::span<const ListColumn> m_columns;
    std::vector<ListRow> m_rows;
};

} // namespace millichart
