#include "penlode/engine/GuardBand.h"

#include <gtest/gtest.h>
#include <optional>
#include <random>

using namespace penlode;

namespace {

constexpr BoxD kBox{-8.5, -5.5, 9.5, 6.5};

bool IsInside(const std::vector<PointD>& polygon, PointD p) {
    bool inside = false;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const PointD a = polygon[i];
        const PointD b = polygon[(i + 1) % polygon.size()];
        inside ^= (a.Y > p.Y) != (b.Y > p.Y) && p.X < a.X + (p.Y - a.Y) * (b.X - a.X) / (b.Y - a.Y);
    }
    return inside;
}

/// The point so far along a line; nothing before its start and after its end.
std::optional<PointD> PointAlong(const std::vector<PointD>& line, double distance) {
    for (std::size_t i = 1; distance >= 0.0 && i < line.size(); ++i) {
        const PointD step{line[i].X - line[i - 1].X, line[i].Y - line[i - 1].Y};
        const double length = std::hypot(step.X, step.Y);
        if (distance < length) {
            return PointD{line[i - 1].X + step.X * distance / length,
                          line[i - 1].Y + step.Y * distance / length};
        }
        distance -= length;
    }
    return std::nullopt;
}

} // namespace

TEST(GuardBand, WhatLiesInTheBoxStaysInItsPlace) {
    std::mt19937 random(5);
    const auto within = [&](int reach) {
        return static_cast<int>(random() % 1000003U) % (2 * reach + 1) - reach;
    };
    for (int round = 0; round < 300; ++round) {
        const int reach = round % 3 == 0 ? 5 : 20;
        std::vector<PointD> points;
        for (int i = 0; i < 3 + round % 5; ++i) {
            points.push_back({static_cast<double>(within(reach)), static_cast<double>(within(reach))});
        }
        const std::vector<PointD> area = ClippedPolygon(points, kBox);
        const std::vector<PolylineRun> runs = ClippedPolyline(points, kBox);
        if (reach == 5) {
            EXPECT_TRUE(area.size() == points.size() && runs.size() == 1);
        }
        for (int probe = 0; probe < 60; ++probe) {
            const PointD p{within(8) + 0.37, within(5) + 0.41};
            EXPECT_EQ(IsInside(area, p), IsInside(points, p)) << p.X << " " << p.Y;
            const double distance = probe * 0.731 + 0.013;
            const auto along = PointAlong(points, distance);
            std::optional<PointD> shown;
            for (const PolylineRun& run : runs) {
                const auto found = PointAlong(run.Points, distance - run.Before);
                shown = found ? found : shown;
            }
            ASSERT_EQ(shown.has_value(), along && kBox.Contains(*along)) << distance;
            if (shown) {
                EXPECT_NEAR(std::hypot(shown->X - along->X, shown->Y - along->Y), 0.0, 1e-9);
            }
        }
        for (const PointD p : area) {
            EXPECT_TRUE(kBox.Contains(p));
        }
    }
}

TEST(GuardBand, CurvesBecomeAsManyLinesAsTheyNeed) {
    const auto flattened = [](PointD a, PointD b, PointD c, PointD d) {
        OutlineFlattener lines(kBox, 0.01);
        lines.MoveTo(a);
        lines.CurveTo(b, c, d);
        return lines.Take().front().Points;
    };
    for (const bool isTurned : {false, true}) {
        const auto at = [&](double x, double y) { return isTurned ? PointD{y, x} : PointD{x, y}; };
        // A parabola: y = x · (6 − x) / 3.
        const auto bow = flattened(at(0, 0), at(2, 4), at(4, 4), at(6, 0));
        EXPECT_TRUE(bow.size() > 8 && bow.size() <= 33) << bow.size();
        for (std::size_t i = 0; i < bow.size(); ++i) {
            const PointD p = isTurned ? PointD{bow[i].Y, bow[i].X} : bow[i];
            EXPECT_NEAR(p.Y, p.X * (6 - p.X) / 3, 1e-9);
            EXPECT_NEAR(p.X, 6.0 * static_cast<double>(i) / static_cast<double>(bow.size() - 1), 1e-9);
        }
        for (const double side : {-1.0, 1.0}) {
            EXPECT_EQ(
                flattened(at(0, 20 * side), at(2, 24 * side), at(4, 24 * side), at(6, 20 * side)).size(), 2U);
        }
    }
}
