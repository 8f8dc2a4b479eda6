#include "penlode/GraphicsPath.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace penlode;

namespace {

struct Outline final : OutlineSink {
    std::string Shape;
    std::vector<PointD> Points;

    void MoveTo(PointD p) override { Add('M', p); }

    void LineTo(PointD p) override { Add('L', p); }

    void CurveTo(PointD, PointD, PointD p) override { Add('C', p); }

    void Close() override { Shape += 'Z'; }

    void Add(char kind, PointD p) {
        Shape += kind;
        Points.push_back(p);
    }
};

Outline Walked(const GraphicsPath& path) {
    Outline outline;
    WalkOutline(path, Matrix{}, outline);
    return outline;
}

void ExpectNear(PointD actual, double x, double y) {
    EXPECT_NEAR(actual.X, x, 1e-4);
    EXPECT_NEAR(actual.Y, y, 1e-4);
}

} // namespace

TEST(GraphicsPath, ArcsOfOneFigureAreJoinedByALine) {
    GraphicsPath wall;
    wall.AddArc({0, 0, 20, 10}, 0, 90);
    wall.AddArc({0, 5, 20, 10}, 90, -90);
    const Outline outline = Walked(wall);
    EXPECT_EQ(outline.Shape, "MCCLCC");
    ExpectNear(outline.Points[0], 20, 5);
    ExpectNear(outline.Points[2], 10, 10);
    ExpectNear(outline.Points[3], 10, 15);
    ExpectNear(outline.Points[5], 20, 10);
}

TEST(GraphicsPath, ArcsEndWhereTheRayMeetsTheEllipse) {
    // On an ellipse twice as wide as high, the ray at 45 degrees meets it at x = y = 2/sqrt(5) of the half
    // height.
    const PointF met = PointOnEllipse({-20, -10, 40, 20}, 45);
    EXPECT_NEAR(met.X, 20.0 / std::sqrt(5.0), 1e-5);
    EXPECT_NEAR(met.Y, met.X, 1e-5);

    GraphicsPath path;
    path.AddArc({-20, -10, 40, 20}, 400, 275); // 40 degrees on to 315, the long way round
    const Outline outline = Walked(path);
    ExpectNear(outline.Points.back(), 20.0 / std::sqrt(5.0), -20.0 / std::sqrt(5.0));
    EXPECT_EQ(outline.Shape, "MCCCCCC");
}

TEST(GraphicsPath, ASectorOfAFullTurnHasBothRadii) {
    GraphicsPath path;
    path.AddPie({0, 0, 10, 10}, 180, 360);
    const Outline outline = Walked(path);
    EXPECT_EQ(outline.Shape, "MLCCCCCCCCZ");
    ExpectNear(outline.Points[0], 5, 5);
    ExpectNear(outline.Points[1], 0, 5);
    ExpectNear(outline.Points.back(), 0, 5);
}

TEST(GraphicsPath, SweepsBeyondATurnAreOneTurn) {
    GraphicsPath twice;
    twice.AddArc({0, 0, 10, 4}, 30, -1e30F);
    GraphicsPath once;
    once.AddArc({0, 0, 10, 4}, 30, -360);
    EXPECT_EQ(twice, once);
}

TEST(GraphicsPath, CurvesStayOnTheEllipse) {
    GraphicsPath path;
    path.AddEllipse({-50, -50, 100, 100});
    const GraphicsPath curves = Transformed(path, Matrix{});
    for (const auto& piece : curves.Figures().front().Pieces) {
        const auto& p = std::get<GraphicsPath::Bezier>(piece).Points;
        const double x = 0.125 * p[0].X + 0.375 * p[1].X + 0.375 * p[2].X + 0.125 * p[3].X;
        const double y = 0.125 * p[0].Y + 0.375 * p[1].Y + 0.375 * p[2].Y + 0.125 * p[3].Y;
        EXPECT_NEAR(std::hypot(x, y), 50.0, 50.0e-5);
    }
}

TEST(GraphicsPath, EmptyAndFlatEllipsesHaveTheirCentre) {
    EXPECT_EQ(PointOnEllipse({3, 4, 0, 10}, 45), (PointF{3, 9}));
    GraphicsPath path;
    path.AddPie({3, 4, 0, 0}, 10, 90);
    for (const PointD& point : Walked(path).Points) {
        ExpectNear(point, 3, 4);
    }
}
