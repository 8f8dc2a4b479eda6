#include "charts/curve/BasicCurve.h"
#include "charts/pie/BasicHalfPieHalfPie.h"
#include "charts/pie/BasicHalfPieHistogram.h"
#include "charts/pie/BasicPie.h"
#include "foundation/TextPropertyOperation.h"
#include "support/Drawings.h"
#include "support/Rects.h"
#include "support/SomeRecords.h"
#include "support/Texts.h"

#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

/// Where each text of a drawing stands, and what it says.
std::string TextsIn(const std::string& drawing) {
    return Only(Brief(drawing), "at ") + Only(Brief(drawing), "DrawString ");
}

template <class Chart> void ExpectTextsAsDrawn(const Chart& chart, const std::string& name) {
    penlode::CRecordingEngine engine;
    for (const ChartText& text : TextsOf(chart)) {
        CTextPropertyOperation::Draw(engine, text);
    }
    EXPECT_NE(engine.Text(), "") << name;
    EXPECT_EQ(TextsIn(Drawn(chart)), TextsIn(engine.Text())) << name;
}

HistogramProp Bars(std::int32_t style, std::int32_t juxtaposition, std::int32_t logarithm) {
    HistogramProp prop = SomeHistogram();
    prop.VerAxis.ShowVerAxisLabel = 1;
    prop.Plot.PieStyle = style;
    prop.Plot.Juxtaposition = juxtaposition;
    prop.Plot.LogarithmScale = logarithm;
    return prop;
}

CBasicHistogram LaidOut(const HistogramProp& prop) {
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.InitializeValueRange(50);
    chart.SetComponentValue({{1, 20, -3}, {kNan, 5}, {0, 7, 8, 9}});
    chart.SetGroupName({"a", Narrow(L"二"), ""});
    chart.SetLocation({30, 40});
    chart.Layout();
    return chart;
}

CBasicCurve LaidOut(const CurveProp& prop) {
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.InitializeValueRange(50);
    chart.SetCurveData({{1, kCurveNull, 20, kNan, 3}, {5, 6}, {7}}, {{0, 1, 2, 3, 4}, {0, 4}, {2}});
    chart.SetHorAxisLabel({"a", "b", "c", "d", "e", "f"});
    chart.SetLocation({-30, 40});
    chart.Layout();
    return chart;
}

CurveProp Curves() {
    CurveProp prop = SomeCurves();
    prop.Caption.ShowCaption = 1;
    prop.VerAxis.ShowVerCaption = 1;
    prop.HorAxis.ShowLabel = 1;
    prop.Legend.ShowLegend = 1;
    return prop;
}

CBasicPie LaidOut(const PieProp& prop) {
    CBasicPie pie;
    pie.SetPieProp(prop);
    pie.SetComponentValue({40, 0, 25, 35});
    pie.SetLocation({50, 60});
    pie.SetChildOffset({{1, 2}, {3, 4}}, {{5, 6}});
    pie.Layout();
    return pie;
}

CBasicHalfPieHalfPie LaidOut(const HalfPieHalfPieProp& prop) {
    CBasicHalfPieHalfPie chart;
    chart.SetHalfPieHalfPieProp(prop);
    chart.SetComponentValue({1, 2}, {3, 4, 5});
    chart.SetLocation({50, 60});
    chart.Layout();
    return chart;
}

CBasicHalfPieHistogram LaidOut(const HalfPieHistogramProp& prop) {
    CBasicHalfPieHistogram chart;
    chart.SetHalfPieHistogramProp(prop);
    chart.SetComponentValue({1, 2}, {{10, 20}, {30}}, 30);
    chart.SetLocation({50, 60});
    chart.Layout();
    return chart;
}

