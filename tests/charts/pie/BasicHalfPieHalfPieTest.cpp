#include "charts/pie/BasicHalfPieHalfPie.h"

#include "charts/pie/HalfPiePropSerialize.h"
#include "penlode/streams/BinarySerialize.h"
#include "support/Drawings.h"
#include "support/Rects.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

// Text sizes here: 2 mm a character, 5 mm a line.

namespace {

constexpr RectF kSeparatorRect{-99999, -99999, 0, 0};
constexpr PointF kSeparatorPoint{-99999, -99999};

/// Named slices without labels: two above, one below.
HalfPieHalfPieProp TwoOverOne() {
    HalfPieHalfPieProp prop;
    prop.First.Basic.ComponentName = {"A", "B"};
    prop.First.Basic.ComponentColor = {penlode::kWhite, penlode::kBlack};
    prop.Second.Basic.WhichPart = HalfPiePart::Lower;
    prop.Second.Basic.ComponentName = {"C"};
    prop.Second.Basic.ComponentColor = {penlode::Color{0xFF0000FF}};
    prop.Second.Basic.DrawSepLine = 0;
    return prop;
}

HalfPieHalfPieProp Labelled() {
    HalfPieHalfPieProp prop = TwoOverOne();
    prop.First.Label.ShowNameLabel = 1;
    prop.Second.Label.ShowNameLabel = 1;
    return prop;
}

CBasicHalfPieHalfPie LaidOut(const HalfPieHalfPieProp& prop) {
    CBasicHalfPieHalfPie chart;
    chart.SetHalfPieHalfPieProp(prop);
    chart.SetComponentValue({50, 50}, {40});
    chart.SetLocation({50, 50});
    chart.Layout();
    return chart;
}

std::vector<RectF> LabelsOf(const CBasicHalfPieHalfPie& chart) {
    RectF pie{1, 2, 3, 4};
    std::vector<RectF> labels;
    std::vector<RectF> legend(2);
    chart.GetChildPosition(pie, labels, legend);
    EXPECT_EQ(pie, (RectF{1, 2, 3, 4}));
    EXPECT_EQ(legend.size(), 2U);
    return labels;
}

std::vector<PointF> OffsetsOf(const CBasicHalfPieHalfPie& chart) {
    std::vector<PointF> labels;
    std::vector<PointF> legend(2);
    chart.GetChildOffset(labels, legend);
    EXPECT_EQ(legend.size(), 2U);
    return labels;
}

} // namespace

TEST(BasicHalfPieHalfPie, TheWholeFigureOnOneCentre) {
    HalfPieHalfPieProp prop = Labelled();
    prop.First.Label.ShowNameLabel = 0;
    const CBasicHalfPieHalfPie chart = LaidOut(prop);
    EXPECT_EQ(chart.GetFirstHalf().GetPositionAll(), (RectF{45, 45, 10, 5}));
    EXPECT_EQ(chart.GetSecondHalf().GetLayout().Pie, (RectF{48, 48, 4, 4}));
    ExpectNear(chart.GetPositionAll(), {45, 45, 10, 12});

    ExpectDrawing("half-pies", Drawn(chart));
    chart.Draw(nullptr);
}

TEST(BasicHalfPieHalfPie, WhichHalfIsTheRecordsOwn) {
    HalfPieHalfPieProp prop = TwoOverOne();
    prop.First.Basic.WhichPart = HalfPiePart::Lower;
    EXPECT_EQ(LaidOut(prop).GetPositionAll(), (RectF{45, 50, 10, 5}));
}

TEST(BasicHalfPieHalfPie, ASeparatorStandsBetweenTheHalvesEvenWithoutLabels) {
    EXPECT_EQ(LabelsOf(LaidOut(TwoOverOne())), std::vector<RectF>{kSeparatorRect});
    EXPECT_EQ(OffsetsOf(LaidOut(TwoOverOne())), (std::vector<PointF>{{}, {}, kSeparatorPoint, {}}));
}

/// As a host does it: drag, save record and offsets, load both into a new chart.
TEST(BasicHalfPieHalfPie, DraggedLabelsComeBackFromADocument) {
    HalfPieHalfPieProp prop = Labelled();
    CBasicHalfPieHalfPie chart = LaidOut(prop);
    std::vector<RectF> labels = LabelsOf(chart);
    ASSERT_EQ(labels.size(), 4U);
    labels[1] = penlode::Translated(labels[1], {4, -2});
    labels[3] = penlode::Translated(labels[3], {-1, 5});
    chart.SetChildPosition({}, labels, {});
    chart.Layout();
    const std::vector<RectF> dragged = LabelsOf(chart);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        ExpectNear(dragged[i], labels[i]);
    }
    EXPECT_EQ(OffsetsOf(chart), (std::vector<PointF>{{0, 0}, {4, -2}, kSeparatorPoint, {-1, 5}}));

    penlode::CBinarySerialize out;
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(out, prop);
    penlode::CBinarySerialize in(out.Bytes());
    HalfPieHalfPieProp loaded;
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(in, loaded);
    CBasicHalfPieHalfPie again;
    again.SetHalfPieHalfPieProp(loaded);
    again.SetComponentValue({50, 50}, {40});
    again.SetLocation({50, 50});
    again.SetChildOffset(OffsetsOf(chart), {});
    again.Layout();
    EXPECT_EQ(LabelsOf(again), dragged);
    EXPECT_EQ(again.GetPositionAll(), chart.GetPositionAll());
}

TEST(BasicHalfPieHalfPie, OnlyAListWithASeparatorIsTaken) {
    CBasicHalfPieHalfPie chart = LaidOut(Labelled());
    const std::vector<PointF> untouched(OffsetsOf(chart));
    chart.SetChildOffset({{1, 1}, {2, 2}}, {});
    chart.SetChildOffset({{1, 1}, {-99999.1F, -99999.0F}, {2, 2}}, {});
    chart.SetChildOffset({{1, 1}, {-99999.0F, -99998.9F}, {2, 2}}, {});
    chart.SetChildOffset({{1, 1}, {NAN, -99999.0F}, {-99999.0F, 5}}, {});
    chart.SetChildPosition({}, {{1, 1, 1, 1}, {2, 2, 2, 2}}, {});
    EXPECT_EQ(OffsetsOf(chart), untouched);

    chart.SetChildOffset({{1, 1}, {2, 2}, {-99999.05F, -99998.95F}, {3, 3}}, {});
    EXPECT_EQ(OffsetsOf(chart), (std::vector<PointF>{{1, 1}, {2, 2}, kSeparatorPoint, {3, 3}}));
}

TEST(BasicHalfPieHalfPie, ListsOfOtherLengthsAreSound) {
    CBasicHalfPieHalfPie chart = LaidOut(Labelled());
    const RectF moved = penlode::Translated(LabelsOf(chart)[0], {2, 3});
    chart.SetChildPosition({}, {moved, kSeparatorRect}, {});
    chart.SetChildPosition({}, {kSeparatorRect, {}, {}, {}, {}}, {});
    EXPECT_EQ(OffsetsOf(chart)[0], (PointF{2, 3}));
    chart.SetChildOffset({kSeparatorPoint, {3, 3}, {4, 4}}, {});
    chart.Layout();
    EXPECT_EQ(OffsetsOf(chart), (std::vector<PointF>{{}, {}, kSeparatorPoint, {3, 3}}));
}
