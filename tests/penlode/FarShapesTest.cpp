#include "penlode/svg/SvgEngine.h"
#include "support/PictureDifference.h"
#include "support/Rasterised.h"

#include <array>
#include <gtest/gtest.h>
#include <regex>

using namespace penlode;

namespace {

constexpr Raster kRaster{{40.0F, 30.0F}, 6};

const Pen kPen(kBlack, 1.0F);
const Pen kDash(kBlack, 1.0F, DashStyle::Dash); // 4 mm a dash and its gap
const SolidBrush kBrush{kBlack};

/// Its left edge passes through (20, 15), as straight as can be seen.
constexpr RectF kGiant{20.0F, 15.0F - 1e7F, 2e7F, 2e7F};
/// Centred in (10, 10).
constexpr RectF kGiantPie{10.0F - 1e7F, 10.0F - 1e7F, 2e7F, 2e7F};

/// A drawing that reaches far, and one that shows the same near the page.
struct Pair {
    const char* Name;
    void (*Far)(IGraphicsEngine&);
    void (*Near)(IGraphicsEngine&);
    std::uint32_t Tolerance = 32;
};

template <std::size_t Count> void Lines(IGraphicsEngine& g, const Pen& pen, const PointF (&points)[Count]) {
    g.DrawLines(&pen, points, static_cast<std::int32_t>(Count));
}

template <std::size_t Count> void Polygon(IGraphicsEngine& g, const PointF (&points)[Count]) {
    g.DrawPolygon(&kPen, points, static_cast<std::int32_t>(Count));
}

template <std::size_t Count> void Area(IGraphicsEngine& g, const PointF (&points)[Count]) {
    g.FillPolygon(&kBrush, points, static_cast<std::int32_t>(Count));
}

/// From (5, 5) down to the end, by a curve to the right, and straight back; with a hole.
void CurvedArea(IGraphicsEngine& g, float end) {
    GraphicsPath path;
    path.AddLine({5, 5}, {5, end});
    path.AddBezier({5, end}, {end / 4, end * 2}, {end / 2, end * 2}, {end, end});
    path.CloseFigure();
    path.AddRectangle({8, 14, 4, 6});
    g.FillPath(&kBrush, &path);
}

void GradientAcross(IGraphicsEngine& g, std::int32_t reach) {
    const GradientVertex ends[] = {{5, -reach, 0xFF00, 0, 0, 0}, {35, reach, 0, 0xFF00, 0x8000, 0}};
    const GradientRect rect{0, 1};
    g.GradientFill({0, -reach, 40, reach}, {0, 0}, ends, 2, &rect, 1, GradientMode::RectH);
}

/// Red on the left and blue on the right; from their far corners the triangles reach the page grown even.
void GradientDown(IGraphicsEngine& g) {
    const GradientVertex corners[] = {{20, -2000000, 0xFF00, 0, 0, 0}, {20, 2000000, 0xFF00, 0, 0, 0},
                                      {-2000000, 0, 0, 0, 0, 0},       {20, -2000000, 0, 0, 0xFF00, 0},
                                      {20, 2000000, 0, 0, 0xFF00, 0},  {2000000, 0, 0, 0, 0, 0}};
    const GradientTriangle mesh[] = {{0, 1, 2}, {3, 5, 4}};
    g.GradientFill({5, 5, 35, 2000000}, {0, 0}, corners, 6, mesh, 2, GradientMode::Triangle);
}

void TwoColours(IGraphicsEngine& g) {
    const SolidBrush red{Color{0xFFFF0000}};
    const SolidBrush blue{Color{0xFF0000FF}};
    g.FillRectangle(&red, 5, 5, 15, 100);
    g.FillRectangle(&blue, 20, 5, 15, 100);
}

void InClip(IGraphicsEngine& g, const RectF& rect, const RectF& ellipse) {
    GraphicsPath round;
    round.AddEllipse(ellipse);
    g.SetClip(rect, CombineMode::Replace);
    g.SetClip(&round, CombineMode::Xor);
    g.FillRectangle(&kBrush, -60, -60, 200, 200);
}

const Pair kPairs[] = {
    {"a line", [](IGraphicsEngine& g) { g.DrawLine(&kPen, -3e7F, -3e7F, 3e7F, 3e7F); },
     [](IGraphicsEngine& g) { g.DrawLine(&kPen, -90, -90, 90, 90); }},
    {"dashes across the page", [](IGraphicsEngine& g) { g.DrawLine(&kDash, -4e6F, 5, 4e6F, 5); },
     [](IGraphicsEngine& g) { g.DrawLine(&kDash, -80, 5, 120, 5); }},
    {"dashes from far", [](IGraphicsEngine& g) { g.DrawLine(&kDash, 3000005, 4000005, 5, 5); },
     [](IGraphicsEngine& g) { g.DrawLine(&kDash, 65, 85, 5, 5); }},
    {"a polyline",
     [](IGraphicsEngine& g) {
         Lines(g, kPen, {{5, 5}, {20, 9}, {20, 1e9F}, {33, 1e9F}, {33, 2}});
     },
     [](IGraphicsEngine& g) {
         Lines(g, kPen, {{5, 5}, {20, 9}, {20, 200}, {33, 200}, {33, 2}});
     }},
    {"a polyline that is closed",
     [](IGraphicsEngine& g) {
         Polygon(g, {{5, 5}, {1e8F, 5}, {1e8F, 25}, {5, 25}, {9, 9}});
     },
     [](IGraphicsEngine& g) {
         Polygon(g, {{5, 5}, {150, 5}, {150, 25}, {5, 25}, {9, 9}});
     }},
    {"a frame", [](IGraphicsEngine& g) { g.DrawRectangle(&kPen, 5, 5, 1e9F, 1e9F); },
     [](IGraphicsEngine& g) { g.DrawRectangle(&kPen, 5, 5, 150, 150); }},
    {"a box", [](IGraphicsEngine& g) { g.FillRectangle(&kBrush, 10, -1e9F, 2e9F, 2e9F); },
     [](IGraphicsEngine& g) { g.FillRectangle(&kBrush, 10, -100, 200, 200); }},
    {"a tower",
     [](IGraphicsEngine& g) {
         GraphicsPath path;
         path.AddLine({5, 5}, {5, 1e7F});
         path.AddLine({20, 1e7F}, {20, 5});
         g.FillPath(&kBrush, &path);
         g.FillRectangle(&kBrush, 25, 5 - 1e6F, 10, 1e6F);
     },
     [](IGraphicsEngine& g) {
         g.FillRectangle(&kBrush, 5, 5, 15, 100);
         g.FillRectangle(&kBrush, 25, -100, 10, 105);
     }},
    {"a flat arc",
     [](IGraphicsEngine& g) {
         GraphicsPath path;
         path.AddLine({5, 5}, {20, 5});
         path.AddArc({20, 5 - 1e7F, 0, 2e7F}, 0, 90);
         g.FillPath(&kBrush, &path);
     },
     [](IGraphicsEngine& g) { g.FillRectangle(&kBrush, 5, 5, 15, 100); }},
    {"a wedge",
     [](IGraphicsEngine& g) {
         Area(g, {{5, 3}, {100000005.0F, 50000003.0F}, {5, 1e8F}});
     },
     [](IGraphicsEngine& g) {
         Area(g, {{5, 3}, {205, 103}, {5, 203}});
     }},
    {"an ellipse's area",
     [](IGraphicsEngine& g) { g.FillEllipse(&kBrush, kGiant.X, kGiant.Y, kGiant.Width, kGiant.Height); },
     [](IGraphicsEngine& g) { g.FillRectangle(&kBrush, 20, -100, 200, 200); }},
    {"an ellipse",
     [](IGraphicsEngine& g) { g.DrawEllipse(&kPen, kGiant.X, kGiant.Y, kGiant.Width, kGiant.Height); },
     [](IGraphicsEngine& g) { g.DrawLine(&kPen, 20, -100, 20, 100); }},
    {"an arc",
     [](IGraphicsEngine& g) { g.DrawArc(&kPen, kGiant.X, kGiant.Y, kGiant.Width, kGiant.Height, 180, -70); },
     [](IGraphicsEngine& g) { g.DrawLine(&kPen, 20, 15, 20, 100); }},
    {"a pie's area", [](IGraphicsEngine& g) { g.FillPie(&kBrush, kGiantPie, 45, 45); },
     [](IGraphicsEngine& g) {
         Area(g, {{10, 10}, {210, 210}, {10, 210}});
     }},
    {"a pie", [](IGraphicsEngine& g) { g.DrawPie(&kPen, kGiantPie, 90, -45); },
     [](IGraphicsEngine& g) {
         Polygon(g, {{10, 10}, {210, 210}, {10, 210}});
     }},
    {"a spline",
     [](IGraphicsEngine& g) {
         const PointF p[] = {{-1e7F, -1e7F}, {10, 10}, {1e7F, 1e7F}};
         g.DrawCurve(&kPen, p, 3);
     },
     [](IGraphicsEngine& g) { g.DrawLine(&kPen, -90, -90, 90, 90); }},
    {"a path", [](IGraphicsEngine& g) { CurvedArea(g, 10000005); },
     [](IGraphicsEngine& g) { CurvedArea(g, 405); }},
    {"a clip",
     [](IGraphicsEngine& g) {
         InClip(g, {10, 5, 1e5F, 1e5F}, kGiant);
     },
     [](IGraphicsEngine& g) {
         g.FillRectangle(&kBrush, 10, 5, 10, 100);
         g.FillRectangle(&kBrush, 20, -100, 100, 105);
     }},
    {"a gradient across", [](IGraphicsEngine& g) { GradientAcross(g, 2000000); },
     [](IGraphicsEngine& g) { GradientAcross(g, 100); }},
    {"gradient triangles", GradientDown, TwoColours, 96}, // an edge that two triangles share shines through
};

} // namespace

