#include "penlode/cairo/CairoHandles.h"
#include "penlode/cairo/Picture.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace penlode;

namespace {

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;

/// Darkness of each pixel of a white picture, 255 for black.
using Ink = std::vector<int>;

/// A random walk from the left edge to the right that fills the height.
std::vector<PointF> Walk(std::size_t count) {
    std::mt19937 random(7);
    std::vector<float> heights;
    float height = 0.0F;
    for (std::size_t i = 0; i < count; ++i) {
        height += static_cast<float>(random() % 2001U) - 1000.0F;
        heights.push_back(height);
    }
    const auto [low, high] = std::minmax_element(heights.begin(), heights.end());
    std::vector<PointF> points;
    for (std::size_t i = 0; i < count; ++i) {
        points.push_back({static_cast<float>(i) * kWidth / static_cast<float>(count - 1),
                          5.0F + (heights[i] - *low) / (*high - *low) * (kHeight - 10)});
    }
    return points;
}

Ink Drawn(const std::vector<PointF>& points, const Pen& pen) {
    const auto engine = PixelSurface(kWidth, kHeight);
    EXPECT_EQ(engine->DrawLines(&pen, points.data(), static_cast<std::int32_t>(points.size())), Status::Ok);
    Ink ink;
    for (const Color c : engine->Pixels().Pixels) {
        ink.push_back(255 - static_cast<int>(c.R()));
    }
    return ink;
}

/// Every point in one stroke of Cairo's.
Ink StrokedInFull(const std::vector<PointF>& points, double width, double alpha = 1.0) {
    const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_A8, kWidth, kHeight));
    const CairoContext context(cairo_create(surface.get()));
    cairo_set_source_rgba(context.get(), 0.0, 0.0, 0.0, alpha);
    cairo_set_line_width(context.get(), width);
    cairo_set_miter_limit(context.get(), kMiterLimit);
    for (const PointF p : points) {
        cairo_line_to(context.get(), static_cast<double>(p.X), static_cast<double>(p.Y));
    }
    cairo_stroke(context.get());
    cairo_surface_flush(surface.get());
    const unsigned char* row = cairo_image_surface_get_data(surface.get());
    Ink ink;
    for (int y = 0; y < kHeight; ++y, row += cairo_image_surface_get_stride(surface.get())) {
        ink.insert(ink.end(), row, row + kWidth);
    }
    return ink;
}

/// Pixels in a thousand that differ by more than that.
double PerMilleApart(const Ink& a, const Ink& b, int tolerance) {
    int apart = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        apart += std::abs(a[i] - b[i]) > tolerance ? 1 : 0;
    }
    return 1000.0 * apart / static_cast<double>(a.size());
}

bool HasInkAround(const Ink& ink, int x, int y) {
    for (int j = std::max(0, y - 1); j <= std::min(kHeight - 1, y + 1); ++j) {
        for (int i = std::max(0, x - 1); i <= std::min(kWidth - 1, x + 1); ++i) {
            if (ink[static_cast<std::size_t>(j * kWidth + i)] > 0) {
                return true;
            }
        }
    }
    return false;
}

/// Inked pixels that are not next to any ink of the other picture.
int StrayPixels(const Ink& ink, const Ink& other) {
    int stray = 0;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            stray += ink[static_cast<std::size_t>(y * kWidth + x)] > 0 && !HasInkAround(other, x, y) ? 1 : 0;
        }
    }
    return stray;
}

} // namespace

TEST(DataLine, AThinnedLineLooksLikeTheFullOne) {
    const std::vector<PointF> walk = Walk(100000);
    for (const float width : {1.0F, 3.0F}) {
        const Ink thinned = Drawn(walk, Pen(kBlack, width));
        const Ink full = StrokedInFull(walk, static_cast<double>(width));
        EXPECT_LT(PerMilleApart(thinned, full, 32), 2.0) << width;
        EXPECT_LT(PerMilleApart(thinned, full, 64), 0.6) << width;
        EXPECT_EQ(StrayPixels(thinned, full), 0) << width;
    }
}

TEST(DataLine, ASparseLineIsCairosOwn) {
    for (const std::size_t count : {65U, 500U}) {
        const std::vector<PointF> walk = Walk(count);
        for (const float width : {1.0F, 2.5F, 9.0F}) {
            const Ink drawn = Drawn(walk, Pen(kBlack, width));
            EXPECT_LT(PerMilleApart(drawn, StrokedInFull(walk, static_cast<double>(width)), 24), 0.005)
                << count << " points, " << width << " pixels wide";
        }
    }
}

TEST(DataLine, ATranslucentLineIsEvenWhereItCrossesItself) {
    std::mt19937 random(3);
    std::vector<PointF> scribble;
    for (int i = 0; i < 300; ++i) {
        scribble.push_back({static_cast<float>(random() % kWidth), static_cast<float>(random() % kHeight)});
    }
    const Ink drawn = Drawn(scribble, Pen(Color{0x80000000}, 4.0F));
    EXPECT_LT(PerMilleApart(drawn, StrokedInFull(scribble, 4.0, 128.0 / 255.0), 32), 0.3);
    EXPECT_EQ(*std::max_element(drawn.begin(), drawn.end()), 128);
}

