#include "charts/histogram/BasicHistogram.h"

#include "support/Drawings.h"
#include "support/Rects.h"
#include "support/Texts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

// Text sizes here: 2 mm a character, 4 mm a Chinese one, 5 mm a line.

namespace {

using Groups = std::vector<std::vector<double>>;

HistogramProp Named(std::vector<std::string> names) {
    HistogramProp prop;
    prop.Plot.ComponentName = std::move(names);
    prop.Plot.ComponentColor.assign(prop.Plot.ComponentName.size(), penlode::kBlack);
    return prop;
}

/// Over a range from 0 to 40, so that a value of 4 is 3 mm of a plot of 30 mm.
CBasicHistogram LaidOut(const HistogramProp& prop, const Groups& groups,
                        const std::vector<std::string>& names = {}) {
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.InitializeValueRange(37.0);
    chart.SetComponentValue(groups);
    chart.SetGroupName(names);
    chart.SetLocation({100, 200});
    chart.Layout();
    return chart;
}

/// Everything round the plot, with texts of known sizes.
HistogramProp WithAllTexts() {
    HistogramProp prop = Named({"A", "B"});
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = "Sales";
    prop.VerAxis.ShowVerCaption = 1;
    prop.VerAxis.VerCaption = "t";
    prop.HorAxis.ShowHorCaption = 1;
    prop.HorAxis.HorCaption = "year";
    prop.HorAxis.ShowGroupName = 1;
    return prop;
}

} // namespace

TEST(BasicHistogram, NoGroupsAreABarePoint) {
    HistogramProp prop = WithAllTexts();
    prop.Legend.ShowLegend = 1;
    CBasicHistogram chart = LaidOut(prop, {{1, 2}}, {"g"});
    chart.SetComponentValue({});
    chart.Layout();
    const HistogramLayout& layout = chart.GetLayout();
    const RectF bare{100, 200, 0, 0};
    EXPECT_EQ(chart.GetPositionAll(), bare);
    EXPECT_EQ(layout.Plot, bare);
    EXPECT_EQ(layout.Caption, bare);
    EXPECT_TRUE(layout.VerMajorTicks.empty() && layout.VerLabelTexts.empty() &&
                layout.GroupNameRects.empty());
    EXPECT_TRUE(layout.ComponentRects.empty() && layout.LegendItemRects.empty());
    EXPECT_EQ(layout.ComponentWidth, -1.0F);
}

TEST(BasicHistogram, AWholeFlatFigure) {
    const CBasicHistogram chart = LaidOut(WithAllTexts(), {{10, 20}, {30, 40}}, {"2023", Narrow(L"今年")});
    const HistogramLayout& layout = chart.GetLayout();
    // Left of the plot: caption 2, labels 4, ticks 1. Above it 5; below it names 5, caption 5, ticks 1.
    EXPECT_EQ(layout.Whole, (RectF{100, 200, 87, 46}));
    EXPECT_EQ(layout.Plot, (RectF{107, 205, 80, 30}));
    ExpectNear(layout.Caption, {142, 200, 10, 5});
    EXPECT_EQ(layout.VerCaption, (RectF{100, 217.5, 2, 5}));
    EXPECT_EQ(layout.HorCaption, (RectF{143, 241, 8, 5}));
    EXPECT_EQ(layout.VerMajorTicks.size(), 5U);
    EXPECT_EQ(layout.VerMajorTicks[1], (PointF{107, 227.5}));
    EXPECT_EQ(layout.VerMinorTicks.size(), 40U);
    EXPECT_EQ(layout.VerLabelRects[0], (RectF{104, 232.5, 2, 5}));
    EXPECT_EQ(layout.VerLabelRects[4], (RectF{102, 202.5, 4, 5}));
    EXPECT_EQ(layout.HorTicks, (std::vector<PointF>{{147, 235}}));
    EXPECT_EQ(layout.GroupNameRects, (std::vector<RectF>{{123, 236, 8, 5}, {163, 236, 8, 5}}));
    EXPECT_EQ(layout.ComponentWidth, 15.0F);
    EXPECT_EQ(layout.ComponentRects[0], (std::vector<RectF>{{112, 227.5, 15, 7.5}, {127, 220, 15, 15}}));
    EXPECT_EQ(layout.ComponentRects[1], (std::vector<RectF>{{152, 212.5, 15, 22.5}, {167, 205, 15, 30}}));
    EXPECT_TRUE(layout.LegendItemRects.empty());
}

