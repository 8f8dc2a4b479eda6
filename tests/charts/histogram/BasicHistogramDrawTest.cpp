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
    return ::Drawn(chart);
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
    ExpectDrawing("flat-bars", Drawn(prop, {{5}, {12.6}}, {"x", "y"}));
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
    ExpectDrawing("deep-stacked-bars", Drawn(prop, {{5, 10}, {10, 5}}));
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

TEST(BasicHistogramDraw, PrefixAndPostfixStandRoundWhatIsGeneratedFromValues) {
    HistogramProp prop = BarsAlone({"A"}, {});
    prop.VerAxis.ShowVerAxis = 1;
    prop.HorAxis.ShowHorAxis = 1;
    prop.HorAxis.ShowGroupName = 1;
    prop.HorAxis.ShowHorCaption = 1;
    prop.HorAxis.HorCaption = "year";
    prop.Plot.ShowComponentName = 1;
    prop.Plot.ShowComponentValue = 1;
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = "Sales";
    for (TextProperty* look : {&prop.VerAxis.VerAxisLabelTextProperty, &prop.HorAxis.GroupNameTextProperty,
                               &prop.HorAxis.HorCaptionTextProperty, &prop.Plot.ComponentInfoTextProperty,
                               &prop.Caption.CaptionTextProperty}) {
        look->Prefix = "<";
        look->Postfix = Narrow(L"亿");
    }
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.SetNaturalValueRange(0, 20, 10, 5);
    chart.SetComponentValue({{15}});
    chart.SetGroupName({"x"});
    chart.Layout();
    std::wstring texts;
    for (const ChartText& text : TextsOf(chart)) {
        texts += text.Text + L" ";
    }
    EXPECT_EQ(texts, L"<0亿 <10亿 <20亿 x year <A;15亿 Sales ");
    EXPECT_EQ(chart.GetLayout().VerLabelSizes[1].Width, 10.0F);
    EXPECT_EQ(chart.GetLayout().Plot.X, 11.0F) << "the labels take their room beside the plot";

    prop.Plot.ShowComponentName = prop.Plot.ShowComponentValue = 0;
    chart.SetHistogramProp(prop);
    EXPECT_EQ(Drawn(chart).find("A;15"), std::string::npos);
    EXPECT_EQ(TextsOf(chart).size(), 6U) << "a label without any part stays empty";
}

TEST(BasicHistogramDraw, WhatHasNoPlaceReachesNoEngine) {
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    HistogramProp prop = BarsAlone({"A", "B", "C", "D"}, std::vector<Color>(4, penlode::kBlack));
    prop.Plot.ShowComponentValue = 1;
    prop.Plot.LogarithmScale = 1;
    for (const std::int32_t style : {BarStyle::Flat, BarStyle::WithDepth}) {
        prop.Plot.PieStyle = style;
        // 0 and what is below have no place on a logarithmic axis.
        const std::string abreast = Drawn(prop, {{0, -5, 10, kInfinite}});
        EXPECT_EQ(Only(abreast, "FillRectangle "),
                  style == BarStyle::Flat ? "#FF000000 (40 15 17.5 15)\n" : "#FF000000 (40 20.05 17.5 15)\n");
        EXPECT_EQ(Only(abreast, "FillPolygon ").empty(), style == BarStyle::Flat);
        EXPECT_EQ(Only(abreast, "DrawString "), "\"10\" 宋体/4 (-2 -2.5 4 5.5) center-center #FF000000\n");
    }
    prop.Plot.PieStyle = BarStyle::Flat;
    prop.Plot.Juxtaposition = 0;
    prop.Plot.LogarithmScale = 0;
    const std::string stacked = Drawn(prop, {{10, kInfinite, 10}});
    EXPECT_EQ(Only(stacked, "FillRectangle "), "#FF000000 (5 15 70 15)\n#FF000000 (5 0 70 15)\n");
    EXPECT_EQ(stacked.find("inf"), std::string::npos);
}

TEST(BasicHistogramDraw, WithoutGroupsThereIsNothing) {
    CBasicHistogram chart;
    HistogramProp prop;
    prop.Caption.ShowCaption = prop.VerAxis.ShowVerCaption = prop.HorAxis.ShowHorCaption = 1;
    chart.SetHistogramProp(prop);
    EXPECT_EQ(Drawn(chart), "") << "not laid out yet";
    chart.Layout();
    EXPECT_EQ(Drawn(chart), "");
    EXPECT_TRUE(TextsOf(chart).empty());
}

TEST(BasicHistogramDraw, NamesThatChangedAreDrawnIfThereAreAsManyAsGroups) {
    HistogramProp prop = BarsAlone({}, {});
    prop.HorAxis.ShowHorAxis = 1;
    prop.HorAxis.ShowGroupName = 1;
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.SetComponentValue({{1}, {2}});
    chart.SetGroupName({"a", "b"});
    chart.Layout();
    chart.SetGroupName({"x"});
    EXPECT_EQ(Only(Brief(Drawn(chart)), "at "), "");
    EXPECT_TRUE(TextsOf(chart).empty());
    chart.SetGroupName({"x", "y"});
    EXPECT_EQ(TextsOf(chart).size(), 2U);
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
    const std::string drawing = Drawn(chart);
    EXPECT_EQ(std::count(drawing.begin(), drawing.end(), '\n'), 1);
    chart.Draw(nullptr);
}