/// What a pie's shapes are drawn as.
std::string DrawnByHand(const PieShapes& shapes) {
    penlode::CRecordingEngine engine;
    for (const PieSlice& slice : shapes.Slices) {
        if (slice.Fill) {
            const penlode::SolidBrush brush{*slice.Fill};
            engine.FillPie(&brush, shapes.Face, slice.StartAngle, slice.SweepAngle);
        }
        for (const PieWall& wall : slice.FrontWalls()) {
            const penlode::SolidBrush brush{penlode::Shaded(*slice.Fill, 60)};
            penlode::GraphicsPath path;
            path.AddArc(shapes.Face, wall.From, wall.To - wall.From);
            path.AddArc(penlode::Translated(shapes.Face, {0, shapes.Depth}), wall.To, wall.From - wall.To);
            engine.FillPath(&brush, &path);
        }
        if (shapes.Outline != nullptr) {
            engine.DrawPie(shapes.Outline, shapes.Face, slice.StartAngle, slice.SweepAngle);
        }
    }
    return engine.Text();
}

} // namespace

TEST(WhatIsDrawn, EveryTextOfEveryChartIsListedInOrder) {
    for (const std::int32_t style : {BarStyle::Flat, BarStyle::WithDepth}) {
        for (const std::int32_t juxtaposition : {0, 1}) {
            for (const std::int32_t logarithm : {0, 1}) {
                ExpectTextsAsDrawn(LaidOut(Bars(style, juxtaposition, logarithm)), "bars");
            }
        }
        PieProp pie = SomePie();
        pie.Basic.PieStyle = style;
        pie.Label.ShowValueLabel = 1;
        ExpectTextsAsDrawn(LaidOut(pie), "pie");
    }
    ExpectTextsAsDrawn(LaidOut(Curves()), "curves");
    HalfPieProp lower = SomeHalf();
    HalfPieProp upper = SomeHalf();
    upper.Basic.WhichPart = HalfPiePart::Upper;
    upper.Label.PieLabelTextProperty.Angle = 30;
    upper.Label.PieLabelTextProperty.Font = nullptr;
    ExpectTextsAsDrawn(LaidOut(HalfPieHalfPieProp{upper, lower}), "half pies");
    ExpectTextsAsDrawn(LaidOut(HalfPieHistogramProp{Bars(0, 0, 0), lower}), "bars on a half pie");
}

TEST(WhatIsDrawn, AStaleLayoutIsListedAsItIsDrawn) {
    CBasicHistogram bars = LaidOut(Bars(0, 1, 0));
    HistogramProp fewer = Bars(1, 0, 0);
    fewer.Plot.ComponentName = {"new name"};
    fewer.HorAxis.ShowHorCaption = 0;
    bars.SetHistogramProp(fewer);
    bars.SetComponentValue({{777}, {8, 9}});
    bars.SetGroupName({"x"});
    ExpectTextsAsDrawn(bars, "bars");
    EXPECT_EQ(bars.GetShapes().Bars.size(), 1U) << "8 was no number when the bars were laid out";

    CBasicCurve curves = LaidOut(Curves());
    CurveProp renamed = Curves();
    renamed.Plot.CurveName = {"only"};
    renamed.HorAxis.LabelStep = 2;
    curves.SetCurveProp(renamed);
    curves.SetHorAxisLabel({"one", "two", "three"});
    ExpectTextsAsDrawn(curves, "curves");
    EXPECT_EQ(curves.GetShapes().size(), 1U);

    CBasicPie pie = LaidOut(SomePie());
    pie.SetComponentValue({1});
    ExpectTextsAsDrawn(pie, "pie");
    EXPECT_EQ(pie.GetShapes().Slices.size(), 1U);
}

TEST(WhatIsDrawn, TextsSayWhatTheyBelongTo) {
    const std::vector<ChartText> texts = TextsOf(LaidOut(HalfPieHistogramProp{Bars(0, 1, 0), SomeHalf()}));
    std::vector<TextOwner> owners;
    for (const ChartText& text : texts) {
        owners.push_back(text.Owner);
    }
    EXPECT_EQ(owners, (std::vector<TextOwner>{{TextRole::SliceLabel, 0, 0, 0},
                                              {TextRole::SliceLabel, 1, 0, 0},
                                              {TextRole::BarLabel, 0, 0, 1},
                                              {TextRole::BarLabel, 0, 1, 1},
                                              {TextRole::BarLabel, 1, 0, 1},
                                              {TextRole::LegendName, 0, 0, 1},
                                              {TextRole::LegendName, 1, 0, 1},
                                              {TextRole::LegendName, 2, 0, 1}}));
}

