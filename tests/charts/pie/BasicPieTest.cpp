#include "charts/pie/BasicPie.h"

#include "support/Rects.h"
#include "support/Texts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

// Text sizes here: 2 mm a character, 4 mm a Chinese one, 5 mm a line.

namespace {

PieProp TwoSlices() {
    PieProp prop;
    prop.Basic.ComponentName = {"A", "B"};
    prop.Basic.ComponentColor = {penlode::Color{0xFFFF0000}, penlode::Color{0xFF0000FF}};
    return prop;
}

CBasicPie LaidOut(const PieProp& prop, const std::vector<double>& values, PointF location = {50, 50}) {
    CBasicPie pie;
    pie.SetPieProp(prop);
    pie.SetComponentValue(values);
    pie.SetLocation(location);
    pie.Layout();
    return pie;
}

} // namespace

TEST(BasicPie, NothingToShowIsABarePoint) {
    PieProp prop = TwoSlices();
    prop.Legend.ShowLegend = 1;
    prop.Label.ShowNameLabel = 1;
    for (const std::vector<double>& values : {std::vector<double>{}, {0.0, 0.0}, {2.5, -2.5}}) {
        CBasicPie pie = LaidOut(prop, {1, 2});
        pie.SetComponentValue(values);
        pie.Layout();
        EXPECT_EQ(pie.GetPositionAll(), (RectF{50, 50, 0, 0}));
        RectF rect;
        std::vector<RectF> labels(3);
        std::vector<RectF> legend(3);
        pie.GetChildPosition(rect, labels, legend);
        EXPECT_EQ(rect, (RectF{50, 50, 0, 0}));
        EXPECT_TRUE(labels.empty());
        EXPECT_TRUE(legend.empty());
    }
}

TEST(BasicPie, DiameterFollowsTheTotalOrIsFixed) {
    PieProp prop = TwoSlices();
    EXPECT_EQ(LaidOut(prop, {30, 70}).GetPositionAll(), (RectF{45, 45, 10, 10}));
    EXPECT_EQ(LaidOut(prop, {60, 140}).GetPositionAll(), (RectF{40, 40, 20, 20}));
    prop.Basic.BaseValue = 50;
    prop.Basic.BasePieWidth = 8;
    EXPECT_EQ(LaidOut(prop, {30, 70}).GetPositionAll(), (RectF{42, 42, 16, 16}));
    prop.Basic.FixedSize = -1;
    EXPECT_EQ(LaidOut(prop, {30, 70}).GetPositionAll(), (RectF{40, 40, 20, 20}));
    EXPECT_EQ(LaidOut(prop, {3, 7}).GetPositionAll(), (RectF{40, 40, 20, 20}));
}

TEST(BasicPie, LabelTextsFromTheirParts) {
    PieProp prop = TwoSlices();
    prop.Label.ShowPercentLabel = 1;
    using Texts = std::vector<std::string>;
    EXPECT_EQ(LaidOut(prop, {1, 3}).GetLayout().LabelTexts, (Texts{"25.0%", "75.0%"}));

    prop.Label.ShowNameLabel = 1;
    prop.Label.ShowValueLabel = 1;
    EXPECT_EQ(LaidOut(prop, {1, 3}).GetLayout().LabelTexts, (Texts{"A;1.0;25.0%", "B;3.0;75.0%"}));
    prop.Label.LabelsInSingleRow = 0;
    EXPECT_EQ(LaidOut(prop, {1, 3}).GetLayout().LabelTexts[0], "A;\n1.0;\n25.0%");

    prop.Label.PieLabelTextProperty.Prefix = "(";
    prop.Label.PieLabelTextProperty.Postfix = ")";
    prop.Label.LabelSeparator = Narrow(L"、");
    EXPECT_EQ(LaidOut(prop, {1, 3}).GetLayout().LabelTexts[0], Narrow(L"(A、\n1.0、\n25.0%)"));

    prop.Label.ShowNameLabel = 2;
    prop.Label.ShowValueLabel = 2;
    prop.Label.ShowPercentLabel = 2;
    EXPECT_EQ(LaidOut(prop, {1, 3}).GetLayout().LabelTexts, (Texts{"", ""}))
        << "2 counts as on but adds no part";
}

// The share is rounded to a float before it is printed: 1/80 comes out above 1.25 %, 7/80 below 8.75 %.
TEST(BasicPie, SharesHaveSinglePrecision) {
    PieProp prop = TwoSlices();
    prop.Label.ShowPercentLabel = 1;
    EXPECT_EQ(LaidOut(prop, {1, 79}).GetLayout().LabelTexts[0], "1.3%");
    EXPECT_EQ(LaidOut(prop, {7, 73}).GetLayout().LabelTexts[0], "8.7%");
}

