#include "model/Editor.h"

#include "designer/model/OwnFolder.h"
#include "documents/Files.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

using namespace designer;
using millichart::ChartDocument;
namespace fs = std::filesystem;

const millichart::ChartKind& Kind(const char* name) {
    return *millichart::FindChartKind(name);
}

/// A folder of a test's own, empty.
std::string Folder(const char* name) {
    static const test::OwnFolder own;
    fs::create_directories(own.Path(name));
    return own.Path(name);
}

auto SetTitle(const std::string& title) {
    return [title](ChartDocument& document) { document.Title = title; };
}

auto SetCell(std::size_t row, std::size_t column, const std::string& text) {
    return [=](DataTable& table) { table.SetText(row, column, text); };
}

TEST(EditorTest, ChangesHaveNamesAndThoseOfOneSeriesAreOne) {
    Editor editor = Editor::New(Kind("pie"));
    EXPECT_FALSE(editor.CanUndo());
    const std::uint64_t revision = editor.Revision();
    editor.Change("nothing", [](ChartDocument&) {});
    EXPECT_FALSE(editor.CanUndo());
    EXPECT_EQ(editor.Revision(), revision);

    const std::string before = editor.Document().Title;
    editor.Change("title", SetTitle("a"));
    editor.ChangeTable("cell", 0, SetCell(0, 1, "1"), "cell 0 1");
    editor.ChangeTable("cell", 0, SetCell(0, 1, "12"), "cell 0 1");
    editor.ChangeTable("other cell", 0, SetCell(1, 1, "3"), "cell 1 1");
    EXPECT_EQ(editor.UndoName(), "other cell");
    editor.Undo();
    EXPECT_EQ(editor.RedoName(), "other cell");
    EXPECT_EQ(editor.Tables()[0].Text(0, 1), "12");
    EXPECT_EQ(std::get<millichart::PieDocument>(editor.Document().Content).Data.Values[0], 12.0);
    // What was undone is over: the same series again is another change.
    editor.ChangeTable("cell", 0, SetCell(0, 1, "5"), "cell 1 1");
    EXPECT_FALSE(editor.CanRedo());
    editor.Undo();
    editor.Undo();
    EXPECT_EQ(editor.UndoName(), "title");
    EXPECT_NE(editor.Tables()[0].Text(0, 1), "12");
    editor.Undo();
    EXPECT_EQ(editor.Document().Title, before);
    EXPECT_FALSE(editor.CanUndo());
    EXPECT_TRUE(editor.IsSaved());
}

TEST(EditorTest, ASeriesEndsWhereItIsToldToAndAtASave) {
    Editor editor = Editor::New(Kind("pie"));
    editor.Change("title", SetTitle("a"), "t");
    editor.EndMerge();
    editor.Change("title", SetTitle("b"), "t");
    ASSERT_EQ(editor.Save(Folder("series") + "/a.chart.json"), "");
    editor.Change("title", SetTitle("c"), "t");
    EXPECT_FALSE(editor.IsSaved());
    editor.Undo();
    EXPECT_EQ(editor.Document().Title, "b");
    EXPECT_TRUE(editor.IsSaved());
    editor.Undo();
    EXPECT_EQ(editor.Document().Title, "a");
}

TEST(EditorTest, WhatAChartCannotHoldStaysInTheTableWhateverElseChanges) {
    Editor editor = Editor::New(Kind("pie"));
    const std::size_t rows = editor.Tables()[0].RowCount();
    editor.ChangeTable("odd", 0, SetCell(1, 1, "缺"));
    editor.ChangeTable("more", 0, SetCell(0, 2, "77"));
    editor.ChangeTable("heading", 0, [](DataTable& table) { table.SetHeading(1, "产量"); });
    editor.Change("names", [](ChartDocument& document) {
        std::get<millichart::PieDocument>(document.Content).Prop.Basic.ComponentName[0] = "first";
    });
    const DataTable& table = editor.Tables()[0];
    EXPECT_EQ(table.RowCount(), rows);
    EXPECT_EQ(table.Text(0, 0), "first");
    EXPECT_EQ(table.Text(1, 1), "缺");
    EXPECT_EQ(table.Text(0, 2), "77");
    EXPECT_EQ(table.Heading(1), "产量");
    editor.Undo();
    EXPECT_NE(editor.Tables()[0].Text(0, 0), "first");
    EXPECT_EQ(editor.Tables()[0].Text(1, 1), "缺");
}

