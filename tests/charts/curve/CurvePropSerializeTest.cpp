#include "charts/curve/CurvePropSerialize.h"

#include "penlode/streams/JsonSerializeStream.h"
#include "support/ListingStream.h"
#include "support/Records.h"
#include "support/SomeRecords.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::CJsonSerializeStream;
using penlode::Color;

namespace {

CurveProp Loaded(CJsonSerializeStream& stream) {
    CurveProp prop = SomeCurves();
    CCurvePropSerialize::SerializeCurveProp(stream, prop, "C");
    return prop;
}

} // namespace

TEST(CurvePropSerialize, KeyedAsADocument) {
    CurveProp prop = SomeCurves();
    CJsonSerializeStream stream;
    CCurvePropSerialize::SerializeCurveProp(stream, prop, "C");
    const std::string document = WithoutLooks(stream.Text());
    // The value axis is a bar chart's too, and is held there.
    EXPECT_EQ(document.substr(0, document.find("\"MajorScaleStyle")), R"("C": {
"CaptionProp": {
"ShowCaption": "0",
"Caption": "水深",
"CaptionTextProperty": {
"Angle": "0"
"CurveVerAxisProp": {
"ShowVerAxis": "1",
)");
    EXPECT_EQ(document.substr(document.find("\"CurveHorAxisProp")), R"("CurveHorAxisProp": {
"ShowHorAxis": "2",
"HorAxisPen": "#FF000001 0.3 solid",
"ScaleStyle": "cross",
"ScaleStep": "3",
"ShowLabel": "0",
"LabelStep": "4",
"ShowVerGrid": "5",
"VerGridStep": "6",
"VerGridPen": "#FF000002 0.4 dot",
"ShowHorCaption": "7",
"HorCaption": "year",
"HorCaptionTextProperty": {
"Angle": "90"
"HorLabelTextProperty": {
"Angle": "45"
"CurvePlotProp": {
"ShowBackground": "0",
"PlotBackgroundColor": "#FFFAFAFA",
"ShowEdge": "8",
"EdgePen": "#FF000003 0.5 solid",
"CurveName": [
"东",
"",
"W"
"CurveColor": [
"#FF4472C4",
"#80ED7D31",
"#FF000004"
"CurveWidth": [
"0.25",
"0.5",
"0"
"CurveDashStyle": [
"0",
"4",
"-2"
"CurveDotStyle": [
"none",
"hollow_inverted_triangle",
"solid_square"
"CurveDotColor": [
"#FF000005",
"#FF000006",
"#FF000007"
"CurveDotWidth": [
"1.5",
"2",
"3.25"
"PlotWidth": "120.5",
"PlotHeight": "60.25",
"LogarithmScale": "9",
"NullValueStyle": [
"as_zero",
"break",
"as_zero"
"CurveLegendProp": {
"ShowLegend": "0",
"LegendPos": "TopRight",
"ShowEdge": "1",
"ShowBackground": "0",
"BackgroundColor": "#FFFFFFFF",
"ItemDist": "0",
"PenEdge": "#FF000000 0.1 solid",
"Font": "宋体 4"
)");
}

TEST(CurvePropSerialize, EveryMarkerHasItsName) {
    const std::vector<std::string> names{"none",
                                         "solid_square",
                                         "hollow_square",
                                         "solid_circle",
                                         "hollow_circle",
                                         "solid_diamond",
                                         "hollow_diamond",
                                         "solid_triangle",
                                         "hollow_triangle",
                                         "solid_inverted_triangle",
                                         "hollow_inverted_triangle"};
    std::string list;
    std::vector<std::int32_t> expected;
    for (const std::string& name : names) {
        list += (list.empty() ? "\"" : ", \"") + name + "\"";
        expected.push_back(static_cast<std::int32_t>(expected.size()));
    }
    CJsonSerializeStream stream(R"({"C": {"CurvePlotProp": {"CurveDotStyle": [)" + list + "]}}}");
    EXPECT_EQ(Loaded(stream).Plot.CurveDotStyle, expected);
}

TEST(CurvePropSerialize, AnEmptyDocumentGivesExactlyTheLoadDefaults) {
    CurveProp expected;
    expected.VerAxis.ShowVerAxis = 0;
    expected.VerAxis.ShowHorMinorGrid = 1;
    expected.VerAxis.ShowVerCaption = 1;
    expected.HorAxis.ShowVerGrid = 0;
    expected.HorAxis.VerGridPen = penlode::Pen(penlode::kBlack, 0.0F);
    expected.Plot.EdgePen = penlode::Pen(Color{0xFFDA8080}, 0.2F);
    for (TextProperty* text :
         {&expected.Caption.CaptionTextProperty, &expected.VerAxis.VerAxisLabelTextProperty,
          &expected.VerAxis.VerCaptionTextProperty, &expected.HorAxis.HorLabelTextProperty,
          &expected.HorAxis.HorCaptionTextProperty}) {
        text->BkColor = penlode::kBlack;
        text->DrawEdge = 1;
        text->DrawBackGround = 1;
    }
    CJsonSerializeStream empty("{}");
    EXPECT_EQ(Loaded(empty), expected);
}

TEST(CurvePropSerialize, ItemsThatMeanNothingKeepTheirPlaces) {
    CJsonSerializeStream stream(R"({"C": {"CurvePlotProp": {
        "CurveWidth": ["0.5", "thick", "2"], "CurveDashStyle": ["1", "dash"], "CurveDotWidth": ["wide"],
        "CurveDotStyle": ["solid_circle", "3", "hollow_square"], "NullValueStyle": ["zero", "as_zero"]}}})");
    const CurvePlotProp plot = Loaded(stream).Plot;
    EXPECT_EQ(plot.CurveWidth, (std::vector<float>{0.5F, 0.1F, 2.0F}));
    EXPECT_EQ(plot.CurveDotWidth, std::vector<float>{1.0F});
    EXPECT_EQ(plot.CurveDashStyle, (std::vector<std::int32_t>{1, 0}));
    EXPECT_EQ(plot.CurveDotStyle, (std::vector<std::int32_t>{3, 0, 2}));
    EXPECT_EQ(plot.NullValueStyle, (std::vector<std::int32_t>{0, 1}));
    std::string told;
    for (const auto& problem : stream.Problems()) {
        if (problem.Kind == penlode::DiagnosticKind::Refused) {
            told += problem.Place + " " + problem.Found + " " + problem.Expected.substr(0, 14) + "\n";
        }
    }
    EXPECT_EQ(told, "C/CurvePlotProp/CurveWidth/1 \"thick\" a number\n"
                    "C/CurvePlotProp/CurveDashStyle/1 \"dash\" a whole number\n"
                    "C/CurvePlotProp/CurveDotStyle/1 \"3\" one of \"none\",\n"
                    "C/CurvePlotProp/CurveDotWidth/0 \"wide\" a number\n"
                    "C/CurvePlotProp/NullValueStyle/0 \"zero\" one of \"break\"\n");
}

TEST(CurvePropSerialize, PositionalOrderIsFixed) {
    CurveProp prop = SomeCurves();
    ListingStream list;
    CCurvePropSerialize::SerializeCurveProp(list, prop);
    // The looks of a record's texts come last, the plot's size before its lists.
    EXPECT_EQ(InOneLine(list.Text()),
              "int 0;text 水深;" + PositionalLook("0") +
                  "int 1;int 1;int 2;pen #FF000000 0.1 solid;int 1;int 1;pen #FF000000 0.1 solid;"
                  "int 0;pen #FF000000 0.1 solid;int 0;text m;" +
                  PositionalLook("0") + PositionalLook("0") +
                  "int 2;pen #FF000001 0.3 solid;int 3;int 3;int 0;int 4;int 5;int 6;"
                  "pen #FF000002 0.4 dot;int 7;text year;" +
                  PositionalLook("45") + PositionalLook("90") +
                  "int 0;colour #FFFAFAFA;int 8;pen #FF000003 0.5 solid;float 120.5;float 60.25;int 9;"
                  "list [东][][W];int 3;colour #FF4472C4;colour #80ED7D31;colour #FF000004;"
                  "int 3;float 0.25;float 0.5;float 0;int 3;int 0;int 4;int -2;int 3;int 0;int 10;int 1;"
                  "int 3;colour #FF000005;colour #FF000006;colour #FF000007;"
                  "int 3;float 1.5;float 2;float 3.25;int 3;int 1;int 0;int 1;"
                  "int 0;int 8;int 1;int 0;colour #FFFFFFFF;float 0;pen #FF000000 0.1 solid;font 宋体 4;");
}
