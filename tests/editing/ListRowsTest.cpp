#include "editing/ListRows.h"

#include "editing/LegendPlaces.h"
#include "foundation/Legend.h"

#include <gtest/gtest.h>

using namespace millichart;

namespace {

constexpr std::array<std::string_view, 2> kShapes{"圆", "方"};

std::string NewName(int row) {
    return "新" + std::to_string(row);
}

std::string NewColor(int) {
    return "7";
}

std::string NewShape(int) {
    return "圆";
}

constexpr std::array kColumns{ListColumn{"名称", CellKind::Text, 50, &NewName},
                              ListColumn{"颜色", CellKind::Color, 50, &NewColor},
                              ListColumn{"形状", CellKind::Choice, 50, &NewShape, kShapes}};

ListRows SomeRows() {
    ListRows rows;
    rows.SetColumns(kColumns);
    rows.SetRows({{"甲", "1", "圆"}, {"乙", "2"}, {"丙", "3", "方", "more"}});
    return rows;
}

/// The first cells of all rows.
std::string Names(const ListRows& rows) {
    std::string names;
    for (const ListRow& row : rows.Rows()) {
        EXPECT_EQ(row.size(), kColumns.size());
        names += row[0] + ' ';
    }
    return names;
}

TEST(ListRows, AddsRemovesAndMovesWholeRows) {
    ListRows rows = SomeRows();
    rows.Add(1);
    EXPECT_EQ(Names(rows), "甲 新3 乙 丙 ");
    EXPECT_EQ(rows.Rows()[1], (ListRow{"新3", "7", "圆"}));
    rows.Add(99);
    EXPECT_EQ(Names(rows), "甲 新3 乙 丙 新4 ");
    rows.Remove(1, 2);
    EXPECT_EQ(Names(rows), "甲 丙 新4 ");
    rows.Remove(2, 5);
    EXPECT_EQ(rows.Move(0, 1), 1U);
    EXPECT_EQ(rows.Rows()[0], (ListRow{"丙", "3", "方"}));
    EXPECT_EQ(rows.Move(0, -1), 0U);
    EXPECT_EQ(rows.Move(1, 1), 1U);
    EXPECT_EQ(rows.Move(7, -1), 7U);
    EXPECT_EQ(Names(rows), "丙 甲 ");
    rows.Remove(9, 1);
    rows.Remove(0, 2);
    EXPECT_EQ(rows.Move(0, 1), 0U);
    EXPECT_EQ(rows.Count(), 0U);
}

TEST(ListRows, TakesOnlyWhatAColumnCanHold) {
    ListRows rows = SomeRows();
    EXPECT_FALSE(rows.SetCell(0, 2, "三角"));
    EXPECT_TRUE(rows.SetCell(0, 2, "方"));
    EXPECT_FALSE(rows.SetCell(0, 1, "red"));
    EXPECT_TRUE(rows.SetCell(0, 1, "#FF0000"));
    EXPECT_EQ(rows.Rows()[0], (ListRow{"甲", "255", "方"}));
}

TEST(ListRows, CopiesAndPastesAsSpreadsheetsDo) {
    ListRows rows = SomeRows();
    rows.SetCell(0, 0, "two\twords");
    EXPECT_EQ(rows.Copied(0, 2), "two words\t1\t圆\n乙\t2\t\n");
    rows.Paste(1, 0, "A\t65280\t方\tmore\r\nB\tnone\t圆\r\nC");
    EXPECT_EQ(Names(rows), "two\twords A B C ");
    EXPECT_EQ(rows.Rows()[1], (ListRow{"A", "65280", "方"}));
    EXPECT_EQ(rows.Rows()[2], (ListRow{"B", "3", "圆"})) << "no colour: it stays";
    EXPECT_EQ(rows.Rows()[3], (ListRow{"C", "7", "圆"}));
    rows.Paste(0, 1, "5");
    EXPECT_EQ(rows.Rows()[0], (ListRow{"two\twords", "5", "圆"}));
    rows.Paste(0, 0, "");
    EXPECT_EQ(rows.Count(), 4U);
    EXPECT_EQ(rows.Copied(9, 3), "");
}

TEST(LegendPlaces, AreFoundByPointAndByArrow) {
    constexpr penlode::SizeF kPicture{200, 100};
    for (int place = 0; place < kLegendPlaceCount; ++place) {
        const penlode::PointF middle = LegendPlace(place, kPicture).Center();
        EXPECT_EQ(LegendPlaceAt(middle, kPicture), place);
        EXPECT_EQ(middle.X < 50, place <= LegendPosition::LeftBottom);
        EXPECT_EQ(middle.Y > 75, place >= LegendPosition::BottomLeft);
    }
    EXPECT_EQ(LegendPlaceAt({100, 50}, kPicture), -1);
    using namespace LegendPosition;
    EXPECT_EQ(LegendPlaceBeside(LeftTop, 0, 1), LeftCenter);
    EXPECT_EQ(LegendPlaceBeside(LeftCenter, 1, 0), RightCenter);
    EXPECT_EQ(LegendPlaceBeside(TopCenter, 0, 1), BottomCenter);
    EXPECT_EQ(LegendPlaceBeside(LeftTop, 0, -1), TopLeft);
    EXPECT_EQ(LegendPlaceBeside(TopLeft, -1, 0), LeftTop);
    EXPECT_EQ(LegendPlaceBeside(TopCenter, 0, -1), TopCenter);
    EXPECT_EQ(LegendPlaceBeside(-1, 1, 0), RightCenter);
}

} // namespace