TEST(BasicHistogram, DepthMovesThePlotDownAndItsCaptionsOnceMore) {
    HistogramProp prop = WithAllTexts();
    prop.Plot.PieStyle = BarStyle::WithDepth;
    prop.Plot.GroupDistane = 20;
    const HistogramLayout layout = LaidOut(prop, {{10, 20}, {30, 40}}, {"a", "b"}).GetLayout();
    ASSERT_EQ(layout.ComponentWidth, 10.0F);
    const float depth = 5 * std::tan(0.5235988F);
    ExpectNear(layout.Whole, {100, 200, 92, 46 + depth});
    ExpectNear(layout.Plot, {107, 205 + depth, 80, 30});
    ExpectNear(layout.Caption, {142, 200 + depth, 10, 5});
    ExpectNear(layout.VerCaption, {100, 217.5F + 2 * depth, 2, 5});
    ExpectNear(layout.HorCaption, {143, 241 + 2 * depth, 8, 5});
}

TEST(BasicHistogram, GroupsShareThePlotsWidth) {
    HistogramProp prop = Named({"A", "B", "C"});
    const HistogramLayout one = LaidOut(prop, {{1, 2, 3}}).GetLayout();
    EXPECT_TRUE(one.HorTicks.empty());
    EXPECT_EQ(one.ComponentRects[0][0].X, one.Plot.X + 5);
    EXPECT_NEAR(one.ComponentRects[0][1].X, one.ComponentRects[0][0].Right(), 1e-4);
    EXPECT_NEAR(one.ComponentRects[0][2].Right(), one.Plot.Right() - 5, 1e-4);

    // Ten gaps of 10 mm leave nothing for the groups.
    const HistogramLayout ten = LaidOut(prop, Groups(10, {1, 2, 3})).GetLayout();
    EXPECT_EQ(ten.GroupGap, 7.0F);
    EXPECT_FLOAT_EQ(ten.ComponentWidth, 1.0F / 3.0F);
    prop.Plot.Juxtaposition = 0;
    EXPECT_EQ(LaidOut(prop, Groups(10, {1, 2, 3})).GetLayout().ComponentWidth, 1.0F);
    EXPECT_EQ(LaidOut(prop, Groups(160, {1, 2, 3})).GetLayout().GroupGap, -0.5F);
}

TEST(BasicHistogram, BarsWithoutANameHaveNoWidthAndNoDepth) {
    HistogramProp prop = Named({});
    prop.Plot.PieStyle = BarStyle::WithDepth;
    const CBasicHistogram chart = LaidOut(prop, {{1}, {2}});
    EXPECT_EQ(chart.GetLayout().ComponentWidth, 0.0F);
    EXPECT_EQ(chart.GetLayout().ComponentRects[1].size(), 0U);
    prop.Plot.PieStyle = BarStyle::Flat;
    EXPECT_EQ(chart.GetPositionAll(), LaidOut(prop, {{1}, {2}}).GetPositionAll());
}

