#include "support/EverySlot.h"
#include "support/PictureDifference.h"
#include "support/Rasterised.h"

#include <cmath>
#include <cwchar>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

using namespace penlode;

namespace {

constexpr Raster kRaster{{40.0F, 34.0F}};

/// The middle of a cell comes to lie in the page's.
constexpr PointF kCell{12.0F, 10.0F};
constexpr PointF kPage{20.0F, 17.0F};

/// A way to lay a cell on the page: by the surface's operations, and as the map that they come to.
struct Placement {
    const char* Name;
    void (*Place)(IGraphicsEngine&);
    Matrix Map;             ///< without its offset
    bool BendsPens = false; ///< which SVG leaves round

    Matrix Whole() const {
        const PointD middle = Mapped(Map, kCell);
        return Map * Matrix::Translation(kPage.X - middle.X, kPage.Y - middle.Y);
    }
};

void Around(IGraphicsEngine& g, void (*step)(IGraphicsEngine&)) {
    g.TranslateTransform(kPage.X, kPage.Y, MatrixOrder::Prepend);
    step(g);
    g.TranslateTransform(-kCell.X, -kCell.Y, MatrixOrder::Prepend);
}

void AsItIs(IGraphicsEngine& g) {
    g.TranslateTransform(kPage.X - kCell.X, kPage.Y - kCell.Y, MatrixOrder::Append);
}

void Turned(IGraphicsEngine& g) {
    Around(g, [](IGraphicsEngine& e) { e.RotateTransform(30, MatrixOrder::Prepend); });
}

void QuarterTurned(IGraphicsEngine& g) {
    g.TranslateTransform(-kCell.X, -kCell.Y, MatrixOrder::Append);
    g.RotateTransform(90, MatrixOrder::Append);
    g.TranslateTransform(kPage.X, kPage.Y, MatrixOrder::Append);
}

void Mirrored(IGraphicsEngine& g) {
    Around(g, [](IGraphicsEngine& e) { e.ScaleTransform(-1, 1, MatrixOrder::Prepend); });
}

void TurnedAndMirrored(IGraphicsEngine& g) {
    Around(g, [](IGraphicsEngine& e) {
        e.RotateTransform(-50, MatrixOrder::Prepend);
        e.ScaleTransform(1.2F, -1.2F, MatrixOrder::Prepend);
    });
}

void Stretched(IGraphicsEngine& g) {
    Around(g, [](IGraphicsEngine& e) { e.ScaleTransform(1.5F, 0.5F, MatrixOrder::Prepend); });
}

void Sheared(IGraphicsEngine& g) {
    g.TranslateTransform(kPage.X, kPage.Y, MatrixOrder::Prepend);
    const Matrix shear{1.0, 0.25, -0.5, 0.75, 0.0, 0.0};
    Matrix outside;
    g.GetTransform(&outside);
    const Matrix joined = shear * outside;
    g.SetTransform(&joined);
    g.TranslateTransform(-kCell.X, -kCell.Y, MatrixOrder::Prepend);
}

/// An outer container turns in points, the next one scales in half inches, and the last one moves.
void InContainers(IGraphicsEngine& g) {
    g.SetPageUnit(Unit::Point);
    g.TranslateTransform(kPage.X * 72.0F / 25.4F, kPage.Y * 72.0F / 25.4F, MatrixOrder::Prepend);
    g.RotateTransform(-20, MatrixOrder::Prepend);
    g.BeginContainer();
    g.SetPageUnit(Unit::Inch);
    g.SetPageScale(0.5F);
    g.ScaleTransform(1.25F, 1.25F, MatrixOrder::Prepend);
    g.TranslateTransform(-kCell.X / 12.7F, 0, MatrixOrder::Prepend);
    g.BeginContainer();
    g.SetPageUnit(Unit::Millimeter);
    g.TranslateTransform(0, -kCell.Y, MatrixOrder::Prepend);
}

const Placement kPlacements[] = {
    {"AsItIs", AsItIs, {}},
    {"Turned", Turned, Matrix::Rotation(30)},
    {"QuarterTurned", QuarterTurned, {0, 1, -1, 0, 0, 0}},
    {"Mirrored", Mirrored, {-1, 0, 0, 1, 0, 0}},
    {"TurnedAndMirrored", TurnedAndMirrored, Matrix::Scale(1.2, -1.2) * Matrix::Rotation(-50)},
    {"Stretched", Stretched, {1.5, 0, 0, 0.5, 0, 0}, true},
    {"Sheared", Sheared, {1, 0.25, -0.5, 0.75, 0, 0}, true},
    {"InContainers", InContainers, Matrix::Scale(1.25, 1.25) * Matrix::Rotation(-20)},
};

/// On the grid of pixels an edge moves by half of one at most.
constexpr std::uint32_t kTolerance = 44;

struct Scene {
    std::string Name;
    void (*Draw)(IGraphicsEngine&);
    std::uint32_t Tolerance = kTolerance;
    bool HasPens = false;
};

/// Lines of more points than are drawn in one piece: a translucent zigzag, a dashed ring and a spline.
void DenseLines(IGraphicsEngine& g) {
    std::vector<PointF> zigzag;
    std::vector<PointF> ring;
    std::vector<PointF> wave;
    for (int i = 0; i < 90; ++i) {
        const float t = static_cast<float>(i);
        zigzag.push_back({2 + 0.22F * t, i % 2 == 0 ? 3.0F : 6.5F});
        ring.push_back({12 + 9 * std::cos(t * 0.07F), 10 + 7 * std::sin(t * 0.07F)});
        wave.push_back({3 + 0.2F * t, 12 + 2 * std::sin(t * 0.3F)});
    }
    const Pen glass(Color{0x80C9504E}, 0.6F);
    const Pen dashed(kBlack, 0.4F, DashStyle::DashDot);
    const Pen thin(kBlack, 0.2F);
    g.DrawLines(&glass, zigzag.data(), 90);
    g.DrawPolygon(&dashed, ring.data(), 90);
    g.DrawCurve(&thin, wave.data(), 90);
}

/// Glyphs are filled in other ways, units of inches are off the grid, and flat parts of a gradient have
/// jagged edges.
std::vector<Scene> Scenes() {
    const std::map<std::string, std::uint32_t> tolerances{
        {"texts", 96}, {"measured texts", 96}, {"units and scales", 128}, {"gradient triangle", 128}};
    const std::set<std::string> penless{
        "FillPath, even-odd", "texts",         "images",           "clip intersect",
        "clip union",         "clip xor",      "clip exclude",     "clip complement",
        "gradient across",    "gradient down", "gradient triangle"};
    std::vector<Scene> scenes{{"dense lines", DenseLines, kTolerance, true}};
    for (const SlotCell& cell : SlotCells()) {
        const std::string name{cell.Caption, cell.Caption + std::wcslen(cell.Caption)};
        const auto tolerance = tolerances.find(name);
        scenes.push_back({name, cell.Draw, tolerance == tolerances.end() ? kTolerance : tolerance->second,
                          penless.count(name) == 0});
    }
    return scenes;
}

class EnginesAgree : public testing::TestWithParam<Placement> {};

} // namespace

