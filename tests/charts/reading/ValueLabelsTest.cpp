#include "charts/reading/ValueLabels.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;

namespace {

const RectF kRoom{0, 0, 100, 50};

/// A bar 10 mm wide on the room's lower edge.
ValueToPlace Bar(float x, float height, penlode::SizeF label) {
    return {{x, 50 - height, 10, height}, label, height, false, false, false};
}

void ExpectAt(const PlacedValue& placed, PointF center) {
    EXPECT_TRUE(placed.IsShown);
    EXPECT_FLOAT_EQ(placed.Center.X, center.X);
    EXPECT_FLOAT_EQ(placed.Center.Y, center.Y);
}

} // namespace

TEST(ValueLabels, StandAboveTheirBarsOrInsideWhereThePlotEnds) {
    const std::vector<PlacedValue> placed = PlaceValues({Bar(0, 30, {8, 4}), Bar(20, 49, {8, 4})}, kRoom, {});
    ExpectAt(placed[0], {5, 18});
    EXPECT_FALSE(placed[0].IsInside);
    ExpectAt(placed[1], {25, 3});
    EXPECT_TRUE(placed[1].IsInside);
}

TEST(ValueLabels, GoAsideForAHigherNeighbourAndThePlotsEdge) {
    const std::vector<PlacedValue> placed = PlaceValues(
        {Bar(0, 30, {14, 4}), Bar(40, 20, {14, 4}), Bar(50, 40, {8, 4}), Bar(90, 30, {14, 4})}, kRoom, {});
    ExpectAt(placed[0], {7, 18});
    ExpectAt(placed[1], {43, 28});
    ExpectAt(placed[3], {93, 18});
}

TEST(ValueLabels, OfTwoThatRunTogetherTheSmallerIsLeftOut) {
    const std::vector<PlacedValue> placed =
        PlaceValues({Bar(0, 2, {10, 4}), Bar(10, 3, {10, 4}), Bar(20, 2, {9, 4})}, kRoom, {});
    EXPECT_FALSE(placed[0].IsShown);
    ExpectAt(placed[1], {15, 45});
    EXPECT_TRUE(placed[2].IsShown) << "it may end where its bar does";
}