TEST(BasicHistogram, StackedSegmentsReachFromSumToSum) {
    HistogramProp prop = Named({"A", "B", "C"});
    prop.Plot.Juxtaposition = 0;
    prop.Plot.PlotHeight = 40;
    const HistogramLayout layout = LaidOut(prop, {{2, -1, 3}, {-2, 5, 1}}).GetLayout();
    const float base = layout.Plot.Bottom();
    const RectF first = layout.ComponentRects[0][0];
    ExpectNear(first, {layout.Plot.X + 5, base - 2, 30, 2});
    ExpectNear(layout.ComponentRects[0][1], {first.X, base - 1, 30, -1});
    ExpectNear(layout.ComponentRects[0][2], {first.X, base - 4, 30, 3});
    // A sum below zero is no floor: the next segment starts at the axis's origin, on what was drawn.
    const float second = first.X + 40;
    ExpectNear(layout.ComponentRects[1][0], {second, base + 2, 30, -2});
    ExpectNear(layout.ComponentRects[1][1], {second, base - 1, 30, 3});
    ExpectNear(layout.ComponentRects[1][2], {second, base - 2, 30, 1});
}

TEST(BasicHistogram, TheLegendPushesTheChartFromItsLocation) {
    HistogramProp prop = WithAllTexts();
    prop.VerAxis.ShowHorMinorGrid = 1;
    CBasicHistogram moved = LaidOut(prop, {{10, 20}, {30, 40}}, {"a", "b"});
    moved.SetLocation({109, 200});
    moved.Layout();
    prop.Legend.ShowLegend = 1;
    prop.Legend.LegendPos = LegendPosition::LeftTop;
    CBasicHistogram chart = LaidOut(prop, {{10, 20}, {30, 40}}, {"a", "b"});
    // An item: a square of 5, a name of 2; 2 off the chart.
    EXPECT_EQ(chart.GetLayout().LegendItemRects, (std::vector<RectF>{{100, 200, 7, 5}, {100, 205, 7, 5}}));
    EXPECT_EQ(chart.GetPositionAll(), (RectF{100, 200, 96, 46}));
    const std::string drawing = Drawn(chart);
    EXPECT_EQ(drawing.substr(0, Drawn(moved).size()), Drawn(moved));
    chart.Layout();
    EXPECT_EQ(Drawn(chart), drawing);
}

TEST(BasicHistogram, WhatIsOffTakesNoRoom) {
    HistogramProp prop = WithAllTexts();
    const Groups groups{{10, 20}, {30, 40}, {5, 6}};
    EXPECT_EQ(LaidOut(prop, groups, {"too", "few"}).GetPositionAll().Height, 41.0F);
    EXPECT_TRUE(LaidOut(prop, groups, {"too", "few"}).GetLayout().GroupNameRects.empty());

    prop.VerAxis.MajorScaleStyle = ScaleStyle::None;
    EXPECT_EQ(LaidOut(prop, groups).GetPositionAll().Width, 87.0F);
    prop.VerAxis.MinorScaleStyle = ScaleStyle::None;
    EXPECT_EQ(LaidOut(prop, groups).GetPositionAll().Width, 86.0F);
    prop.VerAxis.MinorScaleStyle = 7;
    EXPECT_EQ(LaidOut(prop, groups).GetPositionAll().Width, 87.0F);
    prop.VerAxis.ShowVerAxisLabel = 0;
    EXPECT_EQ(LaidOut(prop, groups).GetPositionAll().Width, 83.0F);

    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    prop.Caption.ShowCaption = 0;
    const HistogramLayout bare = LaidOut(prop, groups, {"a", "b", "c"}).GetLayout();
    EXPECT_EQ(bare.Whole, (RectF{100, 200, 80, 30}));
    EXPECT_TRUE(bare.VerMajorTicks.empty() && bare.HorTicks.empty() && bare.GroupNameRects.empty());
}

