#include "documents/ChartDocument.h"
#include "model/DataTable.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

using namespace designer;
using millichart::ChartContent;
using millichart::ChartDocument;
using penlode::Color;

std::string Narrow(const std::string& utf8) {
    return penlode::CStringUtil::Utf8ToAnsi(utf8);
}

ChartDocument New(const char* kind) {
    return ChartDocument::FromText(std::string(millichart::FindChartKind(kind)->Template));
}

std::vector<DataTable> TablesOf(const ChartDocument& document) {
    return designer::TablesOf(document.Content, document.Options.TimeUnit);
}

std::vector<ChartDocument> AllDocuments() {
    std::vector<ChartDocument> all;
    for (const millichart::ChartKind& kind : millichart::ChartKinds()) {
        all.push_back(ChartDocument::FromText(std::string(kind.Template)));
    }
    for (const char* folder : {"", "/reading"}) {
        for (const auto& entry :
             std::filesystem::directory_iterator(MILLICHART_EXAMPLES + std::string(folder))) {
            if (entry.path().string().ends_with(".chart.json")) {
                all.push_back(ChartDocument::Load(entry.path().string()));
                EXPECT_TRUE(all.back().IsSound()) << entry.path();
            }
        }
    }
    return all;
}

/// Where data came from is no longer true of changed data.
ChartContent WithoutOrigin(ChartContent content) {
    if (auto* bars = std::get_if<millichart::HistogramDocument>(&content)) {
        bars->Data.Origin = {};
    } else if (auto* curves = std::get_if<millichart::CurveDocument>(&content)) {
        curves->Data.Origin = {};
    } else if (auto* both = std::get_if<millichart::HalfPieHistogramDocument>(&content)) {
        both->Bars.Origin = {};
    }
    return content;
}

TEST(TableContentTest, EveryChartComesThroughItsTables) {
    const std::vector<ChartDocument> all = AllDocuments();
    EXPECT_GT(all.size(), 60U);
    for (const ChartDocument& document : all) {
        ChartContent content = document.Content;
        TakeTables(content, TablesOf(document));
        EXPECT_TRUE(content == document.Content) << document.Title;
    }
}

/// The second change has to write all that the first one changed.
TEST(TableContentTest, AChangeThatIsTakenBackLeavesNothing) {
    for (const ChartDocument& document : AllDocuments()) {
        const std::vector<DataTable> tables = TablesOf(document);
        const auto* curves = std::get_if<millichart::CurveDocument>(&document.Content);
        if (curves != nullptr && curves->Data.Origin.Dates) {
            continue; // its times are counted otherwise from then on
        }
        for (std::size_t i = 0; i < tables.size(); ++i) {
            ChartContent content = document.Content;
            std::vector<DataTable> changed = tables;
            changed[i].SetText(0, 1, "0.015625");
            const bool areDates =
                changed[i].Heads() == RowHeads::Days || changed[i].Heads() == RowHeads::Seconds;
            changed[i].SetText(changed[i].RowCount(), 0, areDates ? "2037-12-31" : "2147483647");
            TakeTables(content, changed);
            EXPECT_EQ(designer::TablesOf(content, document.Options.TimeUnit), changed) << document.Title;
            TakeTables(content, tables);
            EXPECT_TRUE(WithoutOrigin(content) == WithoutOrigin(document.Content)) << document.Title;
        }
    }
}

TEST(TableContentTest, TimesOfTheirOwnStandInOneTableWithGaps) {
    ChartDocument document = ChartDocument::FromText(R"({"kind": "curve", "data": {"curves": [
        {"name": "甲", "values": [1, 2, null, 4], "times": [10, 20, 30, 50]},
        {"name": "乙", "values": [7, 8], "times": [40, 20]}]}})");
    std::vector<DataTable> tables = TablesOf(document);
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(tables[0].Copy({0, 0, 5, 3}), "10\t1\t\n20\t2\t8\n30\t\t\n40\t\t7\n50\t4\t\n");
    EXPECT_EQ(tables[0].Heading(2), "乙");
    tables[0].SetText(4, 2, "9");
    tables[0].SetText(1, 1, "");
    TakeTables(document.Content, tables);
    const auto& data = std::get<millichart::CurveDocument>(document.Content).Data;
    EXPECT_EQ(data.Times[0], (std::vector<std::int32_t>{10, 30, 50})) << "what was cleared is no point";
    EXPECT_EQ(data.Values[0], (std::vector<double>{1.0, millichart::kCurveNull, 4.0})) << "the break stays";
    EXPECT_EQ(data.Times[1], (std::vector<std::int32_t>{20, 40, 50}));
}

