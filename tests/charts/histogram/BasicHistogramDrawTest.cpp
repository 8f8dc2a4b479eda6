#include "charts/histogram/BasicHistogram.h"
#include "support/Drawings.h"
#include "support/Texts.h"

#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using penlode::Color;

namespace {

using Groups = std::vector<std::vector<double>>;

/// No axes and no plot: bars alone.
HistogramProp BarsAlone(std::vector<std::string> names, std::vector<Color> colors) {
    HistogramProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    prop.Plot.ShowBackground = 0;
    prop.Plot.ShowEdge = 0;
    prop.Plot.ComponentName = std::move(names);
    prop.Plot.ComponentColor = std::move(colors);
    return prop;
}

std::string Drawn(const HistogramProp& prop, const Groups& groups,
                  const std::vector<std::string>& names = {}) {
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.SetNaturalValueRange(0, 20, 10, 5);
    chart.SetLogarithmValueRange(1, 100);
    chart.SetComponentValue(groups);
    chart.SetGroupName(names);
    chart.Layout();
    penlode::CRecordingEngine engine;
    chart.Draw(&engine);
    return engine.Text();
}

} // namespace

TEST(BasicHistogramDraw, AFlatChartWithAllGrids) {
    HistogramProp prop;
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = Narrow(L"销售");
    prop.VerAxis.ShowHorMinorGrid = 1;
    prop.VerAxis.HorMinorGridPen = penlode::Pen(Color{0xFFE0E0E0}, 0.1F, penlode::DashStyle::Dot);
    prop.VerAxis.HorMajorGridPen = penlode::Pen(Color{0xFFC0C0C0}, 0.2F);
    prop.VerAxis.MinorScaleStyle = ScaleStyle::Cross;
    prop.HorAxis.VerGridPen = penlode::Pen(Color{0xFFD0D0D0}, 0.1F);
    prop.HorAxis.ScaleStyle = ScaleStyle::Cross;
    prop.HorAxis.ShowGroupName = 1;
    prop.Plot.ComponentName = {"A"};
    prop.Plot.ComponentColor = {Color{0xFF4472C4}};
    prop.Plot.ShowComponentValue = 1;
    prop.Legend.ShowLegend = 1;
    EXPECT_EQ(Brief(Drawn(prop, {{5}, {12.6}}, {"x", "y"})), R"(FillRectangle #FFFFFFFF (5 5 80 30)
DrawRectangle #FF808080/0.2 (5 5 80 30)
DrawLine #FFE0E0E0/0.1/dot (5 35) (85 35)
DrawLine #FFE0E0E0/0.1/dot (5 27.5) (85 27.5)
DrawLine #FFE0E0E0/0.1/dot (5 20) (85 20)
DrawLine #FFE0E0E0/0.1/dot (5 12.5) (85 12.5)
DrawLine #FFC0C0C0/0.2 (5 35) (85 35)
DrawLine #FFC0C0C0/0.2 (5 20) (85 20)
DrawLine #FFC0C0C0/0.2 (5 5) (85 5)
DrawLine #FFD0D0D0/0.1 (45 35) (45 5)
DrawLine #FF000000/0.1 (5 5) (5 35)
DrawLine #FF000000/0.1 (5 35) (4 35)
DrawLine #FF000000/0.1 (5 20) (4 20)
DrawLine #FF000000/0.1 (5 5) (4 5)
DrawLine #FF000000/0.1 (4.75 35) (5.25 35)
DrawLine #FF000000/0.1 (4.75 27.5) (5.25 27.5)
DrawLine #FF000000/0.1 (4.75 20) (5.25 20)
DrawLine #FF000000/0.1 (4.75 12.5) (5.25 12.5)
at 3 35 turned 0: DrawString "0" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000
at 2 20 turned 0: DrawString "10" 宋体/4 (-2 -2.5 4 5.5) center-center #FF000000
at 2 5 turned 0: DrawString "20" 宋体/4 (-2 -2.5 4 5.5) center-center #FF000000
DrawLine #FF000000/0.1 (5 35) (85 35)
DrawLine #FF000000/0.1 (45 34.5) (45 35.5)
at 25 38.5 turned 0: DrawString "x" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000
at 65 38.5 turned 0: DrawString "y" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000
FillRectangle #FF4472C4 (10 27.5 30 7.5)
FillRectangle #FF4472C4 (50 16.1 30 18.9)
at 25 25 turned 0: DrawString "5" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000
at 65 13.6 turned 0: DrawString "13" 宋体/4 (-2 -2.5 4 5.5) center-center #FF000000
at 45 2.5 turned 0: DrawString "销售" 宋体/4 (-4 -2.5 8 5.5) center-center #FF000000
DrawRectangle #FF000000/0.1 (87 18 7 5)
FillRectangle #FF4472C4 (88 19 3 3)
DrawRectangle #FF000000/0.1 (88 19 3 3)
DrawString "A" 宋体/4 (92 18 2 5) center-center #FF000000
)");
}

