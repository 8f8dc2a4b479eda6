#include "penlode/engine/SurfaceState.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace penlode;

namespace {

PointF ToDevice(const CSurfaceState& state, PointF point) {
    state.TransformPoints(CoordinateSpace::Device, CoordinateSpace::World, &point, 1);
    return point;
}

void ExpectNear(PointF actual, PointF expected) {
    EXPECT_NEAR(actual.X, expected.X, 1e-4F);
    EXPECT_NEAR(actual.Y, expected.Y, 1e-4F);
}

} // namespace

TEST(SurfaceState, UnitsScaleToTheDevice) {
    CSurfaceState state(254, 508);
    EXPECT_EQ(state.GetPageUnit(), Unit::Millimeter);
    ExpectNear(ToDevice(state, {1, 1}), {10, 20});
    state.SetPageUnit(Unit::Inch);
    state.SetPageScale(0.5F);
    ExpectNear(ToDevice(state, {1, 1}), {127, 254});
    state.SetPageUnit(Unit::Document);
    ExpectNear(ToDevice(state, {600, 300}), {254, 254});
}

TEST(SurfaceState, RefusesUnsoundUnitsScalesAndTransforms) {
    CSurfaceState state(96, 96);
    EXPECT_EQ(state.SetPageUnit(Unit::World), Status::InvalidParameter);
    EXPECT_EQ(state.SetPageUnit(static_cast<Unit>(7)), Status::InvalidParameter);
    EXPECT_EQ(state.SetPageScale(0), Status::InvalidParameter);
    EXPECT_EQ(state.SetPageScale(INFINITY), Status::InvalidParameter);
    EXPECT_EQ(state.Transform(Matrix::Translation(NAN, 0), MatrixOrder::Prepend), Status::InvalidParameter);
    EXPECT_EQ(state.GetPageScale(), 1.0F);
    EXPECT_EQ(state.WorldToDevice().Dx, 0.0);
}

TEST(SurfaceState, PrependedStepsActFirst) {
    CSurfaceState state(25.4, 25.4);
    state.Transform(Matrix::Translation(10, 0), MatrixOrder::Prepend);
    state.Transform(Matrix::Rotation(90), MatrixOrder::Prepend);
    ExpectNear(ToDevice(state, {1, 0}), {10, 1});
    state.Transform(Matrix::Scale(2, 3), MatrixOrder::Append);
    ExpectNear(ToDevice(state, {1, 0}), {20, 3});
}

TEST(SurfaceState, AContainerWithTheSameUnitsDrawsWhereTheOuterTransformPutsIt) {
    CSurfaceState state(254, 254);
    state.Transform(Matrix::Translation(3, 4), MatrixOrder::Prepend);
    state.Transform(Matrix::Rotation(30), MatrixOrder::Prepend);
    const PointF outside = ToDevice(state, {5, 6});

    const std::uint32_t container = state.BeginContainer();
    EXPECT_EQ(state.GetPageUnit(), Unit::Display);
    ExpectNear(ToDevice(state, {0, 0}), {30, 40});
    state.SetPageUnit(Unit::Millimeter);
    ExpectNear(ToDevice(state, {5, 6}), outside);
    state.Transform(Matrix::Translation(100, 0), MatrixOrder::Prepend);

    EXPECT_EQ(state.EndContainer(container), Status::Ok);
    EXPECT_EQ(state.GetPageUnit(), Unit::Millimeter);
    ExpectNear(ToDevice(state, {5, 6}), outside);
}

TEST(SurfaceState, EndingAContainerEndsThoseInsideIt) {
    CSurfaceState state(96, 96);
    const std::uint32_t outer = state.BeginContainer();
    const std::uint32_t inner = state.BeginContainer();
    EXPECT_EQ(state.EndContainer(outer), Status::Ok);
    EXPECT_EQ(state.EndContainer(inner), Status::InvalidParameter);
    EXPECT_EQ(state.EndContainer(outer), Status::InvalidParameter);
    EXPECT_NE(state.BeginContainer(), outer);
}

TEST(SurfaceState, AHundredThousandContainersAreCountedOnce) {
    CSurfaceState state(96, 96);
    state.CombineClip(Region(RectF{1, 2, 3, 4}), CombineMode::Replace);
    std::vector<std::uint32_t> open;
    for (int i = 0; i < 100000; ++i) {
        open.push_back(state.BeginContainer());
        ASSERT_EQ(state.ClipCount(), state.DeviceClips().size());
    }
    state.CombineClip(Region(RectF{5, 5, 5, 5}), CombineMode::Replace);
    EXPECT_EQ(state.ClipCount(), 2U);
    for (; !open.empty(); open.pop_back()) {
        ASSERT_EQ(state.EndContainer(open.back()), Status::Ok);
        ASSERT_EQ(state.DeviceClips().size(), 1U);
    }
}

TEST(SurfaceState, PointsGoBetweenSpaces) {
    CSurfaceState state(254, 254);
    state.Transform(Matrix::Translation(1, 2), MatrixOrder::Prepend);
    PointF points[] = {{0, 0}, {1, 1}};
    EXPECT_EQ(state.TransformPoints(CoordinateSpace::Page, CoordinateSpace::World, points, 2), Status::Ok);
    ExpectNear(points[1], {2, 3});
    EXPECT_EQ(state.TransformPoints(CoordinateSpace::World, CoordinateSpace::Device, points, 2), Status::Ok);
    ExpectNear(points[1], {-0.8F, -1.7F});
    EXPECT_EQ(state.TransformPoints(CoordinateSpace::Page, CoordinateSpace::World, nullptr, 1),
              Status::InvalidParameter);

    const Matrix flat{1, 0, 0, 0, 0, 0};
    state.SetTransform(&flat);
    EXPECT_EQ(state.TransformPoints(CoordinateSpace::World, CoordinateSpace::Page, points, 2),
              Status::InvalidParameter);
}

TEST(SurfaceState, ClipsAreKeptInDeviceCoordinatesContainerByContainer) {
    CSurfaceState state(254, 254);
    state.CombineClip(Region::Shape{RectF{1, 2, 3, 4}}, CombineMode::Replace);
    const std::uint32_t container = state.BeginContainer();
    state.CombineClip(Region(RectF{5, 5, 5, 5}), CombineMode::Intersect);
    const std::vector<Region> clips = state.DeviceClips();
    ASSERT_EQ(clips.size(), 2U);
    EXPECT_EQ(std::get<RectF>(clips[0].Steps().front().Operand), (RectF{10, 20, 30, 40}));
    EXPECT_EQ(std::get<RectF>(clips[1].Steps().front().Operand), (RectF{5, 5, 5, 5}));
    state.EndContainer(container);
    EXPECT_EQ(state.WorldClip(), Region(RectF{1, 2, 3, 4}));
    state.ResetClip();
    EXPECT_TRUE(state.DeviceClips().empty());
}
