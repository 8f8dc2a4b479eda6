#include "charts/pie/BasicHalfPieHistogram.h"

#include "support/Drawings.h"
#include "support/Rects.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

// Text sizes here: 2 mm a character, 5 mm a line.

namespace {

/// A lower half of 20 mm under a plot of 40 by 30 mm; everything that can stand round the bars is on.
HalfPieHistogramProp HalfUnderBars() {
    HalfPieHistogramProp prop;
    prop.HalfPie.Basic.WhichPart = HalfPiePart::Lower;
    prop.HalfPie.Basic.FixedSize = 1;
    prop.HalfPie.Basic.ComponentName = {"A"};
    prop.HalfPie.Basic.ComponentColor = {penlode::kWhite};
    HistogramProp& bars = prop.Histogram;
    bars.Caption.ShowCaption = 1;
    bars.Caption.Caption = "caption";
    bars.VerAxis.ShowHorMinorGrid = 1;
    bars.VerAxis.ShowVerCaption = 1;
    bars.VerAxis.VerCaption = "t";
    bars.HorAxis.ShowGroupName = 1;
    bars.HorAxis.ShowHorCaption = 1;
    bars.HorAxis.HorCaption = "year";
    bars.Plot.PlotWidth = 40.0F;
    bars.Plot.ComponentName = {"N"};
    bars.Plot.ComponentColor = {penlode::Color{0xFF0000FF}};
    bars.Plot.ShowEdge = 0;
    return prop;
}

CBasicHalfPieHistogram LaidOut(const HalfPieHistogramProp& prop) {
    CBasicHalfPieHistogram chart;
    chart.SetHalfPieHistogramProp(prop);
    chart.SetComponentValue({7}, {{20}, {40}}, 37);
    chart.SetLocation({100, 100});
    chart.Layout();
    return chart;
}

} // namespace

TEST(BasicHalfPieHistogram, NothingButBarsStandsOnTheHalfPie) {
    const CBasicHalfPieHistogram chart = LaidOut(HalfUnderBars());
    EXPECT_EQ(chart.GetPositionAll(), (RectF{80, 70, 40, 40}));
    EXPECT_EQ(chart.GetHistogram().GetPositionAll(), (RectF{80, 70, 40, 30}));
    ExpectDrawing("bars-on-a-half-pie", Drawn(chart));

    HalfPieHistogramProp bare = HalfUnderBars();
    bare.Histogram.Caption.ShowCaption = 0;
    HistogramVerAxisProp& ver = bare.Histogram.VerAxis;
    ver.ShowVerAxis = ver.MajorScaleStyle = ver.MinorScaleStyle = ver.ShowVerAxisLabel = 0;
    ver.ShowHorMajorGrid = ver.ShowHorMinorGrid = ver.ShowVerCaption = 0;
    HistogramHorAxisProp& hor = bare.Histogram.HorAxis;
    hor.ShowHorAxis = hor.ShowGroupName = hor.ShowVerGrid = hor.ShowHorCaption = 0;
    EXPECT_EQ(chart.GetHalfPieHistogramProp(), bare);
}

TEST(BasicHalfPieHistogram, TheLegendIsCentredWithTheBars) {
    HalfPieHistogramProp prop = HalfUnderBars();
    prop.HalfPie.Basic.WhichPart = HalfPiePart::Upper;
    prop.Histogram.Legend.ShowLegend = 1;
    prop.Histogram.Legend.LegendPos = LegendPosition::LeftTop; // 7 wide, 2 off the bars
    const CBasicHalfPieHistogram chart = LaidOut(prop);
    EXPECT_EQ(chart.GetHistogram().GetPositionAll(), (RectF{75.5F, 70, 49, 30}));
    EXPECT_EQ(chart.GetHistogram().GetLayout().Plot, (RectF{84.5F, 70, 40, 30}));
    EXPECT_EQ(chart.GetPositionAll(), (RectF{75.5F, 70, 49, 30})) << "an upper half lies behind the bars";
}

TEST(BasicHalfPieHistogram, TheRangeIsTakenAgainWithTheScaleOrWhenAsked) {
    HalfPieHistogramProp prop = HalfUnderBars();
    CBasicHalfPieHistogram chart = LaidOut(prop);
    const auto barHeight = [&chart] {
        chart.Layout();
        return chart.GetHistogram().GetLayout().ComponentRects[0][0].Height;
    };
    chart.SetComponentValue({7}, {{10}}, 99);
    EXPECT_EQ(barHeight(), 7.5F);
    chart.ResetValueRange();
    EXPECT_EQ(barHeight(), 3.0F); // 10 of 100
    prop.Histogram.Plot.LogarithmScale = 1;
    chart.SetHalfPieHistogramProp(prop);
    EXPECT_EQ(barHeight(), 15.0F); // 10 on an axis from 1 to 100
}

TEST(BasicHalfPieHistogram, OnlyTheHalfPiesLabelsMove) {
    HalfPieHistogramProp prop = HalfUnderBars();
    prop.HalfPie.Label.ShowNameLabel = 1;
    prop.Histogram.Legend.ShowLegend = 1;
    CBasicHalfPieHistogram chart = LaidOut(prop);
    const RectF bars = chart.GetHistogram().GetPositionAll();
    RectF pie;
    std::vector<RectF> labels;
    std::vector<RectF> legend;
    chart.GetChildPosition(pie, labels, legend);
    EXPECT_EQ(pie, (RectF{90, 90, 20, 20}));
    ASSERT_EQ(labels.size(), 1U);
    EXPECT_TRUE(legend.empty());
    const RectF moved = penlode::Translated(labels[0], {0, 20});
    chart.SetChildPosition(pie, {moved}, {bars});
    chart.Layout();
    ExpectNear(chart.GetHalfPie().GetLayout().LabelRects[0], moved);
    EXPECT_EQ(chart.GetPositionAll().Bottom(), moved.Bottom());
    EXPECT_EQ(chart.GetHistogram().GetPositionAll(), bars);

    std::vector<PointF> offsets;
    std::vector<PointF> legendOffset;
    chart.GetChildOffset(offsets, legendOffset);
    EXPECT_EQ(offsets, (std::vector<PointF>{{0, 20}}));
    chart.SetChildOffset({{1, 2}}, {});
    chart.GetChildOffset(offsets, legendOffset);
    EXPECT_EQ(offsets, (std::vector<PointF>{{1, 2}}));
}

TEST(BasicHalfPieHistogram, WithoutDataItIsABarePoint) {
    CBasicHalfPieHistogram chart = LaidOut(HalfUnderBars());
    chart.SetComponentValue({}, {}, 0);
    chart.Layout();
    EXPECT_EQ(chart.GetPositionAll(), (RectF{100, 100, 0, 0}));
    CBasicHalfPieHistogram().Draw(nullptr);
}