TEST(EditorTest, TextsInThePlaceOfCountsBecomeLabels) {
    Editor editor(
        ChartDocument::FromText(R"({"kind": "curve", "data": {"curves": [{"values": [1, 2, 3]}]}})"));
    EXPECT_EQ(editor.Tables()[0].Heads(), RowHeads::Times);
    editor.ChangeTable("label", 0, SetCell(1, 0, "May"));
    EXPECT_EQ(editor.Tables()[0].Heads(), RowHeads::Names);
    const auto& data = std::get<millichart::CurveDocument>(editor.Document().Content).Data;
    EXPECT_EQ(data.Labels, (std::vector<std::string>{"0", "May", "2"}));
    EXPECT_EQ(data.Values[0].size(), 3U);

    Editor years(ChartDocument::FromText(
        R"({"kind": "curve", "data": {"curves": [{"values": [1, 2, 3], "times": [1990, 1995, 2000]}]}})"));
    years.ChangeTable("slip", 0, SetCell(1, 0, "19q5"));
    EXPECT_EQ(years.Tables()[0].Heads(), RowHeads::Times);
    EXPECT_TRUE(years.Tables()[0].IsOdd(1, 0));
    EXPECT_EQ(std::get<millichart::CurveDocument>(years.Document().Content).Data.Times[0].size(), 2U);
}

/// The chart counts such dates from their first day until the data are its own.
TEST(EditorTest, DatesOfAFileStayDatesWhenTheirDataChange) {
    Editor editor =
        Editor::FromTable(Kind("curve"), {{"a.csv", "day,x\n2024-03-15,1\n2024-03-18,2\n2024-03-19,4\n"}});
    ASSERT_EQ(editor.Tables()[0].Heads(), RowHeads::Days);
    editor.ChangeTable("cell", 0, SetCell(3, 0, "2024-03-25"));
    editor.ChangeTable("cell", 0, SetCell(3, 1, "6"));
    EXPECT_EQ(editor.Document().Options.TimeUnit, millichart::TimeUnit::Days);
    const Editor again(ChartDocument::FromText(editor.Text()));
    EXPECT_EQ(again.Tables(), editor.Tables());
    EXPECT_EQ(again.Tables()[0].Copy({0, 0, 4, 2}),
              "2024-03-15\t1\n2024-03-18\t2\n2024-03-19\t4\n2024-03-25\t6\n");
}

TEST(EditorTest, SlicesKeepColoursOfAPaletteThatGoesByPlaces) {
    Editor editor(
        ChartDocument::FromText(R"({"kind": "pie", "options": "readable", "data": {"values": [1, 2, 3]}})"));
    ASSERT_EQ(editor.Document().Options.Palette, millichart::ChartPalette::Safe);
    const penlode::Color third = millichart::PaletteFill(editor.Document().Options, 2).Color;
    editor.ChangeTable("cell", 0, SetCell(0, 1, "8"));
    EXPECT_EQ(editor.Document().Options.Palette, millichart::ChartPalette::Safe);
    editor.ChangeTable("delete", 0, [](DataTable& table) { table.RemoveRows(1, 1); });
    const auto& pie = std::get<millichart::PieDocument>(editor.Document().Content);
    EXPECT_EQ(editor.Document().Options.Palette, millichart::ChartPalette::Record);
    ASSERT_EQ(pie.Prop.Basic.ComponentColor.size(), 2U);
    EXPECT_EQ(pie.Prop.Basic.ComponentColor[1], third);
}

