#pragma once

#include "documents/ChartContent.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace designer {

/// What stands before each row of numbers.
enum class RowHeads {
    Names,  ///< of slices, groups, or labels of a time axis
    Times,  ///< whole numbers
    Days,   ///< dates, counted since 1970
    Seconds ///< moments, counted since 1970
};

/// A rectangle of cells. Column 0 has the row heads; its heading is not a cell of any row.
struct CellRange {
    std::size_t Row = 0;
    std::size_t Column = 0;
    std::size_t Rows = 1;
    std::size_t Columns = 1;
};

/// The data of a chart as a person sees them in a spreadsheet: a head and numbers a row, a heading a column.
/// All texts are UTF-8. A cell keeps what was typed into it, whether or not it is a number; what is none
/// counts as a gap. Rows and columns beyond the end are empty, and typing there makes them.
///
///            | 产量   | 出口        <- Heading(1), Heading(2)
///     一月   |  12.5  |   3
///     二月   |  13    | 缺          <- Text(1, 2), IsOdd(1, 2)
class DataTable {
public:
    explicit DataTable(RowHeads heads = RowHeads::Names) : m_heads(heads) {}

    RowHeads Heads() const { return m_heads; }

    std::size_t RowCount() const { return m_rowCount; }

    /// With that of the heads.
    std::size_t ColumnCount() const { return m_columns.size() + 1; }

    /// How the chart may be drawn: it takes so many columns of numbers, and keeps the others for another
    /// kind.
    std::size_t UsedColumns() const { return m_usedColumns; }

    void SetUsedColumns(std::size_t count) { m_usedColumns = count; }

    std::string Heading(std::size_t column) const;
    void SetHeading(std::size_t column, std::string text);

    std::string Text(std::size_t row, std::size_t column) const;
    /// Is it a text where a number, or a time, should stand? An empty cell is not.
    bool IsOdd(std::size_t row, std::size_t column) const;
    /// The first odd cell, in reading order, if any, is told by its row and column.
    std::size_t OddCount() const;

    /// NaN for a gap.
    double Number(std::size_t row, std::size_t column) const;
    /// In the unit of the heads; rows of names count from 0. False for a head that is no time.
    bool Time(std::size_t row, std::int64_t& time) const;

    void SetText(std::size_t row, std::size_t column, std::string_view text);

    /// Numbers are read as people write them: "1,250.5", "45%", "¥ 12".
    /// The table grows as the texts need; `texts` are tab-separated lines, as spreadsheets copy them, with
    /// quoted cells where these hold tabs, quotes or line feeds. A single cell fills the whole range. Gives
    /// the range that was filled.
    CellRange Paste(const CellRange& at, std::string_view texts);
    std::string Copy(const CellRange& range) const;
    void Clear(const CellRange& range);

    void InsertRows(std::size_t before, std::size_t count);
    void RemoveRows(std::size_t first, std::size_t count);
    /// `count` rows from `first` come to stand before the row that is `before` now.
    void MoveRows(std::size_t first, std::size_t count, std::size_t before);
    /// Column 0 can neither be removed nor moved, and nothing is inserted before it.
    void InsertColumns(std::size_t before, std::size_t count);
    void RemoveColumns(std::size_t first, std::size_t count);
    void MoveColumns(std::size_t first, std::size_t count, std::size_t before);
    /// By numbers where the column has them, by texts else; stable; gaps and odd cells last either way.
    void Sort(std::size_t column, bool isAscending);

    friend bool operator==(const DataTable&, const DataTable&);

private:
    struct Column {
        std::string Heading;
        std::vector<double> Numbers;              ///< one a row; NaN for a gap
        std::map<std::size_t, std::string> Texts; ///< of cells that are not shown as their number is written
    };

    RowHeads m_heads;
    std::size_t m_rowCount = 0;
    std::size_t m_usedColumns = static_cast<std::size_t>(-1);
    std::string m_headHeading;
    std::vector<std::string> m_names;              ///< of rows with names
    std::vector<std::int64_t> m_times;             ///< of other rows
    std::map<std::size_t, std::string> m_notTimes; ///< heads that are no times
    std::vector<Column> m_columns;
};

/// The tables of a chart's data: one, or two for a composite chart, in the order in which it is drawn.
std::vector<DataTable> TablesOf(const millichart::ChartContent& content, std::int32_t timeUnit);

/// Puts the tables' data, names and headings into the content, and leaves everything else.
void TakeTables(millichart::ChartContent& content, const std::vector<DataTable>& tables);

} // namespace designer