TEST(BasicHistogramDraw, AStackedChartWithDepth) {
    HistogramProp prop;
    prop.VerAxis.ShowVerAxisLabel = 0;
    prop.VerAxis.MajorScaleStyle = ScaleStyle::None;
    prop.VerAxis.MinorScaleStyle = ScaleStyle::None;
    prop.VerAxis.ShowHorMinorGrid = 1;
    prop.VerAxis.HorMajorGridPen = penlode::Pen(Color{0xFFC0C0C0}, 0.2F);
    prop.VerAxis.HorMinorGridPen = penlode::Pen(Color{0xFFE0E0E0}, 0.1F);
    prop.HorAxis.VerGridPen = penlode::Pen(Color{0xFFD0D0D0}, 0.1F);
    prop.Plot.PieStyle = BarStyle::WithDepth;
    prop.Plot.Juxtaposition = 0;
    prop.Plot.PlotBackgroundColor = Color{0xFFFAFAFA};
    prop.Plot.ComponentName = {"A", "B"};
    prop.Plot.ComponentColor = {Color{0xFF4472C4}, Color{0x80506070}};
    prop.Plot.ShowComponentName = 1;
    EXPECT_EQ(Brief(Drawn(prop, {{5, 10}, {10, 5}})), R"(FillRectangle #FFFAFAFA (15 0 80 30)
FillPolygon #FFFAFAFA [4] (0 8.66) (0 38.66) (15 30) (15 0)
FillPolygon #FFFAFAFA [4] (0 38.66) (80 38.66) (95 30) (15 30)
DrawRectangle #FF808080/0.2 (15 0 80 30)
DrawLine #FF808080/0.2 (0 8.66) (15 0)
DrawLine #FF808080/0.2 (0 38.66) (15 30)
DrawLine #FF808080/0.2 (80 38.66) (95 30)
DrawLine #FFE0E0E0/0.1 (0 38.66) (15 30)
DrawLine #FFE0E0E0/0.1 (15 30) (95 30)
DrawLine #FFE0E0E0/0.1 (0 31.16) (15 22.5)
DrawLine #FFE0E0E0/0.1 (15 22.5) (95 22.5)
DrawLine #FFE0E0E0/0.1 (0 23.66) (15 15)
DrawLine #FFE0E0E0/0.1 (15 15) (95 15)
DrawLine #FFE0E0E0/0.1 (0 16.16) (15 7.5)
DrawLine #FFE0E0E0/0.1 (15 7.5) (95 7.5)
DrawLine #FFC0C0C0/0.2 (0 38.66) (15 30)
DrawLine #FFE0E0E0/0.1 (15 30) (95 30)
DrawLine #FFC0C0C0/0.2 (0 23.66) (15 15)
DrawLine #FFE0E0E0/0.1 (15 15) (95 15)
DrawLine #FFC0C0C0/0.2 (0 8.66) (15 0)
DrawLine #FFE0E0E0/0.1 (15 0) (95 0)
DrawLine #FFD0D0D0/0.1 (40 38.66) (55 30)
DrawLine #FFD0D0D0/0.1 (55 30) (55 0)
DrawLine #FF000000/0.1 (0 8.66) (0 38.66)
DrawLine #FF000000/0.1 (0 38.66) (80 38.66)
DrawLine #FF000000/0.1 (40 38.66) (40 39.66)
FillRectangle #FF4472C4 (5 31.16 30 7.5)
FillPolygon #FF083688 [4] (5 31.16) (35 31.16) (50 22.5) (20 22.5)
FillPolygon #FF000E60 [4] (35 31.16) (35 38.66) (50 30) (50 22.5)
FillRectangle #80506070 (5 16.16 30 15)
FillPolygon #FF142434 [4] (5 16.16) (35 16.16) (50 7.5) (20 7.5)
FillPolygon #FF00000C [4] (35 16.16) (35 31.16) (50 22.5) (50 7.5)
FillRectangle #FF4472C4 (45 23.66 30 15)
FillPolygon #FF083688 [4] (45 23.66) (75 23.66) (90 15) (60 15)
FillPolygon #FF000E60 [4] (75 23.66) (75 38.66) (90 30) (90 15)
FillRectangle #80506070 (45 16.16 30 7.5)
FillPolygon #FF142434 [4] (45 16.16) (75 16.16) (90 7.5) (60 7.5)
FillPolygon #FF00000C [4] (75 16.16) (75 23.66) (90 15) (90 7.5)
at 36 34.91 turned 0: DrawString "A" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000
at 36 23.66 turned 0: DrawString "B" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000
at 76 31.16 turned 0: DrawString "A" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000
at 76 19.91 turned 0: DrawString "B" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000
)");
}

