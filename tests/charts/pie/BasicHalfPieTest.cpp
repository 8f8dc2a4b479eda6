#include "charts/pie/BasicHalfPie.h"

#include "support/Drawings.h"
#include "support/Rects.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

// Text sizes here: 2 mm a character, 5 mm a line.

namespace {

HalfPieProp TwoSlices(std::int32_t whichPart) {
    HalfPieProp prop;
    prop.Basic.WhichPart = whichPart;
    prop.Basic.ComponentName = {"A", "B"};
    prop.Basic.ComponentColor = {penlode::Color{0xFFFF0000}, penlode::Color{0xFF0000FF}};
    return prop;
}

CBasicHalfPie LaidOut(const HalfPieProp& prop, const std::vector<double>& values) {
    CBasicHalfPie pie;
    pie.SetHalfPieProp(prop);
    pie.SetComponentValue(values);
    pie.SetLocation({50, 50});
    pie.Layout();
    return pie;
}

} // namespace

TEST(BasicHalfPie, UpperAndLowerHalf) {
    const CBasicHalfPie upper = LaidOut(TwoSlices(HalfPiePart::Upper), {30, 70});
    EXPECT_EQ(upper.GetLayout().Pie, (RectF{45, 45, 10, 10}));
    EXPECT_EQ(upper.GetPositionAll(), (RectF{45, 45, 10, 5}));
    EXPECT_EQ(Drawn(upper), "FillPie #FFFF0000 (45 45 10 10) 180 54\n"
                            "DrawPie #FF000000/0.1 (45 45 10 10) 180 54\n"
                            "FillPie #FF0000FF (45 45 10 10) 234 126\n"
                            "DrawPie #FF000000/0.1 (45 45 10 10) 234 126\n");
    for (const std::int32_t whichPart : {1, 2, -1}) {
        HalfPieProp prop = TwoSlices(whichPart);
        prop.Basic.DrawSepLine = 2; // only 1 outlines
        const CBasicHalfPie lower = LaidOut(prop, {30, 70});
        EXPECT_EQ(lower.GetPositionAll(), (RectF{45, 50, 10, 5}));
        EXPECT_EQ(Drawn(lower), "FillPie #FFFF0000 (45 45 10 10) 0 54\n"
                                "FillPie #FF0000FF (45 45 10 10) 54 126\n");
    }
}

/// The middles of two equal slices lie at 45 degrees from the flat side; the circle's radius is 10.
TEST(BasicHalfPie, LabelsStandOutsideTheirHalfAndCountIntoTheWhole) {
    const float across = 10.0F * std::sqrt(0.5F);
    HalfPieProp prop = TwoSlices(HalfPiePart::Upper);
    prop.Basic.FixedSize = 1;
    prop.Label.ShowNameLabel = 1;
    const CBasicHalfPie upper = LaidOut(prop, {7, 7});
    ExpectNear(upper.GetLayout().LabelRects[0], {50 - across - 2, 50 - across - 5, 2, 5});
    ExpectNear(upper.GetLayout().LabelRects[1], {50 + across, 50 - across - 5, 2, 5});
    ExpectNear(upper.GetPositionAll(), {40, 45 - across, 20, 5 + across});
    EXPECT_NE(Drawn(upper).find("TranslateTransform 41.93 40.43 prepend\n"
                                "RotateTransform 0 prepend\n"
                                "DrawString \"A\" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000\n"),
              std::string::npos);

    prop.Basic.WhichPart = HalfPiePart::Lower;
    const CBasicHalfPie lower = LaidOut(prop, {7, 7});
    ExpectNear(lower.GetLayout().LabelRects[0], {50 + across, 50 + across, 2, 5});
    ExpectNear(lower.GetLayout().LabelRects[1], {50 - across - 2, 50 + across, 2, 5});
    ExpectNear(lower.GetPositionAll(), {40, 50, 20, 5 + across});
}

/// Its middle, 360 degrees, counts as 0, and labels at 0 stand below.
TEST(BasicHalfPie, AnEmptySliceAtTheEndOfTheUpperHalfIsLabelledBelow) {
    HalfPieProp prop = TwoSlices(HalfPiePart::Upper);
    prop.Label.ShowNameLabel = 1;
    const CBasicHalfPie pie = LaidOut(prop, {100, 0});
    ExpectNear(pie.GetLayout().LabelRects[0], {48, 40, 2, 5});
    ExpectNear(pie.GetLayout().LabelRects[1], {55, 50, 2, 5});
}

TEST(BasicHalfPie, LabelsMoveAndALegendIsLeftAlone) {
    HalfPieProp prop = TwoSlices(HalfPiePart::Lower);
    prop.Label.ShowNameLabel = 1;
    CBasicHalfPie pie = LaidOut(prop, {50, 50});
    RectF circle;
    std::vector<RectF> labels;
    std::vector<RectF> legend{{1, 2, 3, 4}};
    pie.GetChildPosition(circle, labels, legend);
    const std::vector<RectF> before = labels;
    labels[1] = penlode::Translated(labels[1], {3, -1});
    pie.SetChildPosition({9, 9, 9, 9}, labels, {{9, 9, 9, 9}});
    EXPECT_EQ(pie.GetLayout().LabelRects, before) << "moves show after the next layout";
    pie.Layout();
    pie.GetChildPosition(circle, labels, legend);
    EXPECT_EQ(circle, (RectF{45, 45, 10, 10}));
    EXPECT_EQ(labels[0], before[0]);
    ExpectNear(labels[1], penlode::Translated(before[1], {3, -1}));
    EXPECT_EQ(legend, (std::vector<RectF>{{1, 2, 3, 4}}));

    std::vector<PointF> offsets;
    std::vector<PointF> legendOffset{{1, 2}};
    prop.Basic.ComponentName = {"A", "B", "C"};
    pie.SetHalfPieProp(prop);
    pie.GetChildOffset(offsets, legendOffset);
    EXPECT_EQ(offsets, (std::vector<PointF>{{0, 0}, {3, -1}, {0, 0}}));
    EXPECT_EQ(legendOffset, (std::vector<PointF>{{1, 2}}));
}

TEST(BasicHalfPie, NothingToShowIsABarePoint) {
    CBasicHalfPie pie = LaidOut(TwoSlices(HalfPiePart::Lower), {1, 2});
    pie.SetComponentValue({2.5, -2.5});
    pie.Layout();
    EXPECT_EQ(pie.GetPositionAll(), (RectF{50, 50, 0, 0}));
    EXPECT_EQ(Drawn(pie), "");
    pie.Draw(nullptr);
}