TEST(TableContentTest, LabelsOfTheRowsAndDatesAreHeads) {
    ChartDocument labels =
        ChartDocument::FromText(R"({"kind": "curve", "data": {"labels": ["一月", "二月", "三月"],
        "curves": [{"values": [1, 2, 3], "times": [5, 7, 9]}]}})");
    std::vector<DataTable> tables = TablesOf(labels);
    EXPECT_EQ(tables[0].Heads(), RowHeads::Names);
    EXPECT_EQ(tables[0].Text(1, 0), "二月");
    tables[0].InsertRows(1, 1);
    tables[0].SetText(1, 0, "闰月");
    TakeTables(labels.Content, tables);
    const auto& data = std::get<millichart::CurveDocument>(labels.Content).Data;
    EXPECT_EQ(data.Times[0], (std::vector<std::int32_t>{5, 7, 9, 11}));
    EXPECT_EQ(data.Values[0][1], millichart::kCurveNull);
    EXPECT_EQ(data.Labels[1], Narrow("闰月"));

    const ChartDocument days = ChartDocument::FromText(R"({"kind": "curve", "options": {"TimeUnit": "Days"},
        "data": {"curves": [{"values": [1, 2], "times": [0, 19797]}]}})");
    EXPECT_EQ(TablesOf(days)[0].Text(1, 0), "2024-03-15");
    const ChartDocument file = ChartDocument::FromText(
        R"({"kind": "curve"})", "", millichart::TableInput{{"a.csv", "day,x\n2024-03-15,1\n2024-03-18,2\n"}});
    EXPECT_EQ(TablesOf(file)[0].Heads(), RowHeads::Days);
    EXPECT_EQ(TablesOf(file)[0].Text(1, 0), "2024-03-18");
}

TEST(TableContentTest, NamesAreWrittenWhereTheChartLooksForThem) {
    ChartDocument pie = ChartDocument::FromText(R"({"kind": "pie"})", "",
                                                millichart::TableInput{{"a.csv", "A,1\nB,2\nC,3\n"}});
    auto& content = std::get<millichart::PieDocument>(pie.Content);
    content.Prop.Basic.ComponentName = {"a"};
    std::vector<DataTable> tables = TablesOf(pie);
    EXPECT_EQ(tables[0].Copy({0, 0, 3, 1}), "a\nB\nC\n") << "the record's names win";
    tables[0].SetText(0, 0, "甲||乙|");
    TakeTables(pie.Content, tables);
    const millichart::LaidOutChart chart = pie.LayOut();
    EXPECT_EQ(std::get<millichart::CBasicPie>(chart.Chart).GetPieProp().Basic.ComponentName,
              (std::vector<std::string>{Narrow("甲|乙"), "B", "C"}));
    EXPECT_FALSE(pie.Text().empty());
    EXPECT_EQ(TablesOf(ChartDocument::FromText(pie.Text()))[0].Text(0, 0), "甲|乙") << "it can be saved";
}

TEST(TableContentTest, WhatAPieCannotShowIsASliceOfNothing) {
    ChartDocument pie = New("pie");
    DataTable table;
    table.SetUsedColumns(1);
    table.Paste({}, "a\t1\nb\t-2\nc\t缺\nd\t4\ne\t\n\t\n");
    TakeTables(pie.Content, {table});
    const auto& content = std::get<millichart::PieDocument>(pie.Content);
    EXPECT_EQ(content.Data.Values, (std::vector<double>{1.0, 0.0, 0.0, 4.0}));
    EXPECT_EQ(content.Prop.Basic.ComponentName.size(), 5U) << "a name whose number is still to come";
}

std::vector<Color> SliceColors(const ChartDocument& document) {
    const millichart::LaidOutChart chart = document.LayOut();
    return std::get<millichart::CBasicPie>(chart.Chart).GetPieProp().Basic.ComponentColor;
}

class ColorsFollow : public testing::TestWithParam<const char*> {};

