#include "model/Editor.h"

#include <gtest/gtest.h>

namespace {

using namespace designer;
using millichart::ChartDocument;
using penlode::Color;

const millichart::ChartKind& Kind(const std::string& name) {
    return *millichart::FindChartKind(name);
}

std::string CellsOf(const DataTable& table) {
    return table.Copy({0, 0, table.RowCount(), table.ColumnCount()});
}

TEST(SwitchKindTest, EveryKindBecomesEveryOtherAndCanBeDrawnSavedAndUndone) {
    for (const millichart::ChartKind& from : millichart::ChartKinds()) {
        for (const millichart::ChartKind& to : millichart::ChartKinds()) {
            Editor editor = Editor::New(from);
            const std::string before = CellsOf(editor.Tables()[0]);
            editor.SwitchKind("switch", to);
            if (&from == &to) {
                EXPECT_FALSE(editor.CanUndo());
                continue;
            }
            const std::string both = std::string(from.Name) + " to " + to.Name;
            EXPECT_EQ(millichart::KindOf(editor.Document().Content), &to) << both;
            EXPECT_FALSE(millichart::HasErrors(editor.Document().LayOut().Diagnostics)) << both;
            EXPECT_TRUE(editor.Document().IsSound()) << both;
            EXPECT_EQ(editor.Tables().size(),
                      TablesOf(editor.Document().Content, editor.Document().Options.TimeUnit).size())
                << both;
            const ChartDocument again = ChartDocument::FromText(editor.Text());
            EXPECT_TRUE(again.IsSound() && again.Content == editor.Document().Content) << both;
            EXPECT_EQ(editor.Document().Title, Editor::New(from).Document().Title) << both;
            editor.Undo();
            EXPECT_EQ(CellsOf(editor.Tables()[0]), before) << both;
        }
    }
}

TEST(SwitchKindTest, DataAreTheSameAfterAWayThroughAllKinds) {
    Editor editor(ChartDocument::FromText(R"({"kind": "histogram", "title": "外贸",
        "property": {"HistogramPlotProp": {"ComponentName": ["出口", "进口"]},
                     "CaptionProp": {"Caption": "Trade"}},
        "data": {"groups": [{"name": "2021", "values": [1.5, -2]}, {"name": "2022", "values": [null, 4]},
                            {"name": "2023", "values": [7, 0]}]}})"));
    editor.ChangeTable("odd", 0, [](DataTable& table) { table.SetText(1, 1, "缺"); });
    const std::string before = CellsOf(editor.Tables()[0]);
    for (const char* kind : {"pie", "curve", "half-pie", "half-pie-half-pie", "histogram",
                             "half-pie-histogram", "pie", "half-pie-half-pie", "curve", "histogram"}) {
        editor.SwitchKind("switch", Kind(kind));
    }
    EXPECT_EQ(CellsOf(editor.Tables()[0]), before);
    EXPECT_EQ(editor.Tables()[0].Heading(1), "出口");
    EXPECT_EQ(editor.Tables()[0].Heading(2), "进口");
    const auto& bars = std::get<millichart::HistogramDocument>(editor.Document().Content);
    EXPECT_EQ(bars.Data.Values[0], (std::vector<double>{1.5, -2.0}));
    EXPECT_EQ(bars.Prop.Caption.Caption, "Trade");
    EXPECT_EQ(bars.Prop.Caption.ShowCaption, 1);
    EXPECT_EQ(editor.Document().Title, "外贸");
}

TEST(SwitchKindTest, WhatBothKindsKnowIsCarriedOver) {
    Editor editor = Editor::New(Kind("histogram"));
    constexpr Color kRed{0xFFFF0000U};
    editor.Change("looks", [&](ChartDocument& document) {
        millichart::HistogramProp& prop = std::get<millichart::HistogramDocument>(document.Content).Prop;
        prop.Plot.ComponentColor[1] = kRed;
        prop.Legend.ShowLegend = 0;
        prop.VerAxis.VerCaption = "tons";
        document.Options.Thousands = millichart::ThousandsStyle::Chinese;
    });
    editor.SwitchKind("switch", Kind("curve"));
    const auto& prop = std::get<millichart::CurveDocument>(editor.Document().Content).Prop;
    EXPECT_EQ(prop.Plot.CurveColor.at(1), kRed);
    EXPECT_EQ(prop.Legend.ShowLegend, 0);
    EXPECT_EQ(prop.VerAxis.VerCaption, "tons");
    EXPECT_EQ(editor.Document().Options.Thousands, millichart::ThousandsStyle::Chinese);
}

TEST(SwitchKindTest, YearsOfBarsAreTimesOfLinesAndOtherNamesLabels) {
    Editor years(ChartDocument::FromText(R"({"kind": "histogram", "data": {"groups": [
        {"name": "1990", "values": [1]}, {"name": "2000", "values": [2]}, {"name": "2002", "values": [3]}]}})"));
    years.SwitchKind("switch", Kind("curve"));
    EXPECT_EQ(std::get<millichart::CurveDocument>(years.Document().Content).Data.Times[0],
              (std::vector<std::int32_t>{1990, 2000, 2002}));
    Editor names(ChartDocument::FromText(R"({"kind": "histogram", "data": {"groups": [
        {"name": "1990", "values": [1]}, {"name": "later", "values": [2]}]}})"));
    names.SwitchKind("switch", Kind("curve"));
    EXPECT_EQ(std::get<millichart::CurveDocument>(names.Document().Content).Data.Labels,
              (std::vector<std::string>{"1990", "later"}));
}