TEST(BasicHistogram, TheAxisIsReplacedOnlyWithItsScale) {
    HistogramProp prop = Named({"A"});
    CBasicHistogram chart;
    chart.InitializeValueRange(5); // nothing to set yet
    EXPECT_TRUE(chart.SetHistogramProp(prop));
    chart.SetNaturalValueRange(0, 60, 20, 5);
    prop.Plot.PlotHeight = 60;
    EXPECT_FALSE(chart.SetHistogramProp(prop));
    chart.SetComponentValue({{60}});
    chart.Layout();
    EXPECT_EQ(chart.GetLayout().Plot.Height, 60.0F);
    EXPECT_EQ(chart.GetLayout().ComponentRects[0][0].Height, 30.0F); // the axis's length of old
    double min = 0;
    double max = 0;
    double step = 0;
    double minorStep = 0;
    chart.GetNaturalValueRange(min, max, step, minorStep);
    EXPECT_EQ((std::vector{min, max, step, minorStep}), (std::vector<double>{0, 60, 20, 5}));

    prop.Plot.LogarithmScale = 2;
    EXPECT_TRUE(chart.SetHistogramProp(prop));
    chart.SetNaturalValueRange(0, 60, 20, 5); // the other scale's
    chart.SetLogarithmValueRange(1, 100);
    chart.GetLogarithmValueRange(min, max);
    EXPECT_EQ(max, 100.0);
    chart.SetComponentValue({{10}});
    chart.Layout();
    EXPECT_EQ(chart.GetLayout().ComponentRects[0][0].Height, 30.0F); // half of 60
}

TEST(BasicHistogram, CopiesShareTheirAxisUntilOneChangesItsScale) {
    HistogramProp prop = Named({"A"});
    CBasicHistogram first = LaidOut(prop, {{10}});
    auto second = std::make_unique<CBasicHistogram>(first);
    CBasicHistogram third;
    third.SetHistogramProp(prop);
    third = *second;
    second->InitializeValueRange(9.5);
    const auto largest = [](const CBasicHistogram& chart) {
        double min = 0;
        double max = 0;
        double step = 0;
        double minorStep = 0;
        chart.GetNaturalValueRange(min, max, step, minorStep);
        return max;
    };
    EXPECT_EQ(largest(first), 10.0);
    EXPECT_EQ(largest(third), 10.0);

    prop.Plot.LogarithmScale = 1;
    first.SetHistogramProp(prop);
    first.InitializeValueRange(1e6);
    EXPECT_EQ(largest(*second), 10.0);
    second.reset();
    third = std::as_const(third);
    third.Layout();
    EXPECT_EQ(third.GetLayout().VerLabelTexts.back(), "10");
}

TEST(BasicHistogram, ShortListsAndOddNumbersLeaveGaps) {
    HistogramProp prop = Named({"A", "B"});
    prop.Legend.ShowLegend = 1;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const HistogramLayout layout = LaidOut(prop, {{1}, {}, {nan, 2, 3}}).GetLayout();
    EXPECT_EQ(layout.ComponentRects[0].size(), 1U);
    EXPECT_TRUE(layout.ComponentRects[1].empty());
    ASSERT_EQ(layout.ComponentRects[2].size(), 2U);
    EXPECT_NEAR(layout.ComponentRects[2][1].Right(), layout.Plot.Right() - 5, 1e-4);

    prop.Plot.LogarithmScale = 1;
    const HistogramLayout log = LaidOut(prop, {{0, -1}}).GetLayout();
    EXPECT_FALSE(std::isfinite(log.ComponentRects[0][0].Height));
    EXPECT_TRUE(std::isfinite(log.Whole.Width));

    prop.Plot.Juxtaposition = 0;
    prop.Plot.ComponentName = {"A", "B", "C", "D"};
    CBasicHistogram stack = LaidOut(prop, {{0, nan, 10, 90}});
    stack.SetLogarithmValueRange(1, 100);
    stack.Layout();
    const std::vector<RectF> segments = stack.GetLayout().ComponentRects[0];
    EXPECT_FALSE(std::isfinite(segments[0].Height) || std::isfinite(segments[1].Height));
    EXPECT_EQ(segments[2].Bottom(), stack.GetLayout().Plot.Bottom());
    EXPECT_NEAR(segments[3].Y, stack.GetLayout().Plot.Y, 1e-4);

    CBasicHistogram withoutAxis;
    withoutAxis.SetComponentValue({{1}});
    withoutAxis.Layout();
    EXPECT_TRUE(withoutAxis.GetLayout().VerMajorTicks.empty());
}
