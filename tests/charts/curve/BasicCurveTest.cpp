#include "charts/curve/BasicCurve.h"

#include "penlode/recording/RecordingEngine.h"
#include "support/Drawings.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

// Text sizes here: 2 mm a character, 5 mm a line.

namespace {

using Values = std::vector<std::vector<double>>;
using Times = std::vector<std::vector<std::int32_t>>;
using Points = std::vector<PointF>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kNull = -9999999.0;

/// Over a range from 0 to 40, so that 4 of a value are 3 mm of a plot of 30 mm height.
CBasicCurve LaidOut(const CurveProp& prop, const Values& values, const Times& times,
                    const std::vector<std::string>& labels = {}) {
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.InitializeValueRange(37.0);
    chart.SetCurveData(values, times);
    chart.SetHorAxisLabel(labels);
    chart.SetLocation({100, 200});
    chart.Layout();
    return chart;
}

/// Everything round the plot, with texts of known sizes.
CurveProp WithAllTexts() {
    CurveProp prop;
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = "Deep";
    prop.VerAxis.ShowVerCaption = 1;
    prop.VerAxis.VerCaption = "m";
    prop.HorAxis.ShowHorCaption = 1;
    prop.HorAxis.HorCaption = "year";
    return prop;
}

/// The plot alone, at (0, 0).
CurveProp PlotAlone() {
    CurveProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    return prop;
}

CurveProp OneCurveAlone() {
    CurveProp prop = PlotAlone();
    prop.Plot.CurveName = {"curve"};
    return prop;
}

/// Where the points of one curve stand from the plot's left edge.
std::vector<float> Across(const Times& times, std::size_t curve = 0) {
    const CurveLayout layout =
        LaidOut(PlotAlone(), Values(times.size(), std::vector<double>(9)), times).GetLayout();
    std::vector<float> across;
    for (const PointF point : layout.Curves[curve].Points()) {
        across.push_back(point.X - layout.Plot.X);
    }
    return across;
}

} // namespace

TEST(BasicCurve, AWholeFigure) {
    const CBasicCurve chart = LaidOut(WithAllTexts(), {{10, 20, 40}, {0, -9999998.5, -9999998.0}},
                                      {{100, 150, 300}, {300, 100, 200}}, {"a", "bb", "c"});
    const CurveLayout& layout = chart.GetLayout();
    // Left of the plot: caption 2, labels 4, ticks 1. Above it 5; below it labels 5, caption 5, ticks 1.
    EXPECT_EQ(chart.GetPositionAll(), (RectF{100, 200, 87, 46}));
    EXPECT_EQ(layout.Plot, (RectF{107, 205, 80, 30}));
    EXPECT_EQ(layout.Caption, (RectF{143, 200, 8, 5}));
    EXPECT_EQ(layout.VerCaption, (RectF{100, 217.5, 2, 5}));
    EXPECT_EQ(layout.HorCaption, (RectF{143, 241, 8, 5}));
    EXPECT_EQ(layout.VerMajorTicks.size(), 5U);
    EXPECT_EQ(layout.VerMinorTicks.size(), 40U);
    EXPECT_EQ(layout.VerLabelRects[4], (RectF{102, 202.5, 4, 5}));
    EXPECT_EQ(layout.HorTicks, (Points{{107, 235}, {147, 235}, {187, 235}}));
    EXPECT_EQ(layout.HorLabelRects,
              (std::vector<RectF>{{106, 236, 2, 5}, {145, 236, 4, 5}, {186, 236, 2, 5}}));
    ASSERT_EQ(layout.Curves.size(), 2U);
    EXPECT_EQ(layout.Curves[0].Points(), (Points{{107, 227.5}, {127, 220}, {187, 205}}));
    EXPECT_FALSE(layout.Curves[0].HasNull());
    // Only what is below -9999998 is null, and stands at 0.
    EXPECT_EQ(layout.Curves[1].Points(), (Points{{187, 235}, {107, 235}, {147, 7500233.5F}}));
    EXPECT_EQ(layout.Curves[1].NullFlags(), (std::vector<bool>{false, true, false}));
    EXPECT_TRUE(layout.Curves[1].HasNull());
    EXPECT_TRUE(layout.LegendItemRects.empty());
}

