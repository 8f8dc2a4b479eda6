#include "penlode/cairo/Picture.h"

#include <array>
#include <gtest/gtest.h>

using namespace penlode;

namespace {

const Pen kPen(kBlack, 1.0F);
const SolidBrush kBrush{kBlack};

} // namespace

TEST(PixelGrid, AxisParallelLinesAreWholePixels) {
    const auto g = PixelSurface(8, 5);
    const Pen thin(kBlack, 0.1F);
    g->DrawLine(&thin, 1.3F, 1.4F, 5.2F, 1.4F);
    g->DrawLine(&thin, 6.7F, 0.6F, 6.7F, 3.3F);
    EXPECT_EQ(Drawn(*g), "........\n"
                         ".#####.#\n"
                         ".......#\n"
                         ".......#\n"
                         "........\n");
}

TEST(PixelGrid, OutlineFollowsTheEdgesOfTheFill) {
    const auto g = PixelSurface(8, 6);
    const SolidBrush red{Color{0xFFFF0000}};
    g->FillRectangle(&red, 1.4F, 0.6F, 5.2F, 3.1F);
    EXPECT_EQ(Drawn(*g), "........\n.++++++.\n.++++++.\n.++++++.\n........\n........\n");
    g->DrawRectangle(&kPen, 1.4F, 0.6F, 5.2F, 3.1F);
    EXPECT_EQ(Drawn(*g), "........\n"
                         ".#######\n"
                         ".#+++++#\n"
                         ".#+++++#\n"
                         ".#######\n"
                         "........\n");
}

TEST(PixelGrid, FrameOfTheWholePageHasFourSides) {
    const auto g = PixelSurface(4, 3);
    g->DrawRectangle(&kPen, 0, 0, 4, 3);
    EXPECT_EQ(Drawn(*g), "####\n#..#\n####\n");
}

TEST(PixelGrid, FillsThatMeetLeaveNoGapAndDoNotOverlap) {
    const auto g = PixelSurface(60, 1);
    const SolidBrush half{Color{0x80000000}};
    for (int i = 0; i < 40; ++i) {
        g->FillRectangle(&half, static_cast<float>(i) * 1.45F, 0, 1.45F, 1);
    }
    EXPECT_EQ(CountOf(g->Pixels(), PixelAt(g->Pixels(), 0, 0)), 58);
}

TEST(PixelGrid, EdgesOnTheHalfPixelIgnoreFloatNoise) {
    const auto g = PixelSurface(8, 1);
    const SolidBrush half{Color{0x80000000}};
    g->FillRectangle(&half, 0, 0, 3.4999990F, 1);
    g->FillRectangle(&half, 3.5000010F, 0, 3, 1);
    EXPECT_EQ(CountOf(g->Pixels(), PixelAt(g->Pixels(), 0, 0)), 7);
}

TEST(PixelGrid, MarkersOfOneSizeLookAlikeWhereverTheyStand) {
    for (int i = 0; i < 10; ++i) {
        const auto g = PixelSurface(12, 12);
        const float at = 2.0F + static_cast<float>(i) * 0.1F;
        g->FillRectangle(&kBrush, at, at, 5.5F, 5.5F);
        EXPECT_EQ(InkOf(*g), 36) << at;
    }
}

TEST(PixelGrid, FacesOfABarMeet) {
    const auto g = PixelSurface(14, 12);
    const SolidBrush half{Color{0x80000000}};
    g->FillRectangle(&half, 2.3F, 4.7F, 5.1F, 6);
    const std::array<PointF, 4> side{{{7.4F, 4.7F}, {10.4F, 1.7F}, {10.4F, 7.7F}, {7.4F, 10.7F}}};
    g->FillPolygon(&half, side.data(), 4);
    const Image image = g->Pixels();
    const Color once = PixelAt(image, 3, 6);
    for (int y = 5; y < 11; ++y) {
        EXPECT_EQ(PixelAt(image, 6, y), once);
    }
    EXPECT_EQ(PixelAt(image, 7, 7), once);
    EXPECT_EQ(PixelAt(image, 9, 5), once);
}

TEST(PixelGrid, SlantedLinesAndCurvesAreNotSnapped) {
    const auto g = PixelSurface(12, 6);
    const std::array<PointF, 3> bend{{{0, 2.5F}, {6, 2.5F}, {12, 0}}};
    const Pen wide(kBlack, 2);
    g->DrawLines(&wide, bend.data(), 3);
    EXPECT_NEAR(PixelAt(g->Pixels(), 1, 1).R(), 0x80U, 0x10);
    EXPECT_EQ(PixelAt(g->Pixels(), 1, 2), kBlack);
}

TEST(PixelGrid, WidthsAreWholePixelsOnTheGrid) {
    const auto g = PixelSurface(5, 7);
    const Pen wide(kBlack, 2.6F);
    g->DrawLine(&wide, 0, 3.2F, 5, 3.2F);
    EXPECT_EQ(Drawn(*g), ".....\n.....\n#####\n#####\n#####\n.....\n.....\n");
}

TEST(PixelGrid, DashesAreMultiplesOfTheWidthDrawn) {
    const auto g = PixelSurface(14, 3);
    const Pen dash(kBlack, 0.1F, DashStyle::DashDot);
    g->DrawLine(&dash, 0, 1, 13, 1);
    EXPECT_EQ(Drawn(*g), "..............\n###.#.###.#.##\n..............\n");
}

TEST(PixelGrid, QuarterTurnsSnapAndOtherTurnsDoNot) {
    const auto turned = [](float degrees) {
        auto g = PixelSurface(20, 20);
        g->TranslateTransform(10.3F, 10.3F, MatrixOrder::Prepend);
        g->RotateTransform(degrees, MatrixOrder::Prepend);
        g->FillRectangle(&kBrush, -4, -2, 8, 4);
        return g;
    };
    EXPECT_EQ(CountOf(turned(0)->Pixels(), kBlack), 32);
    EXPECT_EQ(InkOf(*turned(90)), 32);
    EXPECT_GT(InkOf(*turned(30)), CountOf(turned(30)->Pixels(), kBlack));
}

TEST(PixelGrid, SmoothingCanBeSwitchedOff) {
    const auto g = PixelSurface(20, 20);
    g->SetSmoothingMode(SmoothingMode::None);
    g->FillEllipse(&kBrush, 1, 2, 17, 15);
    EXPECT_EQ(InkOf(*g), CountOf(g->Pixels(), kBlack));
}

TEST(PixelGrid, WhatHasNoExtentFillsNothing) {
    const auto g = PixelSurface(6, 6);
    g->FillRectangle(&kBrush, 3, 3, 0, 2);
    g->FillRectangle(&kBrush, 3, 3, 2, -2);
    g->DrawRectangle(&kPen, 3, 3, 2, -2);
    g->DrawLine(&kPen, 2, 2, 2, 2);
    EXPECT_EQ(InkOf(*g), 0);
    g->FillRectangle(&kBrush, 1, 3, 4, 0.1F);
    EXPECT_EQ(InkOf(*g), 4);
}