TEST(WhatIsDrawn, EverySliceIsListedWithItsWalls) {
    for (const std::int32_t style : {PieStyle::Flat, PieStyle::WithDepth, 2}) {
        PieProp prop = SomePie();
        prop.Basic.PieStyle = style;
        prop.Basic.DrawSepLine = 1;
        prop.Basic.StartAngle = 100;
        const CBasicPie pie = LaidOut(prop);
        const std::string slices = DrawnByHand(pie.GetShapes());
        EXPECT_EQ(Drawn(pie).substr(0, slices.size()), slices);
        EXPECT_EQ(pie.GetShapes().Slices.size(), style == 2 ? 0U : 4U);
    }
    const CBasicHalfPieHalfPie halves = LaidOut(HalfPieHalfPieProp{SomeHalf(), SomeHalf()});
    const std::string first = DrawnByHand(halves.GetShapes().First);
    EXPECT_EQ(Drawn(halves).substr(0, first.size()), first);
    EXPECT_NE(Drawn(halves).find(DrawnByHand(halves.GetShapes().Second)), std::string::npos);
}

TEST(WhatIsDrawn, EveryBarIsListed) {
    for (const std::int32_t style : {BarStyle::Flat, BarStyle::WithDepth}) {
        HistogramProp prop = Bars(style, 1, 0);
        prop.VerAxis.ShowHorMinorGrid = 0;
        prop.Legend.ShowLegend = 0;
        const CBasicHistogram chart = LaidOut(prop);
        const BarShapes shapes = chart.GetShapes();
        penlode::CRecordingEngine byHand;
        for (const BarShape& bar : shapes.Bars) {
            EXPECT_EQ(bar.Fill, prop.Plot.ComponentColor[bar.Component]);
            const penlode::SolidBrush brush{bar.Fill};
            byHand.FillRectangle(&brush, bar.Front.X, bar.Front.Y, bar.Front.Width, bar.Front.Height);
        }
        EXPECT_EQ(shapes.Bars.size(), 5U) << "two colours a group, and what is no number has no place";
        EXPECT_EQ(Only(Drawn(chart), "FillRectangle "), Only(byHand.Text(), "FillRectangle "));
        const float width = chart.GetLayout().ComponentWidth;
        EXPECT_FLOAT_EQ(shapes.Depth.X, style == BarStyle::Flat ? 0.0F : width * 0.5F);
        EXPECT_FLOAT_EQ(shapes.Depth.Y, style == BarStyle::Flat ? 0.0F : width * -0.5F * 0.57735027F);
    }
}

TEST(WhatIsDrawn, CurvesAreLinesOfTheLayoutsOwnPoints) {
    CurveProp prop = Curves();
    prop.Plot.LogarithmScale = 0;
    prop.Plot.NullValueStyle = {CurveNullValueStyle::Break};
    prop.Legend.ShowLegend = 0;
    const CBasicCurve chart = LaidOut(prop);
    const std::vector<CurveShape> shapes = chart.GetShapes();
    ASSERT_EQ(shapes.size(), 3U);
    penlode::CRecordingEngine byHand;
    for (const CurveShape& shape : shapes) {
        penlode::Pen pen(shape.Style.LineColor, shape.Style.Width);
        pen.SetDashStyle(static_cast<penlode::DashStyle>(shape.Style.Dash));
        for (const std::span<const PointF>& line : shape.Lines) {
            byHand.DrawLines(&pen, line.data(), static_cast<std::int32_t>(line.size()));
        }
    }
    EXPECT_EQ(Only(Drawn(chart), "DrawLines "), Only(byHand.Text(), "DrawLines "));
    const std::vector<PointF>& points = chart.GetLayout().Curves[0].Points();
    ASSERT_EQ(shapes[0].Lines.size(), 3U) << "a null and a value without a place part them";
    EXPECT_EQ(shapes[0].Lines[1].data(), points.data() + 2);
    EXPECT_EQ(shapes[0].Trace, &chart.GetLayout().Curves[0]);
}