TEST(SwitchKindTest, AnEmptyTableBecomesAnyKind) {
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        Editor editor(ChartDocument::FromText(R"({"kind": "pie", "data": {"values": []}})"));
        if (editor.Tables()[0].RowCount() == 0) {
            editor.SwitchKind("switch", kind);
        }
        editor.ChangeTable("cell", 0, [](DataTable& table) { table.Paste({}, "a\t1\nb\t2\n"); });
        EXPECT_EQ(editor.Tables()[0].RowCount(), 2U) << kind.Name;
        EXPECT_FALSE(millichart::HasErrors(editor.Document().LayOut().Diagnostics)) << kind.Name;
    }
}

TEST(SwitchKindTest, ATableTellsTheKindThatItWants) {
    std::string many = "x,y\n";
    for (int i = 0; i < 50; ++i) {
        many += "n" + std::to_string(i) + "," + std::to_string(i * i % 17) + "\n";
    }
    for (const auto& [text, kind] :
         std::map<std::string, std::string>{{"day,x\n2024-01-01,3\n2024-01-02,5\n", "curve"},
                                            {many, "curve"},
                                            {"part,share\nA,45.5\nB,54.5\n", "pie"},
                                            {"part,share\nA,60%\nB,40%\n", "pie"},
                                            {"part,share\nA,45\nB,60\n", "histogram"},
                                            {"part,share\nA,140\nB,-40\n", "histogram"},
                                            {"part,a,b\nA,50,1\nB,50,2\n", "histogram"},
                                            {"", "histogram"}}) {
        EXPECT_EQ(GuessKind({{"a.csv", text}}).Name, kind) << text;
    }
}

TEST(SwitchKindTest, ATableMakesEveryKind) {
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        const Editor editor = Editor::FromTable(kind, {{"a.csv", "part,x\nA,1\nB,2\n"}});
        EXPECT_TRUE(editor.Document().IsSound()) << kind.Name;
        EXPECT_EQ(millichart::KindOf(editor.Document().Content), &kind) << kind.Name;
        EXPECT_EQ(editor.Tables().at(0).Text(1, 1), "2") << kind.Name;
        EXPECT_FALSE(editor.IsSaved());
    }
}

} // namespace