TEST(BasicCurve, WhatIsOffTakesNoRoom) {
    CurveProp prop = WithAllTexts();
    const Values values{{10, 20}};
    const Times times{{0, 1}};
    const CurveLayout oneLabel = LaidOut(prop, values, times, {"a"}).GetLayout();
    EXPECT_EQ(oneLabel.Whole.Height, 41.0F);
    EXPECT_TRUE(oneLabel.HorTicks.empty() && oneLabel.HorLabelSizes.empty() &&
                oneLabel.HorLabelRects.empty());

    prop.HorAxis.ShowLabel = 0;
    prop.HorAxis.ScaleStyle = ScaleStyle::None;
    const CurveLayout noLabels = LaidOut(prop, values, times, {"a", "b"}).GetLayout();
    EXPECT_EQ(noLabels.Whole.Height, 40.0F);
    EXPECT_EQ(noLabels.HorTicks.size(), 2U);
    EXPECT_TRUE(noLabels.HorLabelRects.empty());

    prop.Caption.ShowCaption = 0;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    const CurveLayout bare = LaidOut(prop, values, times, {"a", "b"}).GetLayout();
    EXPECT_EQ(bare.Whole, (RectF{100, 200, 80, 30}));
    EXPECT_EQ(bare.VerCaption.Width + bare.HorCaption.Width, 0.0F);
    EXPECT_TRUE(bare.VerMajorTicks.empty() && bare.VerLabelRects.empty() && bare.HorLabelRects.empty());
}

TEST(BasicCurve, NoCurvesAreABarePoint) {
    CurveProp prop = WithAllTexts();
    prop.Legend.ShowLegend = 1;
    prop.Plot.CurveName = {"A"};
    CBasicCurve chart = LaidOut(prop, {{1, 2}}, {{1, 2}}, {"a", "b"});
    ASSERT_FALSE(chart.GetLayout().LegendItemRects.empty());
    chart.SetCurveData({}, {});
    chart.Layout();
    const CurveLayout& layout = chart.GetLayout();
    const RectF bare{100, 200, 0, 0};
    for (const RectF& rect :
         {chart.GetPositionAll(), layout.Plot, layout.Caption, layout.VerCaption, layout.HorCaption}) {
        EXPECT_EQ(rect, bare);
    }
    EXPECT_EQ(layout.HorCaptionSize, penlode::SizeF{});
    EXPECT_TRUE(layout.VerMajorTicks.empty() && layout.VerLabelTexts.empty() && layout.HorTicks.empty());
    EXPECT_TRUE(layout.HorLabelRects.empty() && layout.HorLabelSizes.empty());
    EXPECT_TRUE(layout.Curves.empty() && layout.LegendItemRects.empty());
}

TEST(BasicCurve, TheLegendPushesTheChartFromItsLocation) {
    CurveProp prop = WithAllTexts();
    prop.Plot.CurveName = {"A", "B"};
    CBasicCurve moved = LaidOut(prop, {{10, 20}}, {{0, 1}}, {"a", "b"});
    prop.Legend.ShowLegend = 1;
    const auto expectPushed = [&](std::int32_t position, PointF by, const RectF& whole) {
        prop.Legend.LegendPos = position;
        const CBasicCurve chart = LaidOut(prop, {{10, 20}}, {{0, 1}}, {"a", "b"});
        moved.SetLocation(PointF{100, 200} + by);
        moved.Layout();
        EXPECT_EQ(chart.GetPositionAll(), whole);
        EXPECT_EQ(Drawn(chart).substr(0, Drawn(moved).size()), Drawn(moved));
        return chart.GetLayout().LegendItemRects;
    };
    // An item: a sample of 10, a name of 2, 5 high; 2 off the chart.
    expectPushed(LegendPosition::RightCenter, {0, 0}, {100, 200, 101, 46});
    EXPECT_EQ(expectPushed(LegendPosition::LeftTop, {14, 0}, {100, 200, 101, 46}),
              (std::vector<RectF>{{100, 200, 12, 5}, {100, 205, 12, 5}}));
    expectPushed(LegendPosition::TopCenter, {0, 7}, {100, 200, 87, 53});
}