// Ten equal slices from 180 degrees: their middles lie at 198, 234, 270, 306, 342, 18, 54, 90, 126, 162.
TEST(BasicPie, LabelBoxesTouchTheCircleFromOutside) {
    PieProp prop;
    prop.Basic.FixedSize = 1;
    prop.Label.ShowNameLabel = 1;
    prop.Label.DistBetweenLabelCenterAndPieCenter = 2;
    for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}) {
        prop.Basic.ComponentName.emplace_back(name);
    }
    const std::vector<RectF> labels =
        LaidOut(prop, std::vector<double>(10, 1.0), {0, 0}).GetLayout().LabelRects;
    ASSERT_EQ(labels.size(), 10U);
    const double r = 12.0;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const double mid = std::fmod(198.0 + 36.0 * static_cast<double>(i), 360.0) * std::numbers::pi / 180.0;
        const double touchX = r * std::cos(mid);
        const double touchY = r * std::sin(mid);
        const bool onLeft = i < 3 || i > 7; // the one at 270 counts as left, the one at 90 as right
        const bool above = i < 5;
        ExpectNear(labels[i], {static_cast<float>(touchX - (onLeft ? 2.0 : 0.0)),
                               static_cast<float>(touchY - (above ? 5.0 : 0.0)), 2, 5});
    }
}

TEST(BasicPie, MiddlesAreReducedOnceAndOddOnesGoToTheOrigin) {
    PieProp prop = TwoSlices();
    prop.Label.ShowNameLabel = 1;
    ExpectNear(LaidOut(prop, {100}).GetLayout().LabelRects[0], {55, 50, 2, 5});
    prop.Basic.StartAngle = 540;
    ExpectNear(LaidOut(prop, {100}).GetLayout().LabelRects[0], {-1, -2.5F, 2, 5});
    prop.Basic.StartAngle = -300;
    ExpectNear(LaidOut(prop, {100}).GetLayout().LabelRects[0], {-1, -2.5F, 2, 5});
}

// The angle's pi has eight digits, so that a label right below the centre stands a hair to the left of it.
TEST(BasicPie, AnglesCountWithTheirOwnPi) {
    PieProp prop = TwoSlices();
    prop.Basic.FixedSize = 1;
    prop.Basic.StartAngle = 0;
    prop.Basic.ComponentName = {""};
    prop.Label.ShowNameLabel = 1;
    prop.Label.DistBetweenLabelCenterAndPieCenter = 2;
    const RectF label = LaidOut(prop, {1, 1}, {0, 0}).GetLayout().LabelRects[0];
    EXPECT_NEAR(label.X, -2.785e-7, 1e-10);
    EXPECT_EQ(label.Y, 12.0F);
}

TEST(BasicPie, TurnedLabelsTakeTheirTurnedSize) {
    PieProp prop = TwoSlices();
    prop.Label.ShowNameLabel = 1;
    prop.Basic.ComponentName = {"ABCD"};
    prop.Label.PieLabelTextProperty.Angle = 90;
    ExpectNear(LaidOut(prop, {100}).GetLayout().LabelRects[0], {55, 50, 5, 8});
}

TEST(BasicPie, LegendStandsBesidePieAndLabelsAndCountsIntoTheWhole) {
    PieProp prop = TwoSlices();
    prop.Legend.ShowLegend = 1;
    prop.Legend.LegendPos = LegendPosition::RightTop;
    prop.Label.ShowNameLabel = 1; // one label above, one below: the whole grows to 4 mm on either side
    const CBasicPie pie = LaidOut(prop, {50, 50});
    const PieLayout& layout = pie.GetLayout();
    ExpectNear(layout.LabelRects[0], {48, 40, 2, 5});
    ExpectNear(layout.LabelRects[1], {50, 55, 2, 5});
    ASSERT_EQ(layout.LegendItemRects.size(), 2U);
    ExpectNear(layout.LegendItemRects[0], {57, 40, 7, 5});
    ExpectNear(layout.LegendItemRects[1], {57, 45, 7, 5});
    ExpectNear(pie.GetPositionAll(), {45, 40, 19, 20});
}

TEST(BasicPie, ALegendOnThePlotStandsAtItAndFollowsItsOffset) {
    PieProp prop = TwoSlices();
    prop.Legend.ShowLegend = 1;
    prop.Legend.LegendPos = LegendPosition::BottomCenter;
    CBasicPie pie = LaidOut(prop, {50, 50});
    ChartOptions options;
    options.Legend = LegendSeat::OnPlot;
    pie.SetOptions(options);
    pie.Layout();
    const LegendFrame seated = pie.GetLayout().Legend;
    EXPECT_FLOAT_EQ(seated.Box.Center().X, 50);
    EXPECT_FLOAT_EQ(seated.Box.Y, 57);
    ExpectNear(pie.GetPositionAll(), penlode::Union({45, 45, 10, 10}, seated.Box));

    pie.SetChildOffset({}, {{3, 4}});
    pie.Layout();
    RectF whole;
    std::vector<RectF> labels;
    std::vector<RectF> legend;
    pie.GetChildPosition(whole, labels, legend);
    ASSERT_EQ(legend.size(), 1U);
    ExpectNear(legend[0], penlode::Translated(seated.Box, {3, 4}));

    pie.SetOptions({});
    pie.Layout();
    EXPECT_FALSE(pie.GetLayout().Legend.IsSeated());
}

