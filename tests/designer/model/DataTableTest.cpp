#include "model/DataTable.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

using namespace designer;

using Cells = std::vector<std::vector<std::string>>;

Cells CellsOf(const DataTable& table) {
    Cells cells(table.RowCount(), std::vector<std::string>(table.ColumnCount()));
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
            cells[row][column] = table.Text(row, column);
        }
    }
    return cells;
}

/// A table of texts alone, which does each operation in the plainest way.
struct PlainTable {
    Cells Rows;
    std::size_t Width = 1;

    void Widen(std::size_t width) {
        Width = std::max(Width, width);
        for (auto& row : Rows) {
            row.resize(Width);
        }
    }

    void SetText(std::size_t row, std::size_t column, const std::string& text) {
        if (text.empty() && (row >= Rows.size() || column >= Width)) {
            return;
        }
        Rows.resize(std::max(Rows.size(), row + 1), std::vector<std::string>(Width));
        Widen(column + 1);
        Rows[row][column] = text;
    }

    template <class List>
    static void Move(List& list, std::size_t first, std::size_t count, std::size_t before) {
        count = std::min(count, list.size() - first);
        before = std::min(before, list.size());
        if (before >= first && before <= first + count) {
            return;
        }
        const auto from = list.begin() + static_cast<std::ptrdiff_t>(first);
        const List moved(from, from + static_cast<std::ptrdiff_t>(count));
        list.erase(from, from + static_cast<std::ptrdiff_t>(count));
        const std::size_t at = before > first ? before - count : before;
        list.insert(list.begin() + static_cast<std::ptrdiff_t>(at), moved.begin(), moved.end());
    }
};

class RandomTable : public testing::TestWithParam<RowHeads> {
protected:
    std::size_t Below(std::size_t count) { return m_random() % count; }

    std::string CellText() {
        const std::vector<std::string> texts{"",   "12",   "-3.5",       "0.1",
                                             "缺", "a\tb", "say \"no\"", "2024-01-05"};
        return texts[Below(texts.size())];
    }

    std::mt19937 m_random{7};
};