// Text sizes here: 2 mm a character, 5 mm a line.
TEST(InkExtent, HoldsTheTextsThatReachOut) {
    HistogramProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    prop.Plot.GroupDistane = 0;
    prop.Plot.ComponentName = {"eight mm"};
    prop.Plot.ShowComponentName = 1;
    prop.Plot.Juxtaposition = 0;
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.SetNaturalValueRange(0, 10, 10, 5);
    chart.SetComponentValue({{10}});
    chart.Layout();
    EXPECT_EQ(chart.GetPositionAll(), (RectF{0, 0, 80, 30}));
    EXPECT_EQ(chart.InkExtent(), (RectF{0, 0, 96, 30})) << "beside the bar, at half its height";

    prop.Plot.Juxtaposition = 1;
    chart.SetHistogramProp(prop);
    // Above the bar; a text stands a quarter of a millimetre below the middle of its box.
    EXPECT_EQ(chart.InkExtent(), (RectF{0, -4.75, 80, 34.75}));
    chart.SetNaturalValueRange(0, 12, 10, 5);
    chart.Layout();
    EXPECT_EQ(chart.GetPositionAll(), chart.InkExtent()) << "within the plot";
    chart.SetComponentValue({{18}});
    chart.Layout();
    EXPECT_EQ(chart.InkExtent().Y, 0.0F) << "too far away to belong to the chart";
    prop.Plot.ComponentInfoTextProperty.Font = nullptr;
    chart.SetHistogramProp(prop);
    chart.SetComponentValue({{10}});
    chart.SetNaturalValueRange(0, 10, 10, 5);
    chart.Layout();
    EXPECT_EQ(chart.InkExtent(), chart.GetPositionAll()) << "cannot be seen";
}

TEST(InkExtent, CountsWhatIsNeitherNegligibleNorFarOnEverySide) {
    const RectF whole{0, 0, 100, 100};
    const penlode::Font font;
    ChartText text;
    text.Text = L"10 mm";
    text.Font = &font;
    text.Size = {10, 10};
    const auto counts = [&](float x, float y) {
        text.Layout = {x, y, 10, 10};
        const RectF extent = WithText(whole, text, whole);
        EXPECT_TRUE(extent == whole || extent == penlode::Union(whole, text.Layout));
        return extent != whole;
    };
    for (const float within : {-1.0F, 50.0F, 91.0F}) {
        EXPECT_FALSE(counts(within, 50) || counts(50, within)) << within;
    }
    for (const float out : {-19.5F, -1.5F, 91.5F, 109.5F}) {
        EXPECT_TRUE(counts(out, 50) && counts(50, out)) << out;
    }
    for (const float away : {-20.0F, 110.0F}) {
        text.Owner.Role = TextRole::HorCaption;
        EXPECT_TRUE(counts(away, 50) && counts(50, away)) << "stands where the layout put it: " << away;
        text.Owner.Role = TextRole::BarLabel;
        EXPECT_FALSE(counts(away, 50) || counts(50, away)) << "stands at a value: " << away;
    }
}

TEST(InkExtent, HoldsTheCaptionBelowDeepBarsAndWideNames) {
    HistogramProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorCaption = 1;
    prop.HorAxis.HorCaption = "year";
    prop.HorAxis.ShowGroupName = 1;
    prop.Plot.PieStyle = BarStyle::WithDepth;
    prop.Plot.ComponentName = {"A"};
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.SetComponentValue({{10}});
    chart.SetGroupName({std::string(60, 'w')});
    chart.Layout();
    const RectF caption = chart.GetLayout().HorCaption;
    ASSERT_GT(caption.Y, chart.GetPositionAll().Bottom() + 10.0F) << "twice the depth of a wide bar";
    const RectF ink = chart.InkExtent();
    EXPECT_NEAR(ink.Bottom(), caption.Bottom(), 0.3) << "a text stands a little low in its box";
    EXPECT_EQ(ink.X, chart.GetLayout().GroupNameRects[0].X) << "left of the plot";
}