TEST(FarShapes, LookAsTheirNearPartsDo) {
    const Matrix turned = Matrix::Translation(-20, -15) * Matrix::Rotation(30) * Matrix::Translation(20, 15);
    const Matrix mirrored{-1.0, 0.0, 0.0, 1.0, 40.0, 0.0};
    for (const Matrix& map : {Matrix{}, turned, mirrored}) {
        for (const Pair& pair : kPairs) {
            const auto under = [&](void (*draw)(IGraphicsEngine&)) {
                return kRaster.OnEverySurface([&](IGraphicsEngine& g) {
                    g.SetTransform(&map);
                    draw(g);
                });
            };
            CSvgEngine svg(kRaster.Page);
            svg.SetTransform(&map);
            pair.Far(svg);
            EXPECT_FALSE(std::regex_search(svg.Text(), std::regex("[ ,\"ML-][0-9]{6}")))
                << pair.Name << " gives viewers numbers that floats do not hold";
            const auto far = under(pair.Far);
            const auto near = under(pair.Near);
            for (std::size_t i = 0; i < far.size(); ++i) {
                const PictureDifference difference =
                    CompareSmoothed(far[i].Picture, near[i].Picture, pair.Tolerance);
                EXPECT_EQ(difference.Share, 0)
                    << pair.Name << " as " << far[i].Surface << " turned " << map.M12 << ": " << difference;
            }
        }
    }
}