/// Odd texts, numbers and heads all move as texts do.
TEST_P(RandomTable, DoesWhatATableOfTextsDoes) {
    DataTable table(GetParam());
    PlainTable plain;
    for (int step = 0; step < 4000; ++step) {
        const std::size_t row = Below(plain.Rows.size() + 2);
        const std::size_t column = Below(plain.Width + 1);
        const std::size_t count = 1 + Below(3);
        const std::size_t before = Below(plain.Rows.size() + 1);
        switch (Below(plain.Rows.size() > 12 ? 9 : 7)) {
        case 0: {
            table.InsertRows(before, count);
            plain.Rows.insert(plain.Rows.begin() + static_cast<std::ptrdiff_t>(before), count,
                              std::vector<std::string>(plain.Width));
            break;
        }
        case 1:
            if (row < plain.Rows.size()) {
                table.MoveRows(row, count, before);
                PlainTable::Move(plain.Rows, row, count, before);
            }
            break;
        case 2:
            if (column > 0 && column < plain.Width) {
                const std::size_t to = 1 + Below(plain.Width);
                table.MoveColumns(column, count, to);
                for (auto& cells : plain.Rows) {
                    PlainTable::Move(cells, column, std::min(count, plain.Width - column), to);
                }
            }
            break;
        case 3:
            if (plain.Width > 4) {
                table.RemoveColumns(2, 2);
                for (auto& cells : plain.Rows) {
                    cells.erase(cells.begin() + 2, cells.begin() + 4);
                }
                plain.Width -= 2;
            }
            break;
        case 7:
        case 8:
            table.RemoveRows(before, count);
            if (before < plain.Rows.size()) {
                const auto from = plain.Rows.begin() + static_cast<std::ptrdiff_t>(before);
                plain.Rows.erase(
                    from, from + static_cast<std::ptrdiff_t>(std::min(count, plain.Rows.size() - before)));
            }
            break;
        default: {
            const std::string text = CellText();
            table.SetText(row, column, text);
            plain.SetText(row, column, text);
        }
        }
        ASSERT_EQ(CellsOf(table), plain.Rows) << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Heads, RandomTable, testing::Values(RowHeads::Names, RowHeads::Days));

TEST(DataTableTest, NumbersAreReadAsPeopleWriteThemAndOtherTextsStay) {
    DataTable table;
    const std::vector<std::pair<const char*, double>> written{
        {"1,250.5", 1250.5}, {"45%", 45.0},     {"¥ 12", 12.0}, {"1,5", 1.5},
        {"(3)", -3.0},       {" 1e3 ", 1000.0}, {"-0", 0.0}};
    for (const auto& [text, number] : written) {
        table.SetText(0, 1, text);
        EXPECT_EQ(table.Number(0, 1), number) << text;
        EXPECT_FALSE(table.IsOdd(0, 1)) << text;
    }
    EXPECT_EQ(table.Text(0, 1), "0");
    table.SetText(0, 1, "1,250.5");
    EXPECT_EQ(table.Text(0, 1), "1250.5");
    for (const char* odd : {"inf", "nan", "缺", "12 apples", "--"}) {
        table.SetText(3, 2, odd);
        EXPECT_TRUE(std::isnan(table.Number(3, 2))) << odd;
        EXPECT_EQ(table.Text(3, 2), odd);
    }
    table.SetText(5, 1, "x");
    EXPECT_EQ(table.OddCount(), 2U);
    ASSERT_TRUE(table.FirstOdd());
    EXPECT_EQ(table.FirstOdd()->Row, 3U);
    table.SetUsedColumns(1);
    EXPECT_EQ(table.FirstOdd()->Row, 5U) << "the chart does not take the other column";
    table.SetText(5, 1, "");
    EXPECT_EQ(table.OddCount(), 0U);
}

TEST(DataTableTest, HeadsAreTimesInTheirOwnWriting) {
    DataTable days(RowHeads::Days);
    days.SetText(0, 0, "2024/3/5");
    days.SetText(1, 0, "1969年12月31日");
    days.SetText(2, 0, "2024-03-05 14:30");
    EXPECT_EQ(days.Text(0, 0), "2024-03-05");
    std::int64_t time = 0;
    EXPECT_TRUE(days.Time(1, time));
    EXPECT_EQ(time, -1);
    EXPECT_TRUE(days.IsOdd(2, 0)) << "days have no hours";
    days.SetHeads(RowHeads::Seconds);
    EXPECT_EQ(days.Text(2, 0), "2024-03-05 14:30:00");
    EXPECT_EQ(days.Text(0, 0), "2024-03-05 00:00:00");

    DataTable numbers(RowHeads::Times);
    for (const char* head : {"1.5", "3000000000", "May"}) {
        numbers.SetText(0, 0, head);
        EXPECT_TRUE(numbers.IsOdd(0, 0)) << head;
        EXPECT_FALSE(numbers.Time(0, time)) << head;
    }
    numbers.SetHeads(RowHeads::Names);
    EXPECT_EQ(numbers.Text(0, 0), "May");
}

TEST(DataTableTest, SortingLeavesGapsAndOddCellsAtTheEndAndEqualsInOrder) {
    DataTable table;
    table.Paste({}, "a\t2\nb\tx\nc\t10\nd\t\ne\t2\n");
    const auto heads = [&table] {
        std::string all;
        for (std::size_t row = 0; row < table.RowCount(); ++row) {
            all += table.Text(row, 0);
        }
        return all;
    };
    table.Sort(1, true);
    EXPECT_EQ(heads(), "aecbd");
    EXPECT_EQ(table.Text(3, 1), "x");
    table.Sort(1, false);
    EXPECT_EQ(heads(), "caebd");
    table.Sort(0, false);
    EXPECT_EQ(heads(), "edcba");
}

TEST(DataTableTest, CellsComeThroughTheClipboardAsTheyAre) {
    DataTable table;
    const std::vector<std::string> hard{"a\tb",       "two\nlines", "say \"no\"", "\"",
                                        "\"quoted\"", "",           "12\" wide",  "end\r\n"};
    for (std::size_t row = 0; row < hard.size(); ++row) {
        table.SetText(row, 0, hard[row]);
        table.SetText(row, 1, std::to_string(row));
    }
    DataTable pasted;
    const CellRange all{0, 0, hard.size(), 2};
    const CellRange filled = pasted.Paste({2, 0}, table.Copy(all));
    EXPECT_EQ(filled.Row, 2U);
    EXPECT_EQ(filled.Rows, hard.size());
    EXPECT_EQ(filled.Columns, 2U);
    for (std::size_t row = 0; row < hard.size(); ++row) {
        EXPECT_EQ(pasted.Text(row + 2, 0), hard[row]);
        EXPECT_EQ(pasted.Text(row + 2, 1), std::to_string(row));
    }
}

TEST(DataTableTest, PastedTextsAreReadAsSpreadsheetsWriteThem) {
    DataTable table;
    table.Paste({}, "\"a\tb\"\t1\r\n\"x\"\"y\"\t2\r\nshort\r\n\"open\t4\r\n");
    EXPECT_EQ(CellsOf(table), (Cells{{"a\tb", "1"}, {"x\"y", "2"}, {"short", ""}, {"\"open", "4"}}));
    const CellRange filled = table.Paste({0, 1, 4, 1}, "7");
    EXPECT_EQ(filled.Rows, 4U);
    EXPECT_EQ(table.Text(3, 1), "7");
    table.Paste({1, 1}, "");
    EXPECT_EQ(table.Text(1, 1), "");
    table.Clear({2, 0, 100, 100});
    EXPECT_EQ(table.RowCount(), 4U);
    EXPECT_EQ(table.Text(2, 0) + table.Text(3, 1), "");
}

/// As fast as spreadsheets are: these sizes would take minutes if any step looked through all rows.
TEST(DataTableTest, AMillionRowsAreNoBurden) {
    constexpr std::size_t kRows = 1000000;
    DataTable table(RowHeads::Times);
    std::vector<double> numbers(kRows);
    std::vector<std::int64_t> times(kRows);
    for (std::size_t i = 0; i < kRows; ++i) {
        numbers[i] = static_cast<double>((i * 7919) % kRows);
        times[i] = static_cast<std::int64_t>(i);
    }
    table.TakeTimes(std::move(times));
    table.AddColumn("a", std::move(numbers));
    for (std::size_t i = 0; i < 1000; ++i) {
        table.SetText(i * 997, 1, i % 2 == 0 ? "odd" : "5");
    }
    table.InsertRows(10, 1);
    table.Sort(1, true);
    EXPECT_EQ(table.RowCount(), kRows + 1);
    EXPECT_EQ(table.OddCount(), 500U);
    EXPECT_EQ(table.Text(kRows, 1) + table.Text(kRows - 500, 1) + table.Text(kRows - 501, 1), "oddodd999999");
}

} // namespace
