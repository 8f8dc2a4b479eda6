#include "support/Rasterised.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <ostream>

using namespace penlode;

namespace {

constexpr Raster kRaster{{40.0F, 30.0F}, 5};

/// In tenths of a millimetre.
const GradientVertex kCorners[] = {{0, 0, 0xFF00, 0x4000, 0x2000, 0xFF00},
                                   {150, 100, 0x2000, 0x6000, 0xFF00, 0},
                                   {20, 130, 0x2000, 0xE000, 0x6000, 0}};
constexpr PointF kOrigin{-60.0F, -50.0F};
constexpr RectL kBounds{-100, -100, 80, 60};

using Rgb = std::array<double, 3>;

Rgb ColourOf(const GradientVertex& v) {
    return {v.Red / 256.0, v.Green / 256.0, v.Blue / 256.0};
}

Rgb Mixed(const Rgb& a, const Rgb& b, const Rgb& c, double second, double third) {
    Rgb mixed{};
    for (std::size_t i = 0; i < 3; ++i) {
        mixed[i] = a[i] + second * (b[i] - a[i]) + third * (c[i] - a[i]);
    }
    return mixed;
}

/// How far a place lies within the gradient, in its own units, and the colour that is due there.
struct Due {
    double Depth;
    Rgb Colour;
};

struct Gradient {
    const char* Name;
    GradientMode Mode;
    bool Backwards; ///< from the lower right to the upper left
};

/// By the closed form, in vertex coordinates.
Due DueAt(const Gradient& gradient, PointD p) {
    const Rgb a = ColourOf(kCorners[0]);
    const Rgb b = ColourOf(kCorners[1]);
    if (gradient.Mode == GradientMode::Triangle) {
        const Rgb c = ColourOf(kCorners[2]);
        // p = s·(150, 100) + t·(20, 130)
        const double whole = 150.0 * 130.0 - 20.0 * 100.0;
        const double s = (p.X * 130.0 - p.Y * 20.0) / whole;
        const double t = (p.Y * 150.0 - p.X * 100.0) / whole;
        return {std::min({s, t, 1.0 - s - t}) * 80.0, Mixed(a, b, c, s, t)};
    }
    const double along = gradient.Mode == GradientMode::RectH ? p.X / 150.0 : p.Y / 100.0;
    return {std::min({p.X, 150.0 - p.X, p.Y, 100.0 - p.Y}), Mixed(a, b, b, along, 0.0)};
}

/// Nothing where the picture may be either, near an edge.
std::optional<Rgb> ExpectedAt(const Gradient& gradient, const Matrix& toPage, PointD millimetres) {
    constexpr double kEdge = 4.0;
    const PointD world = Mapped(toPage.Inverted(), millimetres);
    const Due due = DueAt(gradient, {world.X - kOrigin.X, world.Y - kOrigin.Y});
    const double depth = std::min({due.Depth, world.X - kBounds.Left, kBounds.Right - world.X,
                                   world.Y - kBounds.Top, kBounds.Bottom - world.Y});
    if (std::abs(depth) < kEdge) {
        return std::nullopt;
    }
    return depth > 0.0 ? due.Colour : Rgb{255.0, 255.0, 255.0};
}

struct Errors {
    double Largest = 0.0;
    double Sum = 0.0;
    int Count = 0;
};

Errors ErrorsOf(const Image& picture, const Gradient& gradient, const Matrix& toPage) {
    Errors errors;
    for (int y = 0; y < picture.Height; y += 2) {
        for (int x = 0; x < picture.Width; x += 2) {
            const auto expected = ExpectedAt(gradient, toPage, {(x + 0.5) / 5.0, (y + 0.5) / 5.0});
            const Color drawn = picture.Pixels[static_cast<std::size_t>(y * picture.Width + x)];
            const std::array<std::uint32_t, 3> channels{drawn.R(), drawn.G(), drawn.B()};
            for (std::size_t i = 0; expected && i < 3; ++i) {
                const double error = channels[i] - (*expected)[i];
                errors.Largest = std::max(errors.Largest, std::abs(error));
                errors.Sum += error;
                ++errors.Count;
            }
        }
    }
    return errors;
}

} // namespace

TEST(Gradients, AreWhatTheirClosedFormSays) {
    const Matrix middle = Matrix::Translation(20, 15);
    for (const Matrix& turn :
         {Matrix{}, Matrix::Rotation(90), Matrix::Rotation(30), Matrix{-1, 0, 0, 1, 0, 0},
          Matrix{1.5, 0, 0, 0.75, 0, 0}, Matrix{1, 0.25, -0.5, 0.75, 0, 0}}) {
        const Matrix toPage = Matrix::Scale(0.1, 0.1) * turn * middle;
        for (const Gradient& gradient :
             {Gradient{"across", GradientMode::RectH, false}, Gradient{"down", GradientMode::RectV, false},
              Gradient{"across, backwards", GradientMode::RectH, true},
              Gradient{"down, backwards", GradientMode::RectV, true},
              Gradient{"a triangle", GradientMode::Triangle, false},
              Gradient{"a triangle, backwards", GradientMode::Triangle, true}}) {
            for (const auto& [surface, picture] : kRaster.OnEverySurface([&](IGraphicsEngine& g) {
                     const GradientRect rect = gradient.Backwards ? GradientRect{1, 0} : GradientRect{0, 1};
                     const GradientTriangle triangle =
                         gradient.Backwards ? GradientTriangle{2, 1, 0} : GradientTriangle{0, 1, 2};
                     const bool isTriangle = gradient.Mode == GradientMode::Triangle;
                     g.SetTransform(&toPage);
                     EXPECT_EQ(1, g.GradientFill(kBounds, kOrigin, kCorners, 3,
                                                 isTriangle ? static_cast<const void*>(&triangle) : &rect, 1,
                                                 gradient.Mode));
                 })) {
                // Of a triangle SVG has flat parts, of a sixteenth of its sides.
                const bool flat = surface == std::string("SVG") && gradient.Mode == GradientMode::Triangle;
                const Errors errors = ErrorsOf(picture, gradient, toPage);
                EXPECT_LE(errors.Largest, flat ? 12.0 : 3.5)
                    << gradient.Name << " on " << surface << " " << turn.M11 << " " << turn.M12;
                EXPECT_LE(std::abs(errors.Sum) / errors.Count, 0.5) << gradient.Name << " on " << surface;
            }
        }
    }
}