// On Cairo a cell is placed by one operation after the other, in SVG by the one map that they come to.
TEST_P(EnginesAgree, OnEveryOperation) {
    const Placement& placement = GetParam();
    for (const Scene& scene : Scenes()) {
        if (placement.BendsPens && scene.HasPens) {
            continue;
        }
        const auto place = [&](IGraphicsEngine& g) {
            placement.Place(g);
            scene.Draw(g);
        };
        const Image svg = kRaster.AsSvg([&](IGraphicsEngine& g) {
            const Matrix whole = placement.Whole();
            g.SetTransform(&whole);
            scene.Draw(g);
        });
        for (const Image& drawn : {kRaster.OnPixels(place), kRaster.OnPage(place)}) {
            const PictureDifference difference = CompareSmoothed(drawn, svg, scene.Tolerance);
            EXPECT_EQ(difference.Share, 0) << scene.Name << " " << difference;
        }
    }
}

/// What a pen of that width draws round a box: the area between two boxes.
GraphicsPath FrameOf(const RectF& box, float width) {
    GraphicsPath frame;
    for (const float reach : {width / 2, -width / 2}) {
        frame.AddRectangle({box.X - reach, box.Y - reach, box.Width + 2 * reach, box.Height + 2 * reach});
    }
    return frame;
}

TEST(Pens, AreBentWithThePlane) {
    const Pen pen(kBlack, 2.0F);
    const Pen dash(kBlack, 2.0F, DashStyle::Dash);
    const SolidBrush brush{kBlack};
    for (const Matrix& map :
         {Matrix{2, 0, 0, 1, 0, 0}, Matrix{0, 0.5, -2, 0, 40, 0}, Matrix{1, 0.25, -0.5, 0.75, 10, 0}}) {
        const auto stroked = [&](IGraphicsEngine& g) {
            g.SetTransform(&map);
            g.DrawRectangle(&pen, 4, 4, 10, 10);
            // Dashes of 6 mm and gaps of 2, as long as the plane makes them.
            g.DrawLine(&dash, 2, 18, 12, 18.01F);
        };
        const auto filled = [&](IGraphicsEngine& g) {
            g.SetTransform(&map);
            const GraphicsPath frame = FrameOf({4, 4, 10, 10}, 2.0F);
            g.FillPath(&brush, &frame);
            const PointF first[] = {{2, 17}, {8, 17}, {8, 19}, {2, 19}};
            const PointF second[] = {{10, 17}, {12, 17}, {12, 19}, {10, 19}};
            g.FillPolygon(&brush, first, 4);
            g.FillPolygon(&brush, second, 4);
        };
        for (const auto surface : {&Raster::OnPixels, &Raster::OnPage}) {
            const PictureDifference difference =
                CompareSmoothed((kRaster.*surface)(stroked), (kRaster.*surface)(filled), 100);
            EXPECT_EQ(difference.Share, 0) << map.M11 << " " << map.M12 << ": " << difference;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Placements, EnginesAgree, testing::ValuesIn(kPlacements),
                         [](const auto& test) { return test.param.Name; });
