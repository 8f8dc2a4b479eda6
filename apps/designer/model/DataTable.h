#pragma once

#include "documents/ChartContent.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
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

/// What came first stands where, after rows or columns were inserted, removed or moved.
class Origins {
public:
    static constexpr std::size_t kNew = std::numeric_limits<std::size_t>::max();

    /// How many there were when counting began.
    std::size_t Former() const { return m_former; }

    std::size_t Count() const { return m_count; }

    /// Of the one that is at `index` now; kNew for one that was not there.
    std::size_t At(std::size_t index) const;
    /// Does any that was there stand elsewhere, or a new one in its place? Otherwise some were added to or
    /// taken from the end.
    bool AreMoved() const;

    void Reset(std::size_t count);
    void Grow(std::size_t count);
    /// `order` has the present index of each that is to be there, or kNew.
    void Arrange(const std::vector<std::size_t>& order);

private:
    std::size_t m_former = 0;
    std::size_t m_count = 0;
    bool m_isArranged = false;
    std::vector<std::size_t> m_of; ///< one each, once they were arranged
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
    /// Among the heads and the columns that the chart takes.
    std::size_t OddCount() const;
    /// The first of these, in reading order.
    std::optional<CellRange> FirstOdd() const;

    /// NaN for a gap.
    double Number(std::size_t row, std::size_t column) const;
    /// In the unit of the heads; rows of names count from 0. False for a head that is no time.
    bool Time(std::size_t row, std::int64_t& time) const;

    /// Numbers are read as people write them, "1,250.5", "45%" or "¥ 12", and shown plain: 1250.5.
    void SetText(std::size_t row, std::size_t column, std::string_view text);

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

    /// The same texts as heads of another sort; those that are no times become odd.
    void SetHeads(RowHeads heads);

    /// Where rows, and columns of numbers from 0, stood when the table was made or this was last forgotten,
    /// so that colours can follow them.
    const Origins& RowOrigins() const { return m_rowOrigins; }

    const Origins& ColumnOrigins() const { return m_columnOrigins; }

    void ForgetOrigins();

    /// Takes over what a chart could not hold of a table with the same data: odd cells, gaps, and columns
    /// that it does not take.
    void KeepFrom(const DataTable& before);

    /// For those who make a table of whole lists: of all rows, which it then has, and in the sort of its
    /// heads. kNoTime is a head without one.
    static constexpr std::int64_t kNoTime = std::numeric_limits<std::int64_t>::min();
    void TakeNames(std::vector<std::string> names);
    void TakeTimes(std::vector<std::int64_t> times);
    void AddColumn(std::string heading, std::vector<double> numbers);

    /// One a row, of a column from 1 on.
    const std::vector<double>& Numbers(std::size_t column) const { return m_columns[column - 1].Numbers; }

    /// The odd cells of a column, by their rows.
    const std::map<std::size_t, std::string>& Odd(std::size_t column) const;

    /// What is shown is the same, whatever stood where before.
    friend bool operator==(const DataTable& a, const DataTable& b);

private:
    using Texts = std::map<std::size_t, std::string>;

    struct Column {
        std::string Heading;
        std::vector<double> Numbers; ///< one a row; NaN for a gap
        Texts Odd;
    };

    static constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();

    void GrowRows(std::size_t count);
    void GrowColumns(std::size_t count);
    void SetHead(std::size_t row, std::string_view text);
    void KeepHeadings(const DataTable& before);
    void ArrangeRows(const std::vector<std::size_t>& order);
    void ArrangeColumns(const std::vector<std::size_t>& order);
    std::vector<std::size_t> SortedRows(std::size_t column, bool isAscending) const;

    RowHeads m_heads;
    std::size_t m_rowCount = 0;
    std::size_t m_usedColumns = kAll;
    std::string m_headHeading;
    std::vector<std::string> m_names;  ///< of rows with names
    std::vector<std::int64_t> m_times; ///< of other rows
    Texts m_notTimes;                  ///< heads that are no times
    std::vector<Column> m_columns;
    Origins m_rowOrigins;
    Origins m_columnOrigins;
};

/// What the times of a line chart with such heads are: one of millichart::TimeUnit.
std::int32_t TimeUnitOf(RowHeads heads);

/// The tables of a chart's data: one, or two for a composite chart, in the order in which it is drawn.
std::vector<DataTable> TablesOf(const millichart::ChartContent& content, std::int32_t timeUnit);

/// Puts the tables' data, names and headings into the content. Colours, offsets of labels and other looks
/// of which there is one a row or column follow where that stands now; all else stays.
void TakeTables(millichart::ChartContent& content, const std::vector<DataTable>& tables);

} // namespace designer