TEST(BasicPie, DraggedPartsKeepTheirOffsets) {
    PieProp prop = TwoSlices();
    prop.Label.ShowNameLabel = 1;
    prop.Legend.ShowLegend = 1;
    CBasicPie pie = LaidOut(prop, {50, 50});
    RectF whole;
    std::vector<RectF> labels;
    std::vector<RectF> legend;
    pie.GetChildPosition(whole, labels, legend);
    ASSERT_EQ(legend.size(), 1U);
    const RectF before = labels[1];
    const RectF legendBefore = legend[0];

    labels[1].X += 3;
    labels[1].Y -= 1;
    legend[0].X += 10;
    pie.SetChildPosition({1, 2, 3, 4}, labels, legend);
    EXPECT_EQ(pie.GetLayout().LabelRects[1], before) << "moves show after the next layout";
    pie.SetChildPosition({1, 2, 3, 4}, labels, legend);
    pie.Layout();
    pie.GetChildPosition(whole, labels, legend);
    ExpectNear(whole, {45, 45, 10, 10});
    ExpectNear(labels[1], {before.X + 6, before.Y - 2, before.Width, before.Height});
    // The label now reaches 3 mm further right and 2 mm less down, and the legend follows the chart that it
    // stands by.
    ExpectNear(legend[0],
               {legendBefore.X + 20 + 3, legendBefore.Y - 1, legendBefore.Width, legendBefore.Height});

    std::vector<PointF> labelOffsets;
    std::vector<PointF> legendOffset;
    const CBasicPie copy = pie;
    copy.GetChildOffset(labelOffsets, legendOffset);
    EXPECT_EQ(labelOffsets, (std::vector<PointF>{{0, 0}, {6, -2}}));
    EXPECT_EQ(legendOffset, (std::vector<PointF>{{20, 0}}));
}

TEST(BasicPie, OffsetsFollowTheNamesAndTakeOnlyOneLegend) {
    PieProp prop = TwoSlices();
    prop.Legend.ShowLegend = 1;
    CBasicPie pie = LaidOut(prop, {50, 50});
    pie.SetChildOffset({{1, 1}, {2, 2}}, {{5, 5}});
    pie.SetChildOffset({{1, 1}, {2, 2}}, {{7, 7}, {8, 8}});
    const RectF box{0, 0, 1, 1};
    pie.SetChildPosition({}, {}, {box, box});
    std::vector<PointF> labels;
    std::vector<PointF> legend;
    pie.GetChildOffset(labels, legend);
    EXPECT_EQ(legend, (std::vector<PointF>{{5, 5}}));

    prop.Basic.ComponentName = {"A"};
    pie.SetPieProp(prop);
    prop.Basic.ComponentName = {"A", "B", "C"};
    pie.SetPieProp(prop);
    pie.SetPieProp(pie.GetPieProp());
    pie.GetChildOffset(labels, legend);
    EXPECT_EQ(labels, (std::vector<PointF>{{1, 1}, {0, 0}, {0, 0}}));
}

TEST(BasicPie, WithoutALegendThereIsNoneToMove) {
    PieProp prop = TwoSlices();
    CBasicPie pie = LaidOut(prop, {50, 50});
    pie.SetChildPosition({}, {{1, 1, 1, 1}}, {{9, 9, 1, 1}});
    std::vector<PointF> labels;
    std::vector<PointF> legend{{1, 1}};
    pie.GetChildOffset(labels, legend);
    EXPECT_TRUE(legend.empty());
    EXPECT_EQ(labels, std::vector<PointF>(2)) << "there is no label rectangle to have moved";

    prop.Legend.ShowLegend = 1;
    pie.SetPieProp(prop);
    pie.Layout();
    pie.GetChildOffset(labels, legend);
    EXPECT_EQ(legend, std::vector<PointF>(1));
}

TEST(BasicPie, ShortListsAreSoundWhateverTheValues) {
    PieProp prop;
    prop.Basic.ComponentName = {"A"};
    prop.Label.ShowNameLabel = 1;
    prop.Legend.ShowLegend = 1;
    prop.Basic.BaseValue = 0;
    for (const double odd : {1.0, -5.0, 1e308, static_cast<double>(NAN), static_cast<double>(INFINITY)}) {
        const CBasicPie pie = LaidOut(prop, {odd, 2.0, odd});
        EXPECT_EQ(pie.GetLayout().LabelRects.size(), 3U);
        EXPECT_EQ(pie.GetLayout().LabelTexts[2], "");
    }
}