TEST(EditorTest, ASavedDocumentOpensAsItWas) {
    const std::string file = Folder("saved") + "/图.chart.json";
    Editor editor = Editor::New(Kind("histogram"));
    EXPECT_EQ(editor.Title(), "");
    editor.ChangeTable("insert", 0, [](DataTable& table) {
        table.InsertRows(1, 1);
        table.SetText(1, 0, "新");
        table.SetText(1, 2, "42");
    });
    ASSERT_EQ(editor.Save(file), "");
    EXPECT_TRUE(editor.IsSaved());
    EXPECT_EQ(editor.Title(), "图.chart.json");
    Editor again = Editor::Open(file);
    EXPECT_TRUE(again.IsSaved());
    EXPECT_TRUE(again.Document().IsSound());
    EXPECT_EQ(again.Tables(), editor.Tables());
    EXPECT_EQ(again.File(), file);
    const std::string fault = again.Save(Folder("saved-not") + "/no/such/folder.json");
    EXPECT_NE(fault, "");
    EXPECT_EQ(again.File(), file);
}

TEST(EditorTest, AnothersChangeOfTheFileIsSeenOnce) {
    const std::string file = Folder("others") + "/a.chart.json";
    Editor editor = Editor::New(Kind("pie"));
    EXPECT_FALSE(editor.IsFileOthers());
    ASSERT_EQ(editor.Save(file), "");
    EXPECT_FALSE(editor.IsFileOthers());
    fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(5));
    EXPECT_FALSE(editor.IsFileOthers()) << "the same bytes";
    std::string other = millichart::ReadFile(file).Text;
    other[other.find("Sales")] = 'B';
    std::ofstream(file, std::ios::binary) << other;
    fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(9));
    EXPECT_TRUE(editor.IsFileOthers());
    editor.AcceptFile();
    EXPECT_FALSE(editor.IsFileOthers());
    EXPECT_FALSE(editor.IsSaved());
    fs::remove(file);
    EXPECT_TRUE(editor.IsFileOthers());
    ASSERT_EQ(editor.Save(file), "");
    EXPECT_FALSE(editor.IsFileOthers());
}

TEST(EditorTest, ADocumentThatLeavesItsTableTakesTheDataAlong) {
    const std::string from = Folder("with-table");
    const std::string to = Folder("without-table") + "/a.chart.json";
    std::ofstream(from + "/a.csv") << "A,1\nB,2\n";
    std::ofstream(from + "/a.chart.json") << R"({"kind": "pie", "data": {"csv": "a.csv"}})";
    Editor editor = Editor::Open(from + "/a.chart.json");
    ASSERT_EQ(editor.Save(from + "/b.chart.json"), "");
    EXPECT_NE(millichart::ReadFile(from + "/b.chart.json").Text.find("a.csv"), std::string::npos);
    for (int times = 0; times < 2; ++times) { // the second time from its new folder
        ASSERT_EQ(editor.Save(to), "");
        const Editor moved = Editor::Open(to);
        EXPECT_TRUE(moved.Document().IsSound());
        EXPECT_EQ(moved.Tables(), editor.Tables());
    }
}

TEST(EditorTest, UndoOfLargeDataIsBoundedAndOneStepIsThere) {
    struct Large {
        int Number;
    };

    constexpr std::size_t kLarge = std::size_t{150} << 20U;
    History<Large> history(Large{0});
    for (int i = 1; i <= 10; ++i) {
        history.Change("step", {i}, kLarge);
        EXPECT_EQ(history.Current().Number, i);
    }
    int undone = 0;
    for (; history.CanUndo(); ++undone) {
        history.Undo();
    }
    EXPECT_EQ(undone, 2);
    history.Redo();
    history.Change("huge", {11}, 10 * kLarge);
    history.Undo();
    EXPECT_EQ(history.Current().Number, 9);
    EXPECT_FALSE(history.CanUndo());
    history.Redo();
    EXPECT_EQ(history.Current().Number, 11);
    EXPECT_FALSE(history.IsSaved());
}

} // namespace