TEST(BasicCurve, TimesSpanThePlot) {
    using Floats = std::vector<float>;
    EXPECT_EQ(Across({{5, 1, 3}}), (Floats{80, 0, 40}));
    // The span is all curves', those included that have times alone or none at all.
    EXPECT_EQ(Across({{}, {10, 20}, {50}}, 1), (Floats{0, 20}));
    EXPECT_EQ(Across({{}, {10, 20}, {50}}, 0), Floats{});
    EXPECT_EQ(Across({{7, 7, 7}}), (Floats{0, 0, 0}));
    EXPECT_EQ(Across({{-3}}), Floats{0});
    const std::int32_t least = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(Across({{least, 0, std::numeric_limits<std::int32_t>::max()}}), (Floats{0, 40, 80}));

    const CurveLayout uneven = LaidOut(PlotAlone(), {{1, 2, 3}, {4}, {5}}, {{0, 10}, {20, 40}}).GetLayout();
    EXPECT_EQ(uneven.Curves[0].Points().size(), 2U);
    EXPECT_EQ(uneven.Curves[0].NullFlags().size(), 2U);
    EXPECT_EQ(uneven.Curves[0].Points()[1].X, 120.0F);
    EXPECT_TRUE(uneven.Curves[2].Points().empty());
}

TEST(BasicCurve, ALongCurveIsPlacedAsItsValuesAreOneByOne) {
    std::vector<double> values;
    std::vector<std::int32_t> times;
    for (std::int32_t i = 0; i < 1300; ++i) {
        values.push_back(40.0 * std::sin(i * 0.01));
        times.push_back(1299 - i);
    }
    for (const std::size_t null : {0U, 511U, 512U, 1299U}) {
        values[null] = kNull;
    }
    values[100] = kNan;
    CBasicCurve chart = LaidOut(PlotAlone(), {values}, {times});
    const CurveTrace curve = chart.GetLayout().Curves[0];
    ASSERT_EQ(curve.Points().size(), 1300U);
    for (std::size_t i = 0; i < curve.Points().size(); ++i) {
        const CurveTrace one =
            LaidOut(PlotAlone(), {{values[i]}, {}}, {{times[i]}, {0, 1299}}).GetLayout().Curves[0];
        EXPECT_EQ(curve.Points()[i].X, one.Points()[0].X) << i;
        EXPECT_TRUE(i == 100 || curve.Points()[i].Y == one.Points()[0].Y) << i;
        EXPECT_EQ(curve.NullFlags()[i], values[i] == kNull) << i;
    }
    EXPECT_TRUE(std::isnan(curve.Points()[100].Y));
    EXPECT_TRUE(curve.HasNull());

    // Nothing of a layout is left in the next one, whether that is shorter or longer.
    for (const std::size_t count : {1000U, 3U, 2000U}) {
        chart.SetCurveData({std::vector<double>(count, 20)}, {std::vector<std::int32_t>(count, 5)});
        chart.Layout();
        const CurveTrace& next = chart.GetLayout().Curves[0];
        EXPECT_EQ(next.Points(), Points(count, {100, 215}));
        EXPECT_EQ(next.NullFlags(), std::vector<bool>(count));
        EXPECT_FALSE(next.HasNull());
    }
}

TEST(BasicCurve, SettersLeaveALayoutAsItIs) {
    CBasicCurve chart = LaidOut(OneCurveAlone(), {{0, 10, 20, kNull}}, {{0, 1, 2, 3}});
    const CBasicCurve before = chart;
    const std::string drawn = Drawn(before);
    chart.SetCurveData({{50, 60}}, {{7, 9}});
    chart.SetNaturalValueRange(0, 1000, 100, 10);
    EXPECT_EQ(Drawn(chart), drawn);
    EXPECT_EQ(chart.GetLayout().Curves[0].Points(), before.GetLayout().Curves[0].Points());
    chart.Layout();
    EXPECT_NE(Drawn(chart), drawn);
}