TEST(BasicHistogramDraw, TicksByTheirStyle) {
    HistogramProp prop;
    prop.VerAxis.ShowVerAxisLabel = 0;
    prop.VerAxis.ShowHorMajorGrid = 0;
    prop.HorAxis.ShowVerGrid = 0;
    prop.Plot.ShowBackground = 0;
    prop.Plot.ShowEdge = 0;
    prop.VerAxis.MajorScaleStyle = ScaleStyle::None;
    prop.VerAxis.MinorScaleStyle = ScaleStyle::Inner;
    prop.HorAxis.ScaleStyle = ScaleStyle::Inner;
    EXPECT_EQ(Only(Drawn(prop, {{}, {}}), "DrawLine #FF000000/0.1 "),
              "(1 0) (1 30)\n(1 30) (1.5 30)\n(1 22.5) (1.5 22.5)\n(1 15) (1.5 15)\n(1 7.5) (1.5 7.5)\n"
              "(1 30) (81 30)\n(41 30) (41 29)\n");
    prop.VerAxis.MajorScaleStyle = ScaleStyle::Cross;
    prop.VerAxis.MinorScaleStyle = 4;
    prop.HorAxis.ScaleStyle = -1;
    EXPECT_EQ(Only(Drawn(prop, {{}, {}}), "DrawLine #FF000000/0.1 "),
              "(1 0) (1 30)\n(0.5 30) (1.5 30)\n(0.5 15) (1.5 15)\n(0.5 0) (1.5 0)\n(1 30) (81 30)\n");
}

TEST(BasicHistogramDraw, InformationOfTheBars) {
    HistogramProp prop = BarsAlone({"A", ""}, {});
    const auto texts = [&prop](double value) {
        const std::string drawing = Only(Drawn(prop, {{value, -value}}), "DrawString ");
        std::string all;
        for (std::size_t at = 0; (at = drawing.find('"', at)) != std::string::npos;) {
            const std::size_t end = drawing.find('"', at + 1);
            all += drawing.substr(at, end + 1 - at);
            at = end + 1;
        }
        return all;
    };
    EXPECT_EQ(texts(12.6), "");
    prop.Plot.ShowComponentName = 1;
    EXPECT_EQ(texts(12.6), "\"A\"");
    prop.Plot.ShowComponentValue = 5;
    EXPECT_EQ(texts(12.6), "\"A;13\"\";-13\"");
    prop.Plot.ConponentInfoInSingleRow = 0;
    EXPECT_EQ(texts(2.5), "\"A;\\n2\"\";\\n-2\"");
    prop.Plot.ShowComponentName = 0;
    EXPECT_EQ(texts(1e6), "\"1000000\"\"-1000000\"");
    EXPECT_EQ(texts(std::numeric_limits<double>::quiet_NaN()), "");
}

TEST(BasicHistogramDraw, LabelsStandOnBarsAndBesideSegments) {
    HistogramProp prop = BarsAlone({"A"}, {penlode::kBlack});
    prop.Plot.ShowComponentName = 1;
    prop.Plot.ComponentInfoTextProperty.Angle = 90;
    // The bar: x 5 to 75, 10 high up to y 15; the turned text: 5 wide, 2 high.
    EXPECT_EQ(Only(Drawn(prop, {{10}}), "TranslateTransform "), "40 14 prepend\n");
    prop.Plot.Juxtaposition = 0;
    EXPECT_EQ(Only(Drawn(prop, {{10}}), "TranslateTransform "), "77.5 22.5 prepend\n");
}

TEST(BasicHistogramDraw, WhatIsMissingIsNotDrawn) {
    HistogramProp prop = BarsAlone({"A", "B", "C"}, {penlode::kBlack, penlode::kWhite});
    EXPECT_EQ(Only(Drawn(prop, {{20}, {10, 10, 10}}), "FillRectangle "),
              "#FF000000 (5 0 10 30)\n#FF000000 (45 15 10 15)\n#FFFFFFFF (55 15 10 15)\n");
    prop.Plot.ShowComponentValue = 1;
    EXPECT_EQ(Drawn(BarsAlone({}, {penlode::kBlack}), {{1, 2}}), "");

    // Data that changed after the layout are not read past their end.
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.InitializeValueRange(10);
    chart.SetComponentValue({{1, 2, 3}, {4, 5, 6}});
    chart.Layout();
    chart.SetComponentValue({{1}});
    chart.SetGroupName({});
    chart.SetHistogramProp(BarsAlone({"A"}, {penlode::kBlack}));
    penlode::CRecordingEngine engine;
    chart.Draw(&engine);
    EXPECT_EQ(engine.Calls().size(), 1U);
    chart.Draw(nullptr);
}