/// So many strokes that most lie on what is covered already; what they leave out on the right stays.
TEST(DataLine, AScribbleCoversWhatItsStrokesCover) {
    std::mt19937 random(3);
    std::vector<PointF> scribble;
    for (int i = 0; i < 12000; ++i) {
        scribble.push_back({static_cast<float>(random() % 400), static_cast<float>(random() % kHeight)});
    }
    scribble.push_back({900, 600});
    const Ink drawn = Drawn(scribble, Pen(kBlack, 2.0F));
    Ink parts(drawn.size());
    for (std::size_t i = 0; i + 400 < scribble.size(); i += 400) {
        const Ink part = StrokedInFull({scribble.begin() + static_cast<std::ptrdiff_t>(i),
                                        scribble.begin() + static_cast<std::ptrdiff_t>(i) + 401},
                                       2.0);
        std::transform(part.begin(), part.end(), parts.begin(), parts.begin(),
                       [](int a, int b) { return std::max(a, b); });
    }
    EXPECT_LT(PerMilleApart(drawn, parts, 64), 1.0);
    EXPECT_EQ(StrayPixels(drawn, parts), 0);
}

TEST(DataLine, ItIsClippedAndKeepsItsPlaceFarOutside) {
    std::vector<PointF> wave;
    for (int i = 0; i < 2000; ++i) {
        wave.push_back({static_cast<float>(i - 1000) * 1e5F, i % 2 == 0 ? -3e7F : 3e7F});
    }
    wave[1000] = {10.0F, -3e7F};
    wave[1001] = {10.0F, 3e7F};
    const Pen pen(kBlack, 2.0F);
    const auto engine = PixelSurface(20, 4);
    engine->SetClip(RectF{0, 1, 20, 2}, CombineMode::Replace);
    EXPECT_EQ(engine->DrawLines(&pen, wave.data(), 2000), Status::Ok);
    EXPECT_EQ(Drawn(*engine),
              "....................\n.........##.........\n.........##.........\n....................\n");
}

TEST(DataLine, MarkersOnOnePlaceAreDrawnOnce) {
    const auto once = PixelSurface(20, 20);
    const auto often = PixelSurface(20, 20);
    const SolidBrush brush{kBlack};
    once->FillEllipse(&brush, 4, 4, 9, 9);
    for (int i = 0; i < 50; ++i) {
        often->FillEllipse(&brush, 4.0F + 0.002F * static_cast<float>(i), 4, 9, 9);
    }
    EXPECT_EQ(often->Pixels().Pixels, once->Pixels().Pixels);
    // What lies elsewhere, shines through, or is drawn over something else is drawn.
    once->FillEllipse(&brush, 4.2F, 4, 9, 9);
    EXPECT_NE(often->Pixels().Pixels, once->Pixels().Pixels);
    const SolidBrush white{kWhite};
    const SolidBrush glass{Color{0x40FF0000}};
    for (const auto& engine : {once.get(), often.get()}) {
        engine->FillRectangle(&white, 0, 0, 20, 20);
        engine->FillRectangle(&glass, 2, 2, 5, 5);
    }
    const Color light = PixelAt(often->Pixels(), 3, 3);
    often->FillRectangle(&glass, 2, 2, 5, 5);
    EXPECT_NE(PixelAt(often->Pixels(), 3, 3), light);
    often->FillRectangle(&white, 0, 0, 20, 20);
    often->FillRectangle(&brush, 0, 0, 20, 20);
    often->FillRectangle(&white, 0, 0, 20, 20);
    EXPECT_EQ(InkOf(*often), 0);
}

TEST(DataLine, MarkersOfTheSameCornersButAnotherTurnAreDrawn) {
    const auto g = PixelSurface(20, 20);
    const SolidBrush brush{kBlack};
    g->FillRectangle(&brush, 0, 0, 10, 10);
    EXPECT_EQ(InkOf(*g), 100);
    g->RotateTransform(30, MatrixOrder::Prepend);
    g->FillRectangle(&brush, 0, 0, 13.66F, 3.66F); // from (0, 0) to (10, 10), across
    EXPECT_GT(InkOf(*g), 100);
}

TEST(DataLine, OneBadPointAmongManyIsRefused) {
    const Pen pen(kBlack, 1.0F);
    for (const float bad :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        for (const bool folded : {false, true}) {
            const auto engine = PixelSurface(20, 20);
            std::vector<PointF> points(1000, PointF{5, 5});
            points[1] = {5, 9};
            (folded ? points[777].X : points[778].Y) = bad;
            const Matrix flat{folded ? 0.0 : 1.0, 0.0, 0.0, 1.0, 0.0, 0.0};
            engine->SetTransform(&flat);
            EXPECT_EQ(engine->DrawLines(&pen, points.data(), 1000), Status::InvalidParameter);
            EXPECT_EQ(InkOf(*engine), 0);
        }
    }
}

TEST(DataLine, ATipOfAThinnedLineKeepsToItsPoint) {
    const PointF apex{300, 100};
    std::vector<PointF> flanks;
    for (int i = -5000; i <= 5000; ++i) {
        const float along = static_cast<float>(i) / 50.0F;
        flanks.push_back({apex.X + along * 0.364F, apex.Y + std::abs(along)}); // 40 degrees
    }
    const auto darkest = [&](const Ink& ink, int aboveApex) {
        const auto row = ink.begin() + (static_cast<int>(apex.Y) - aboveApex) * kWidth;
        return *std::max_element(row, row + kWidth);
    };
    const Pen pen(kBlack, 4.0F);
    EXPECT_EQ(darkest(Drawn(flanks, pen), 4), 0)
        << "a mitre of the few points that stay would reach 5.8 pixels up";
    EXPECT_GT(darkest(Drawn(flanks, pen), 1), 0);
    const std::vector<PointF> corner{flanks.front(), apex, flanks.back()};
    EXPECT_GT(darkest(Drawn(corner, pen), 4), 100) << "the corner of a line that is no data has its mitre";
}
