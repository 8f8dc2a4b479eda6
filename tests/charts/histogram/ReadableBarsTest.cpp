#include "charts/histogram/BasicHistogram.h"
#include "penlode/recording/RecordingEngine.h"
#include "support/Drawings.h"
#include "support/Rects.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::RectF;

// Text sizes here: 2 mm a character, 5 mm a line.

namespace {

/// On the value 0 of a range from -20 to 20, so that a value of 4 is 3 mm of a plot of 80 x 30 mm at (0, 0).
CBasicHistogram OnZero(HistogramProp prop, const std::vector<std::vector<double>>& groups) {
    prop.Plot.ComponentColor.assign(prop.Plot.ComponentName.size(), penlode::kBlack);
    prop.Plot.GroupDistane = 0.0F;
    prop.VerAxis.ShowVerAxis = 0;
    CBasicHistogram chart;
    ChartOptions options;
    options.BarBase = BarBase::Zero;
    options.Labels = LabelFit::Fitted;
    chart.SetOptions(options);
    chart.SetHistogramProp(prop);
    if (prop.Plot.LogarithmScale == 0) {
        chart.SetNaturalValueRange(-20.0, 20.0, 10.0, 10.0);
    } else {
        chart.SetLogarithmValueRange(1.0, 1000.0);
    }
    chart.SetComponentValue(groups);
    chart.Layout();
    return chart;
}

HistogramProp Named(std::vector<std::string> names) {
    HistogramProp prop;
    prop.Plot.ComponentName = std::move(names);
    return prop;
}

} // namespace

TEST(ReadableBars, StandOnZeroOrHangFromItAndEndWithTheAxis) {
    const CBasicHistogram chart = OnZero(Named({"a", "b", "c", "d"}), {{8.0, -8.0, 0.0, 400.0}});
    EXPECT_EQ(chart.GetLayout().BaseLine, 15.0F);
    EXPECT_EQ(chart.GetLayout().ComponentRects.front(),
              (std::vector<RectF>{{0, 9, 20, 6}, {20, 15, 20, 6}, {40, 15, 20, 0}, {60, 0, 20, 15}}));
    EXPECT_NE(Drawn(chart).find("DrawLine #FF000000/0.1 (0 15) (80 15)"), std::string::npos) << Drawn(chart);
}

TEST(ReadableBars, OfAStackGrowBothWays) {
    HistogramProp prop = Named({"a", "b", "c", "d"});
    prop.Plot.Juxtaposition = 0;
    prop.Plot.PieStyle = BarStyle::WithDepth;
    const CBasicHistogram chart = OnZero(prop, {{4.0, -4.0, 8.0, -8.0}});
    const std::vector<RectF>& bars = chart.GetLayout().ComponentRects.front();
    const float up = bars[0].Y;
    EXPECT_EQ(bars, (std::vector<RectF>{
                        {0, up, 80, 3}, {0, up + 3, 80, 3}, {0, up - 6, 80, 6}, {0, up + 6, 80, 6}}));
    std::vector<std::size_t> order;
    for (const BarShape& bar : chart.GetShapes().Bars) {
        order.push_back(bar.Component);
    }
    EXPECT_EQ(order, (std::vector<std::size_t>{3, 1, 0, 2})) << "from below, as tops cover what is above";
}

TEST(ReadableBars, StandOnALogarithmicAxis) {
    HistogramProp prop = Named({"a", "b"});
    prop.Plot.LogarithmScale = 1;
    const CBasicHistogram chart = OnZero(prop, {{100.0, 0.5}});
    EXPECT_EQ(chart.GetLayout().ComponentRects.front(),
              (std::vector<RectF>{{0, 10, 40, 20}, {40, 30, 40, 0}}));
}

TEST(ReadableBars, HaveTheirValuesAtTheEndOrInsideOrNotAtAll) {
    HistogramProp prop = Named({"a", "b", "c"});
    prop.Plot.ShowComponentValue = 1;
    const CBasicHistogram chart = OnZero(prop, {{8.0, 20.0, -8.0}, {19.0, 19.0, 19.0}});
    const auto& labels = chart.GetLayout().ValueLabels;
    EXPECT_TRUE(labels[0][0].IsShown && !labels[0][0].IsInside);
    EXPECT_TRUE(labels[0][1].IsShown && labels[0][1].IsInside) << "there is no room above";
    EXPECT_GT(labels[0][2].Center.Y, 21.0F) << "below a bar that hangs";
    prop.Plot.PlotWidth = 9.0F;
    const CBasicHistogram narrow = OnZero(prop, {{8.0, 20.0, -8.0}, {19.0, 19.0, 19.0}});
    EXPECT_FALSE(narrow.GetLayout().ValueLabels[0][1].IsShown) << "too wide for its bar";
}

TEST(ReadableBars, ThatStandOnTheMinimumHaveTheirValuesAbove) {
    HistogramProp prop = Named({"a"});
    prop.Plot.ShowComponentValue = 1;
    CBasicHistogram chart = OnZero(prop, {{-8.0}});
    ChartOptions options = chart.GetOptions();
    options.BarBase = BarBase::AxisOrigin;
    chart.SetOptions(options);
    chart.Layout();
    EXPECT_LT(chart.GetLayout().ValueLabels[0][0].Center.Y, chart.GetLayout().ComponentRects[0][0].Y);
}
