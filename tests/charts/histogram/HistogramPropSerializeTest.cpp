#include "charts/histogram/HistogramPropSerialize.h"

#include "penlode/streams/JsonSerializeStream.h"
#include "support/ListingStream.h"
#include "support/Records.h"
#include "support/SomeRecords.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::CJsonSerializeStream;
using penlode::Color;

namespace {

HistogramProp Loaded(const char* json) {
    CJsonSerializeStream stream(json);
    HistogramProp prop = SomeHistogram();
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop, "H");
    return prop;
}

} // namespace

TEST(HistogramPropSerialize, KeyedAsADocument) {
    HistogramProp prop = SomeHistogram();
    CJsonSerializeStream stream;
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop, "property");
    EXPECT_EQ(WithoutLooks(stream.Text()), R"("property": {
"CaptionProp": {
"ShowCaption": "1",
"Caption": "发电量",
"CaptionTextProperty": {
"Angle": "1"
"HistogramVerAxisProp": {
"ShowVerAxis": "2",
"MajorScaleStyle": "cross",
"MinorScaleStyle": "inner",
"VerAxisPen": "#FF000001 0.3 solid",
"ShowVerAxisLabel": "0",
"VerAxisLabelTextProperty": {
"Angle": "2"
"ShowHorMajorGrid": "0",
"HorMajorGridPen": "#FF000002 0.4 dash",
"ShowHorMinorGrid": "3",
"HorMinorGridPen": "#FF000003 0.5 dot",
"ShowVerCaption": "4",
"VerCaption": "TWh",
"VerCaptionTextProperty": {
"Angle": "90"
"HistogramHorAxisProp": {
"ShowHorAxis": "5",
"ScaleStyle": "none",
"HorAxisPen": "#FF000004 0.6 solid",
"ShowGroupName": "6",
"GroupNameTextProperty": {
"Angle": "3"
"ShowVerGrid": "0",
"VerGridPen": "#FF000005 0.7 solid",
"ShowHorCaption": "7",
"HorCaption": "year",
"HorCaptionTextProperty": {
"Angle": "4"
"HistogramPlotProp": {
"ShowBackground": "0",
"PlotBackgroundColor": "#FFFAFAFA",
"ShowEdge": "8",
"EdgePen": "#FF000006 0.8 solid",
"ShowComponentName": "9",
"ShowComponentValue": "10",
"ConponentInfoInSingleRow": "0",
"ConponentInfoSeparator": "：",
"ComponentInfoTextProperty": {
"Angle": "5"
"ComponentName": [
"水|力",
"",
"wind"
"ComponentColor": [
"#FF4472C4",
"#80ED7D31"
"PlotWidth": "120.5",
"PlotHeight": "60.25",
"GroupDistane": "4.5",
"Juxtaposition": "0",
"PieStyle": "3D",
"LogarithmScale": "11"
"HistogramLegendProp": {
"ShowLegend": "12",
"LegendPos": "TopRight",
"ShowEdge": "1",
"ShowBackground": "0",
"BackgroundColor": "#FFFFFFFF",
"ItemDist": "0",
"PenEdge": "#FF000000 0.1 solid",
"Font": "宋体 4"
)");
}

TEST(HistogramPropSerialize, AnEmptyDocumentGivesExactlyTheLoadDefaults) {
    HistogramProp expected;
    expected.VerAxis.ShowVerAxis = 0;
    expected.VerAxis.ShowHorMinorGrid = 1;
    expected.VerAxis.ShowVerCaption = 1;
    expected.HorAxis.ShowGroupName = 1;
    expected.HorAxis.VerGridPen = penlode::Pen(penlode::kBlack, 0.0F);
    expected.HorAxis.ShowHorCaption = 1;
    expected.Plot.EdgePen = penlode::Pen(Color{0xFFDA8080}, 0.2F);
    expected.Plot.ShowComponentName = 1;
    expected.Plot.ShowComponentValue = 1;
    for (TextProperty* text :
         {&expected.Caption.CaptionTextProperty, &expected.VerAxis.VerAxisLabelTextProperty,
          &expected.VerAxis.VerCaptionTextProperty, &expected.HorAxis.GroupNameTextProperty,
          &expected.HorAxis.HorCaptionTextProperty, &expected.Plot.ComponentInfoTextProperty}) {
        text->BkColor = penlode::kBlack;
        text->DrawEdge = 1;
        text->DrawBackGround = 1;
    }
    EXPECT_EQ(Loaded("{}"), expected);
    EXPECT_EQ(Loaded(R"({"H": {"HistogramPlotProp": {"PieStyle": "4D"}, "HistogramVerAxisProp":
        {"MajorScaleStyle": "Outer", "VerAxisPen": "thick"}}})"),
              expected);
    EXPECT_EQ(Loaded(R"({"H": {"HistogramPlotProp": {"PieStyle": "3D"}}})").Plot.PieStyle,
              BarStyle::WithDepth);
}

TEST(HistogramPropSerialize, PositionalOrderIsFixed) {
    HistogramProp prop = SomeHistogram();
    ListingStream list;
    CHistogramPropSerialize::SerializeHistogramProp(list, prop);
    // The looks of a record's texts come last, in the group axis the tick style before the pen.
    EXPECT_EQ(InOneLine(list.Text()),
              "int 1;text 发电量;" + PositionalLook("1") +
                  "int 2;int 3;int 2;pen #FF000001 0.3 solid;int 0;int 0;pen #FF000002 0.4 dash;"
                  "int 3;pen #FF000003 0.5 dot;int 4;text TWh;" +
                  PositionalLook("2") + PositionalLook("90") +
                  "int 5;int 0;pen #FF000004 0.6 solid;int 6;int 0;pen #FF000005 0.7 solid;"
                  "int 7;text year;" +
                  PositionalLook("3") + PositionalLook("4") +
                  "int 0;colour #FFFAFAFA;int 8;pen #FF000006 0.8 solid;int 9;int 10;int 0;text ：;"
                  "float 120.5;float 60.25;float 4.5;int 0;int 1;int 11;" +
                  PositionalLook("5") + "list [水|力][][wind];int 2;colour #FF4472C4;colour #80ED7D31;" +
                  "int 12;int 8;int 1;int 0;colour #FFFFFFFF;float 0;pen #FF000000 0.1 solid;"
                  "font 宋体 4;");
}