/// Whether the document has colours itself, some of them, or leaves them to the chart.
TEST_P(ColorsFollow, TheirSlices) {
    ChartDocument pie = ChartDocument::FromText(GetParam());
    const std::vector<Color> before = SliceColors(pie);
    auto& content = std::get<millichart::PieDocument>(pie.Content);
    content.LabelOffsets = {{1.0F, 1.0F}, {2.0F, 2.0F}, {3.0F, 3.0F}, {4.0F, 4.0F}};
    std::vector<DataTable> tables = TablesOf(pie);
    tables[0].RemoveRows(1, 1);
    tables[0].InsertRows(1, 1);
    tables[0].SetText(1, 0, "new");
    tables[0].SetText(1, 1, "9");
    tables[0].MoveRows(3, 1, 0);
    TakeTables(pie.Content, tables);
    const std::vector<Color> now = SliceColors(pie);
    ASSERT_EQ(now.size(), 4U);
    EXPECT_EQ(now[0], before[3]);
    EXPECT_EQ(now[1], before[0]);
    EXPECT_EQ(now[3], before[2]);
    EXPECT_TRUE(now[2] != before[0] && now[2] != before[2] && now[2] != before[3]) << "the new one's";
    EXPECT_EQ(content.LabelOffsets,
              (std::vector<penlode::PointF>{{4.0F, 4.0F}, {1.0F, 1.0F}, {}, {3.0F, 3.0F}}));
}

INSTANTIATE_TEST_SUITE_P(
    Documents, ColorsFollow,
    testing::Values(R"({"kind": "pie", "data": {"values": [1, 2, 3, 4]}})",
                    R"({"kind": "pie", "data": {"values": [1, 2, 3, 4]},
                        "property": {"PieBasicProp": {"ComponentColor": ["#112233", "#223344"]}}})",
                    R"({"kind": "pie", "data": {"values": [1, 2, 3, 4]}, "property": {"PieBasicProp":
                        {"ComponentColor": ["#111111", "#222222", "#333333", "#444444"]}}})"));

TEST(TableContentTest, LooksOfLinesFollowTheirColumns) {
    ChartDocument document = ChartDocument::FromText(R"({"kind": "curve", "property": {"CurvePlotProp": {
        "CurveWidth": [0.1, 0.2, 0.3], "CurveDashStyle": [0, 1, 2], "CurveDotStyle": ["solid_circle"],
        "CurveDotColor": ["#010101"], "NullValueStyle": ["break", "as_zero"]}},
        "data": {"curves": [{"name": "a", "values": [1, 2]}, {"name": "b", "values": [3, 4]},
                            {"name": "c", "values": [5, 6]}]}})");
    const auto plotOf = [&document] {
        const millichart::LaidOutChart chart = document.LayOut();
        return std::get<millichart::CBasicCurve>(chart.Chart).GetCurveProp().Plot;
    };
    const millichart::CurvePlotProp before = plotOf();
    std::vector<DataTable> tables = TablesOf(document);
    tables[0].RemoveColumns(1, 1);
    tables[0].MoveColumns(2, 1, 1);
    tables[0].InsertColumns(2, 1);
    tables[0].SetText(0, 2, "8");
    TakeTables(document.Content, tables);
    const millichart::CurvePlotProp now = plotOf();
    EXPECT_EQ(now.CurveName, (std::vector<std::string>{"c", "", "b"}));
    EXPECT_EQ(now.CurveWidth, (std::vector<float>{0.3F, 0.2F, 0.2F}));
    EXPECT_EQ(now.CurveDashStyle, (std::vector<std::int32_t>{2, 0, 1}));
    EXPECT_EQ(now.NullValueStyle, (std::vector<std::int32_t>{0, 0, 1}));
    for (const auto& [at, from] : {std::pair(0U, 2U), {2U, 1U}}) {
        EXPECT_EQ(now.CurveColor[at], before.CurveColor[from]);
        EXPECT_EQ(now.CurveDotColor[at], before.CurveDotColor[from]);
        EXPECT_EQ(now.CurveDotStyle[at], before.CurveDotStyle[from]);
    }
    EXPECT_EQ(now.CurveDotColor[1], now.CurveColor[1]);
    EXPECT_NE(now.CurveColor[1], now.CurveColor[0]);
    EXPECT_NE(now.CurveColor[1], now.CurveColor[2]);
}

} // namespace
