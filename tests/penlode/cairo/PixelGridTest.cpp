#include "penlode/cairo/Picture.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

using namespace penlode;

namespace {

const Pen kThin(kBlack, 0.1F);
const Pen kTwo(kBlack, 2.4F);
const Pen kThree(kBlack, 2.6F);
const SolidBrush kBrush{kBlack};

/// What is drawn on a surface of 8 x 6 pixels.
std::string On8x6(void (*draw)(CGraphicsEngine&)) {
    const auto g = PixelSurface(8, 6);
    draw(*g);
    return "\n" + Drawn(*g);
}

template <std::size_t Count>
void Polyline(CGraphicsEngine& g, const Pen& pen, const PointF (&points)[Count]) {
    g.DrawLines(&pen, points, static_cast<std::int32_t>(Count));
}

/// Steps of a pixel down a surface, between its columns.
std::vector<PointF> Stairs(std::size_t points) {
    std::vector<PointF> stairs;
    for (std::size_t i = 0; i < points; ++i) {
        stairs.push_back({static_cast<float>(i / 2) + 0.75F, static_cast<float>((i + 1) / 2) + 0.75F});
    }
    return stairs;
}

} // namespace

TEST(PixelGrid, LinesAreWholePixelsAndStayOnTheSurface) {
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  g.DrawLine(&kThin, 1.3F, 1.4F, 5.2F, 1.4F);
                  g.DrawLine(&kThin, 8, 0.6F, 8, 3.3F);
                  g.DrawLine(&kThin, 3, 6, 0, 6);
              }),
              "\n........\n.#####.#\n.......#\n.......#\n........\n####....\n");
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  g.DrawLine(&kTwo, 0, 6, 3, 6);
                  g.DrawLine(&kTwo, 0, 2, 3, 2);
                  g.DrawLine(&kThree, 8, 0, 8, 2);
                  g.DrawLine(&kThree, 6, 4, 6, 5);
              }),
              "\n......##\n###...##\n###...##\n........\n.....###\n###..###\n");
}

TEST(PixelGrid, LinesShorterThanAPixelAreOne) {
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  g.DrawLine(&kThin, 1.1F, 1.2F, 1.3F, 1.2F);
                  g.DrawLine(&kThree, 4.8F, 2.2F, 5.1F, 2.2F);
                  g.DrawLine(&kThree, 3.2F, 4.8F, 3.2F, 5.1F);
                  g.DrawLine(&kThin, 8, 5.6F, 8, 6);
                  g.DrawLine(&kThin, 0, 5, 0, 5);
              }),
              "\n........\n.#...#..\n.....#..\n.....#..\n........\n..###..#\n");
}

TEST(PixelGrid, PolylinesCloseTheirCornersAndIncludeTheirEnds) {
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  Polyline(g, kThin, {{1, 4.2F}, {1, 1.3F}, {1, 1.3F}, {5.4F, 1.3F}, {5.4F, 3.1F}});
              }),
              "\n........\n.#####..\n.#...#..\n.#...#..\n.#......\n........\n");
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  Polyline(g, kTwo, {{2, 5}, {2, 2}, {6, 2}});
              }),
              "\n........\n.#####..\n.#####..\n.##.....\n.##.....\n........\n");
    // The noise of single precision does not send two ends different ways; a slant of more is one.
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  Polyline(g, kThin, {{0, 1.509F}, {4, 1.491F}, {4, 5}});
                  Polyline(g, kThin, {{7.49F, 0}, {7.505F, 6}});
              }),
              "\n.......#\n.......#\n#####..#\n....#..#\n....#..#\n....#..#\n");
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  g.DrawLine(&kThin, 0, 1.02F, 8, 1.035F);
                  g.DrawLine(&kThin, 0, 4.02F, 8, 4.05F);
              }),
              "\n........\n########\n........\n++++++++\n++++++++\n........\n");
}

TEST(PixelGrid, DataAreNotSnappedHoweverSteepTheirSteps) {
    for (const std::size_t count : {64U, 65U}) {
        const auto g = PixelSurface(40, 40);
        const std::vector<PointF> stairs = Stairs(count);
        g->DrawLines(&kThin, stairs.data(), static_cast<std::int32_t>(count));
        EXPECT_EQ(InkOf(*g) == CountOf(g->Pixels(), kBlack), count == 64U) << count;
    }
}

TEST(PixelGrid, OutlinesFollowTheEdgesOfTheFill) {
    const SolidBrush red{Color{0xFFFF0000}};
    const auto g = PixelSurface(8, 6);
    g->FillRectangle(&red, 1.4F, 0.6F, 5.2F, 3.1F);
    EXPECT_EQ(Drawn(*g), "........\n.++++++.\n.++++++.\n.++++++.\n........\n........\n");
    g->DrawRectangle(&kThin, 1.4F, 0.6F, 5.2F, 3.1F);
    EXPECT_EQ(Drawn(*g), "........\n.#######\n.#+++++#\n.#+++++#\n.#######\n........\n");
}