TEST(InkExtent, OfATurnedTextIsTheUprightBoxRoundIt) {
    TextProperty property;
    property.Angle = 90;
    std::vector<ChartText> texts;
    CTextPropertyOperation::Visit([&texts](ChartText&& text) { texts.push_back(text); }, {}, "long", property,
                                  {100, 50});
    CTextPropertyOperation::Visit([&texts](ChartText&& text) { texts.push_back(text); }, {}, "nowhere",
                                  property, {std::numeric_limits<float>::infinity(), 50});
    ASSERT_EQ(texts.size(), 1U);
    ExpectNear(texts[0].Box(), {97.75, 46, 5, 8});
}

/// What a host takes out of a chart makes the same chart again, as an undo does.
TEST(ChartGetters, GiveBackAllThatWasSet) {
    const CBasicHalfPieHistogram bars = LaidOut(HalfPieHistogramProp{Bars(1, 1, 0), SomeHalf()});
    CBasicHalfPieHistogram barsAgain;
    barsAgain.SetHalfPieHistogramProp(bars.GetHalfPieHistogramProp());
    barsAgain.SetComponentValue(bars.GetHalfPieValue(), bars.GetHistogramValue(), bars.GetLargestValue());
    barsAgain.SetLocation(bars.GetLocation());
    barsAgain.Layout();
    EXPECT_EQ(Drawn(barsAgain), Drawn(bars));

    const CBasicHalfPieHalfPie halves = LaidOut(HalfPieHalfPieProp{SomeHalf(), SomeHalf()});
    EXPECT_EQ(halves.GetFirstComponentValue(), (std::vector<double>{1, 2}));
    EXPECT_EQ(halves.GetSecondComponentValue(), (std::vector<double>{3, 4, 5}));
    EXPECT_EQ(LaidOut(SomePie()).GetComponentValue(), (std::vector<double>{40, 0, 25, 35}));

    const CBasicHistogram histogram = LaidOut(Bars(0, 0, 0));
    EXPECT_EQ(histogram.GetComponentValue()[2], (std::vector<double>{0, 7, 8, 9}));
    EXPECT_EQ(histogram.GetGroupName(), (std::vector<std::string>{"a", Narrow(L"二"), ""}));

    const CBasicCurve curves = LaidOut(Curves());
    EXPECT_EQ(curves.GetCurveValue()[1], (std::vector<double>{5, 6}));
    EXPECT_EQ(curves.GetCurveTime()[1], (std::vector<std::int32_t>{0, 4}));
    EXPECT_EQ(curves.GetHorAxisLabel().size(), 6U);
}

TEST(ChartCopies, ACompositeThatChangesLeavesItsOriginalAlone) {
    const CBasicHalfPieHalfPie halves = LaidOut(HalfPieHalfPieProp{SomeHalf(), SomeHalf()});
    const std::string drawnHalves = Drawn(halves);
    CBasicHalfPieHalfPie otherHalves = halves;
    otherHalves.SetComponentValue({5}, {6});
    otherHalves.SetChildOffset({{9, 9}, kHalvesSeparator, {9, 9}}, {});
    otherHalves.SetLocation({0, 0});
    otherHalves.Layout();
    EXPECT_NE(Drawn(otherHalves), drawnHalves);
    EXPECT_EQ(Drawn(halves), drawnHalves);
    CBasicHalfPieHalfPie laidOutAgain = halves;
    laidOutAgain.Layout();
    EXPECT_EQ(Drawn(laidOutAgain), drawnHalves);

    CBasicHalfPieHistogram bars = LaidOut(HalfPieHistogramProp{Bars(0, 1, 0), SomeHalf()});
    const std::string drawnBars = Drawn(bars);
    CBasicHalfPieHistogram otherBars = bars;
    HalfPieHistogramProp logarithmic = otherBars.GetHalfPieHistogramProp();
    logarithmic.Histogram.Plot.LogarithmScale = 1;
    otherBars.SetHalfPieHistogramProp(logarithmic);
    otherBars.SetComponentValue({7}, {{5}}, 1000);
    otherBars.Layout();
    EXPECT_NE(Drawn(otherBars), drawnBars);
    bars.Layout();
    EXPECT_EQ(Drawn(bars), drawnBars) << "another scale is another axis";
}
