#include "penlode/cairo/Picture.h"
#include "penlode/engine/SurfaceState.h"

#include <array>
#include <gtest/gtest.h>
#include <set>

using namespace penlode;

namespace {

const SolidBrush kBrush{kBlack};

/// Pixels of a 20 x 10 surface that a full fill leaves on it.
std::ptrdiff_t Clipped(CGraphicsEngine& g) {
    g.FillRectangle(&kBrush, 0, 0, 20, 10);
    return InkOf(g);
}

/// Two squares of 36 pixels share 9.
constexpr RectF kA{1, 1, 6, 6};
constexpr RectF kB{4, 4, 6, 6};

struct ModeCase {
    CombineMode Mode;
    std::ptrdiff_t Pixels;
};

} // namespace

/// A union is no intersection of even-odd areas, so all of these go through masks.
TEST(Clip, EveryModeCombinesWithAUnion) {
    constexpr std::array<ModeCase, 6> kWithUnion{{{CombineMode::Replace, 20},
                                                  {CombineMode::Intersect, 14},
                                                  {CombineMode::Union, 69},
                                                  {CombineMode::Xor, 55},
                                                  {CombineMode::Exclude, 49},
                                                  {CombineMode::Complement, 6}}};
    for (const ModeCase& c : kWithUnion) {
        const auto g = PixelSurface(20, 10);
        g->SetClip(kA, CombineMode::Replace);
        g->SetClip(kB, CombineMode::Union);
        g->SetClip(RectF{3, 5, 10, 2}, c.Mode);
        EXPECT_EQ(Clipped(*g), c.Pixels) << static_cast<int>(c.Mode);
    }
}

TEST(Clip, ARegionAsOperandIsOneArea) {
    Region both(kA);
    both.Combine(kB, CombineMode::Union);
    const auto g = PixelSurface(20, 10);
    g->SetClip(RectF{0, 0, 20, 10}, CombineMode::Replace);
    g->SetClip(&both, CombineMode::Exclude);
    EXPECT_EQ(Clipped(*g), 200 - 63);
}

TEST(Clip, EverythingAndNothingAreOperandsToo) {
    const auto g = PixelSurface(20, 10);
    Region empty;
    empty.MakeEmpty();
    g->SetClip(&empty, CombineMode::Intersect);
    EXPECT_EQ(Clipped(*g), 0);
    g->SetClip(kA, CombineMode::Union);
    EXPECT_EQ(Clipped(*g), 36);
    g->ResetClip();
    EXPECT_EQ(Clipped(*g), 200);
}

TEST(Clip, MasksBeginWithTheWholePlane) {
    const auto g = PixelSurface(20, 10);
    g->SetClip(kA, CombineMode::Exclude);
    g->SetClip(kB, CombineMode::Union);
    EXPECT_EQ(Clipped(*g), 200 - 36 + 9);
}

TEST(Clip, ContainersClipInsideTheOuterClip) {
    const auto g = PixelSurface(20, 10);
    g->SetClip(kA, CombineMode::Replace);
    g->SetClip(kB, CombineMode::Union);
    const std::uint32_t container = g->BeginContainer();
    g->SetPageUnit(Unit::Millimeter);
    g->TranslateTransform(1, 1, MatrixOrder::Prepend);
    g->SetClip(RectF{0, 0, 3, 20}, CombineMode::Replace);
    EXPECT_EQ(Clipped(*g), 18);
    g->EndContainer(container);
    EXPECT_EQ(Clipped(*g), 63);
}

TEST(Clip, TurnsWithTheTransformAndIsReadBackInWorldCoordinates) {
    const auto g = PixelSurface(20, 10);
    g->TranslateTransform(10, 2, MatrixOrder::Prepend);
    g->RotateTransform(90, MatrixOrder::Prepend);
    g->SetClip(RectF{0, 0, 5, 3}, CombineMode::Replace);
    Region read;
    g->GetClip(&read);
    ASSERT_EQ(read.Steps().size(), 1U);
    const RectF rect = std::get<RectF>(read.Steps().front().Operand);
    EXPECT_NEAR(rect.Width, 5, 1e-5);
    EXPECT_NEAR(rect.Height, 3, 1e-5);
    g->ResetTransform();
    EXPECT_EQ(Clipped(*g), 15);
    EXPECT_EQ(PixelAt(g->Pixels(), 7, 2), kBlack);
}

TEST(Clip, MasksKeepColoursAndTranslucence) {
    const auto g = PixelSurface(20, 10);
    g->SetClip(kA, CombineMode::Replace);
    g->SetClip(kB, CombineMode::Union);
    const SolidBrush brush{Color{0x80FF0000}};
    g->FillRectangle(&brush, 0, 0, 20, 10);
    EXPECT_EQ(CountOf(g->Pixels(), Color{0xFFFF7F7F}), 63);
}

TEST(Clip, EveryChangeIsFollowedBetweenDrawings) {
    const auto g = PixelSurface(10, 10);
    const SolidBrush brush{kBlack};
    const auto ink = [&] {
        const SolidBrush white{kWhite};
        g->FillRectangle(&brush, 0, 0, 10, 10);
        const auto count = InkOf(*g);
        g->FillRectangle(&white, 0, 0, 10, 10);
        return count;
    };
    g->SetClip(RectF{0, 0, 5, 10}, CombineMode::Replace);
    EXPECT_EQ(ink(), 50);
    const std::uint32_t container = g->BeginContainer();
    g->SetPageUnit(Unit::Millimeter);
    g->SetClip(RectF{0, 0, 10, 2}, CombineMode::Replace);
    EXPECT_EQ(ink(), 10);
    g->ResetClip();
    EXPECT_EQ(ink(), 50);
    g->SetClip(RectF{0, 0, 10, 3}, CombineMode::Intersect);
    EXPECT_EQ(ink(), 15);
    g->EndContainer(container);
    EXPECT_EQ(ink(), 50);
    g->ResetClip();
    EXPECT_EQ(ink(), 100);
}

TEST(Clip, AGenerationIsNeverSeenAgain) {
    CSurfaceState state(96, 96);
    std::set<std::uint64_t> seen{state.ClipGeneration()};
    const auto isNew = [&] { return seen.insert(state.ClipGeneration()).second; };
    state.CombineClip(Region::Shape{RectF{0, 0, 1, 1}}, CombineMode::Replace);
    EXPECT_TRUE(isNew());
    const std::uint32_t container = state.BeginContainer();
    EXPECT_TRUE(isNew());
    state.CombineClip(Region(RectF{0, 0, 1, 1}), CombineMode::Xor);
    EXPECT_TRUE(isNew());
    state.EndContainer(container);
    EXPECT_TRUE(isNew());
    state.ResetClip();
    EXPECT_TRUE(isNew());
    EXPECT_FALSE(isNew());
}