TEST(PixelGrid, FramesOfTheWholeSurfaceHaveFourSides) {
    constexpr const char* kFrame = "\n########\n#......#\n#......#\n#......#\n#......#\n########\n";
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) { g.DrawRectangle(&kThin, 0, 0, 8, 6); }), kFrame);
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  const PointF corners[] = {{0, 0}, {0, 6}, {8, 6}, {8, 0}};
                  g.DrawPolygon(&kThin, corners, 4);
              }),
              kFrame);
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  Polyline(g, kThin, {{0, 0}, {8, 0}, {8, 6}, {0, 6}, {0, 0}});
              }),
              kFrame);
}

TEST(PixelGrid, BoxesWithoutExtentAreLinesForAPenAndNothingForABrush) {
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  g.DrawRectangle(&kThin, 1, 1, 0, 3);
                  g.DrawRectangle(&kThin, 3, 2, 3, 0);
                  g.DrawRectangle(&kThin, 3, 3, 2, -2);
                  g.FillRectangle(&kBrush, 3, 4, 0, 2);
                  g.FillRectangle(&kBrush, 3, 4, 2, -2);
              }),
              "\n........\n.#......\n.#.####.\n.#......\n.#......\n........\n");
}

TEST(PixelGrid, ThinBoxesKeepAPixelAndPolygonsThatAreBoxesAreSnapped) {
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  g.FillRectangle(&kBrush, 0.6F, 1.2F, 4, 0.1F);
                  const PointF down[] = {{1.4F, 3.4F}, {1.4F, 5.6F}, {3.6F, 5.6F}, {3.6F, 3.4F}};
                  const PointF across[] = {{7.6F, 3.4F}, {5.4F, 3.4F}, {5.4F, 5.6F}, {7.6F, 5.6F}};
                  g.FillPolygon(&kBrush, down, 4);
                  g.FillPolygon(&kBrush, across, 4);
              }),
              "\n........\n.####...\n........\n.##..##.\n.##..##.\n........\n");
}

TEST(PixelGrid, SmallSquaresKeepTheirSizeWhereverTheyStand) {
    const auto ink = [](float at, float width, float height) {
        const auto g = PixelSurface(60, 60);
        g->FillRectangle(&kBrush, at, at, width, height);
        return InkOf(*g);
    };
    for (int i = 0; i < 10; ++i) {
        const float at = 2.0F + static_cast<float>(i) * 0.1F;
        EXPECT_EQ(ink(at, 5.5F, 5.505F), 36) << at;
    }
    EXPECT_EQ(ink(2.7F, 5.5F, 5.6F), 25) << "no square: from 3 to 8";
    EXPECT_EQ(ink(2.7F, 31.5F, 31.5F), 32 * 32);
    EXPECT_EQ(ink(2.7F, 32.5F, 32.5F), 32 * 32) << "no small one: from 3 to 35";
}

TEST(PixelGrid, FacesOfABarMeet) {
    const SolidBrush half{Color{0x80000000}};
    const auto g = PixelSurface(14, 12);
    g->FillRectangle(&half, 2.3F, 4.7F, 5.1F, 6);
    const PointF side[] = {{7.4F, 4.7F}, {10.4F, 1.7F}, {10.4F, 7.7F}, {7.4F, 10.7F}};
    g->FillPolygon(&half, side, 4);
    const Image image = g->Pixels();
    const Color once = PixelAt(image, 3, 6);
    for (int y = 5; y < 11; ++y) {
        EXPECT_EQ(PixelAt(image, 6, y), once);
    }
    EXPECT_EQ(PixelAt(image, 7, 7), once);
    EXPECT_EQ(PixelAt(image, 9, 5), once);
}

TEST(PixelGrid, FillsThatMeetLeaveNoGapAndDoNotOverlap) {
    const SolidBrush half{Color{0x80000000}};
    const auto g = PixelSurface(60, 2);
    for (int i = 0; i < 40; ++i) {
        g->FillRectangle(&half, static_cast<float>(i) * 1.45F, 0, 1.45F, 1);
    }
    g->FillRectangle(&half, 0, 1, 3.4999990F, 1);
    g->FillRectangle(&half, 3.5000010F, 1, 3, 1);
    EXPECT_EQ(CountOf(g->Pixels(), PixelAt(g->Pixels(), 0, 0)), 58 + 7);
}

TEST(PixelGrid, WhatSlantsIsNotSnapped) {
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  Polyline(g, kTwo, {{0, 2.5F}, {5, 2.5F}, {8, 2.6F}});
              }),
              "\n........\n++++++++\n#######+\n++++++++\n........\n........\n");
    EXPECT_EQ(On8x6([](CGraphicsEngine& g) {
                  const PointF diamond[] = {{3.5F, 0.5F}, {6.5F, 3}, {3.5F, 5.5F}, {0.5F, 3}};
                  g.FillPolygon(&kBrush, diamond, 4);
              }),
              "\n..+++...\n.++#++..\n++###++.\n++###++.\n.++#++..\n..+++...\n");
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
