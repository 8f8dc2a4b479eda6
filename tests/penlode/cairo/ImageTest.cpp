#include "penlode/cairo/Picture.h"
#include "penlode/svg/StoredPng.h"
#include "support/PngFile.h"

#include <gtest/gtest.h>

using namespace penlode;

namespace {

constexpr Color kRed{0xFFFF0000};
constexpr Color kGreen{0xFF00FF00};
constexpr Color kBlue{0xFF0000FF};

/// red green
/// blue black
Image FourPixels() {
    return {2, 2, 50.8F, 50.8F, {kRed, kGreen, kBlue, kBlack}};
}

bool CountAndStop(void* asked) {
    ++*static_cast<int*>(asked);
    return true;
}

} // namespace

/// As an SVG document has a picture in it; the larger one takes several blocks.
TEST(Image, StoredAsPngKeepsEveryPixel) {
    for (const auto& [width, height] : {std::pair(3, 2), {300, 200}}) {
        std::vector<Color> pixels;
        for (int i = 0; i < width * height; ++i) {
            const auto value = static_cast<std::uint32_t>(i);
            pixels.push_back(Color::FromArgb(255 - value % 7, value, value >> 8U, 3));
        }
        const Image read = DecodePng(svg::StoredPng(pixels, static_cast<std::size_t>(width)));
        EXPECT_EQ(read.Width, width);
        EXPECT_EQ(read.Pixels, pixels);
    }
}

TEST(Image, PixelsLandOnPixels) {
    const auto g = PixelSurface(4, 4);
    const Image image = FourPixels();
    EXPECT_EQ(g->DrawImage(&image, RectF{1.2F, 0.9F, 2, 2}), Status::Ok);
    const Image drawn = g->Pixels();
    EXPECT_EQ(PixelAt(drawn, 1, 1), kRed);
    EXPECT_EQ(PixelAt(drawn, 2, 1), kGreen);
    EXPECT_EQ(PixelAt(drawn, 1, 2), kBlue);
    EXPECT_EQ(PixelAt(drawn, 2, 2), kBlack);
    EXPECT_EQ(CountOf(drawn, kWhite), 12);
}

TEST(Image, TheSourceIsInItsUnitAtTheImagesResolution) {
    const auto g = PixelSurface(4, 4);
    const Image image = FourPixels();
    g->DrawImage(&image, RectF{0, 0, 4, 4}, 0.5F, 0, 0.5F, 0.5F, Unit::Millimeter, nullptr, nullptr, nullptr);
    EXPECT_EQ(CountOf(g->Pixels(), kGreen), 16);
}

TEST(Image, ASourceBeyondTheImageDrawsOnlyThePartThatExists) {
    const auto g = PixelSurface(6, 6);
    const Image image = FourPixels();
    g->DrawImage(&image, RectF{0, 0, 6, 6}, -2, -2, 6, 6, Unit::Pixel, nullptr, nullptr, nullptr);
    EXPECT_EQ(CountOf(g->Pixels(), kWhite), 32);
    EXPECT_EQ(PixelAt(g->Pixels(), 2, 2), kRed);
    EXPECT_EQ(
        g->DrawImage(&image, RectF{0, 0, 6, 6}, 1e30F, 0, 1e30F, 6, Unit::Pixel, nullptr, nullptr, nullptr),
        Status::Ok);
}

TEST(Image, AnEnlargedPictureKeepsItsEdgesAndANegativeExtentMirrorsIt) {
    const auto g = PixelSurface(20, 20);
    const Image image = FourPixels();
    g->DrawImage(&image, RectF{18, 2, -16, 16});
    EXPECT_EQ(PixelAt(g->Pixels(), 2, 2), kGreen);
    EXPECT_EQ(PixelAt(g->Pixels(), 17, 2), kRed);
    EXPECT_EQ(PixelAt(g->Pixels(), 1, 2), kWhite);
    EXPECT_EQ(CountOf(g->Pixels(), kWhite), 400 - 256);
}

TEST(Image, TheColourMatrixActsOnStraightColours) {
    const auto g = PixelSurface(2, 2);
    const Image image = FourPixels();
    ImageAttributes swapped;
    swapped.ColorMatrix = {
        {{0, 0, 1, 0, 0}, {0, 1, 0, 0, 0}, {1, 0, 0, 0, 0}, {0, 0, 0, 1, 0}, {0, 0.5F, 0, 0, 1}}};
    g->DrawImage(&image, RectF{0, 0, 2, 2}, 0, 0, 2, 2, Unit::Pixel, &swapped, nullptr, nullptr);
    EXPECT_EQ(PixelAt(g->Pixels(), 0, 0), (Color{0xFF0080FF}));
    EXPECT_EQ(PixelAt(g->Pixels(), 1, 0), kGreen);
}

TEST(Image, TheCallbackEndsTheDrawing) {
    const auto g = PixelSurface(4, 4);
    const Image image = FourPixels();
    int asked = 0;
    EXPECT_EQ(g->DrawImage(&image, RectF{0, 0, 4, 4}, 0, 0, 2, 2, Unit::Pixel, nullptr, CountAndStop, &asked),
              Status::Aborted);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(InkOf(*g), 0);
}

TEST(Image, FewPixelsCoverAWholeLargePicture) {
    const auto g = PixelSurface(12000, 2);
    const Image red{1, 1, 96.0F, 96.0F, {kRed}};
    EXPECT_EQ(g->DrawImage(&red, RectF{-1e6F, 0, 2e6F, 1}), Status::Ok);
    const Image two{2, 1, 96.0F, 96.0F, {kGreen, kBlue}};
    EXPECT_EQ(g->DrawImage(&two, RectF{-6000, 1, 30000, 1}), Status::Ok);
    const Image drawn = g->Pixels();
    EXPECT_EQ(CountOf(drawn, kRed), 12000);
    EXPECT_GT(PixelAt(drawn, 0, 1).G(), 0x80U);
    EXPECT_GT(PixelAt(drawn, 11999, 1).B(), 0x60U);
    EXPECT_EQ(CountOf(drawn, kWhite), 0);
}

TEST(Image, StretchesOfEveryStrengthAreDrawnOrLeftOut) {
    const auto g = PixelSurface(20, 20);
    const Image image = FourPixels();
    for (float x = 1e-6F; x < 1e6F; x *= 7.0F) {
        for (float y = 1e-6F; y < 1e6F; y *= 7.0F) {
            EXPECT_EQ(g->DrawImage(&image, RectF{3, 4, x, y}), Status::Ok) << x << " " << y;
        }
    }
}