TEST(BasicCurve, ListsOfOthersAreReadWhereTheyStand) {
    const std::vector<double> values{0, 10, 0.5, kNull, 40};
    const std::vector<float> floats{0.0F, 10.0F, 0.5F, -9999999.0F, 40.0F};
    const std::vector<std::int32_t> times{-3, 0, 1, 2, 7};
    const std::vector<std::int64_t> wide(times.begin(), times.end());
    const std::vector<double> decimals(times.begin(), times.end());
    const CBasicCurve handed = LaidOut(OneCurveAlone(), {values}, {times});
    std::vector<CurveDataView> views;
    for (const CurveValues& v : {CurveValues(values), CurveValues(floats)}) {
        for (const CurveTimes& t : {CurveTimes(times), CurveTimes(wide), CurveTimes(decimals)}) {
            views.push_back({v, t});
        }
    }
    CBasicCurve chart = handed;
    for (const CurveDataView& view : views) {
        chart.SetCurveDataView({view});
        chart.Layout();
        EXPECT_EQ(Drawn(chart), Drawn(handed));
        EXPECT_TRUE(chart.GetCurveValue().empty());
    }
    // All six on one axis, whose times are not all whole.
    CurveProp six = PlotAlone();
    six.Plot.CurveName = std::vector<std::string>(views.size());
    chart.SetCurveProp(six);
    chart.SetCurveDataView(views);
    chart.Layout();
    for (const CurveTrace& curve : chart.GetLayout().Curves) {
        EXPECT_EQ(curve.Points(), handed.GetLayout().Curves[0].Points());
    }
}

TEST(BasicCurve, NanosecondsAreToldApartAndTimesThatAreNoneHaveNoPlace) {
    constexpr std::int64_t kThen = 1764000000000000000;
    const std::vector<double> values{1, 2, 3};
    const std::vector<std::int64_t> moments{kThen, kThen + 1, kThen + 4};
    CBasicCurve chart = LaidOut(PlotAlone(), {{1}}, {{1}});
    chart.SetCurveDataView({{std::span(values), std::span(moments)}});
    chart.Layout();
    const penlode::RectF plot = chart.GetLayout().Plot;
    EXPECT_EQ(chart.GetLayout().Curves[0].Points()[1].X, plot.X + plot.Width * 0.25F);

    const std::vector<double> odd{kNan, 2.5, HUGE_VAL};
    chart.SetCurveDataView({{std::span(values), std::span(odd)}});
    chart.Layout();
    EXPECT_EQ(chart.GetLayout().Curves[0].Points()[1].X, plot.X);
    EXPECT_FALSE(std::isfinite(chart.GetLayout().Curves[0].Points()[0].X));
    EXPECT_TRUE(chart.DataColumns(penlode::CRecordingEngine()).empty());
}

TEST(BasicCurve, TheAxisIsReplacedOnlyWithItsScaleAndSharedByCopies) {
    CurveProp prop;
    CBasicCurve chart;
    EXPECT_TRUE(chart.SetCurveProp(prop));
    chart.SetNaturalValueRange(0, 60, 20, 5);
    prop.Plot.PlotHeight = 60;
    EXPECT_FALSE(chart.SetCurveProp(prop));
    chart.SetCurveData({{60}}, {{0}});
    chart.Layout();
    const CurveLayout& layout = chart.GetLayout();
    EXPECT_EQ(layout.Curves[0].Points()[0].Y, layout.Plot.Bottom() - 30); // the axis's length of old

    CBasicCurve copy = chart;
    copy.SetNaturalValueRange(0, 120, 20, 5);
    chart.Layout();
    EXPECT_EQ(layout.Curves[0].Points()[0].Y, layout.Plot.Bottom() - 15);

    prop.Plot.LogarithmScale = 2;
    EXPECT_TRUE(chart.SetCurveProp(prop));
    double min = 0;
    double max = 0;
    chart.GetLogarithmValueRange(min, max);
    EXPECT_EQ(min, -1.0);
    EXPECT_EQ(max, -1.0);
    chart.Layout();
    EXPECT_TRUE(layout.VerMajorTicks.empty());
    EXPECT_FALSE(std::isfinite(layout.Curves[0].Points()[0].Y)) << "an axis without a range";
    chart.SetLogarithmValueRange(1, 100);
    chart.SetCurveData({{10, kNull}}, {{0, 1}});
    chart.Layout();
    EXPECT_EQ(layout.Curves[0].Points()[0].Y, layout.Plot.Bottom() - 30); // half of 60
    EXPECT_FALSE(std::isfinite(layout.Curves[0].Points()[1].Y)) << "0 has no logarithm";
    chart.GetLogarithmValueRange(min, max);
    EXPECT_EQ(max, 100.0);
    double step = 0;
    copy.GetNaturalValueRange(min, max, step, step);
    EXPECT_EQ(max, 120.0);
}

TEST(BasicCurve, LabelsStandAtTheirTimes) {
    CBasicCurve chart;
    chart.SetCurveProp(PlotAlone());
    const auto placed = [&chart] {
        chart.Layout();
        std::vector<float> across;
        for (const PointF tick : chart.GetLayout().HorTicks) {
            across.push_back(tick.X);
        }
        return across;
    };
    chart.SetCurveData({{1, 2, 3}}, {{0, 10, 80}});
    chart.SetHorAxisLabel({"late", "early", "never", "without a time"});
    chart.SetHorAxisLabelTimes({70, 20, 81});
    EXPECT_EQ(placed().size(), 4U) << "without options they are spread";
    ChartOptions options;
    options.TimeLabels = TimeLabels::AtTimes;
    chart.SetOptions(options);
    EXPECT_EQ(placed(), (std::vector<float>{20, 70}));
    EXPECT_EQ(chart.GetLayout().HorLabelTexts, (std::vector<std::string>{"early", "late"}));
    chart.SetHorAxisLabelTimes({});
    EXPECT_EQ(placed().size(), 4U) << "there are no times";
    options.TimeUnit = TimeUnit::Days;
    chart.SetOptions(options);
    EXPECT_EQ(placed(), (std::vector<float>{0, 31, 59})) << "months from 1 January 1970 on";
    chart.SetCurveData({{1}}, {{}});
    EXPECT_TRUE(placed().empty());
}

TEST(BasicCurve, ItsOwnLabelsAreDrawnAllAndMeasured) {
    CurveProp prop;
    prop.HorAxis.LabelStep = 2;
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.InitializeValueRange(9);
    chart.SetCurveData({{1, 2, 3}}, {{0, 10, 80}});
    ChartOptions options;
    options.TimeLabels = TimeLabels::AtTimes;
    options.TimeUnit = TimeUnit::Days;
    chart.SetOptions(options);
    chart.Layout();
    const CurveLayout& layout = chart.GetLayout();
    ASSERT_EQ(layout.HorLabelRects.size(), 3U);
    EXPECT_EQ(layout.HorLabelRects[0], (RectF{layout.Plot.X - 4, layout.Plot.Y + 31, 8, 10}))
        << "over a year";
    EXPECT_EQ(layout.HorLabelRects[1].X, layout.Plot.X + 31 - 3);
    std::size_t labels = 0;
    chart.VisitTexts(
        [&labels](const ChartText& text) { labels += text.Owner.Role == TextRole::HorAxisLabel ? 1 : 0; });
    EXPECT_EQ(labels, 3U);
}

TEST(BasicCurve, AirInsetsWhatStandsAtTimesByHalfAMarker) {
    CurveProp prop = PlotAlone();
    prop.Plot.CurveName = {"a"};
    prop.Plot.CurveDotStyle = {CurveDotStyle::SolidCircle, CurveDotStyle::SolidCircle};
    prop.Plot.CurveDotWidth = {4.0F, 60.0F};
    CBasicCurve chart;
    chart.SetCurveData({{1, 2}, {1, 2}}, {{0, 1}, {0, 1}});
    chart.SetHorAxisLabel({"x", "y"});
    ChartOptions options;
    options.Air = ChartAir::ThirdOfLine;
    chart.SetOptions(options);
    const auto ends = [&] {
        chart.SetCurveProp(prop);
        chart.Layout();
        const CurveLayout& layout = chart.GetLayout();
        const std::vector<PointF>& points = layout.Curves[0].Points();
        EXPECT_EQ(layout.HorTicks[0].X, points[0].X);
        EXPECT_EQ(layout.HorTicks[1].X, points[1].X);
        return std::pair(points[0].X, points[1].X);
    };
    EXPECT_EQ(ends(), std::pair(2.0F, 78.0F)) << "the second is not drawn";
    prop.Plot.CurveName = {"a", "b"};
    EXPECT_EQ(ends(), std::pair(8.0F, 72.0F)) << "at most a tenth";
    prop.Plot.CurveDotStyle = {};
    EXPECT_EQ(ends(), std::pair(0.0F, 80.0F));
}
