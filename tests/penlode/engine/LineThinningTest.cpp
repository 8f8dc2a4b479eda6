#include "penlode/engine/LineThinning.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <ostream>
#include <vector>

using namespace penlode;

namespace {

/// What stays of a line on columns one unit wide between 0 and 10.
std::vector<PointF> Thinned(const std::vector<PointF>& line, const Matrix& toDevice = {}) {
    std::vector<PointF> kept;
    const ListLine list(line);
    DataRun run{list};
    ThinLine(run, toDevice, {1.0, 0.0, 10.0}, [&](PointD p) {
        kept.push_back({static_cast<float>(p.X), static_cast<float>(p.Y)});
    });
    return kept;
}

} // namespace

namespace penlode {
void PrintTo(PointF p, std::ostream* stream) {
    *stream << p.X << ',' << p.Y;
}
} // namespace penlode

TEST(LineThinning, FirstLowestHighestAndLastStayInTheirOrder) {
    EXPECT_EQ(
        Thinned({{1.0F, 5}, {1.1F, 6}, {1.2F, 9}, {1.3F, 7}, {1.4F, 2}, {1.5F, 3}, {1.6F, 4}, {2.0F, 8}}),
        (std::vector<PointF>{{1.0F, 5}, {1.2F, 9}, {1.4F, 2}, {1.6F, 4}, {2.0F, 8}}));
}

TEST(LineThinning, SparseLinesStayAsTheyAre) {
    const std::vector<PointF> sparse{{0.5F, 1}, {0.6F, 1}, {3, 2}, {3, 2}, {-1, 7}, {2.5F, 0}, {2.5F, 9}};
    EXPECT_EQ(Thinned(sparse).size(), sparse.size());
    EXPECT_EQ(Thinned({}), std::vector<PointF>{});
    EXPECT_EQ(Thinned({{1, 1}}), (std::vector<PointF>{{1, 1}}));
}

TEST(LineThinning, WhatCannotBeSeenIsOneColumnEachSide) {
    std::vector<PointF> line;
    for (int i = -500; i <= 500; ++i) {
        line.push_back({static_cast<float>(i), static_cast<float>(i % 7)});
    }
    const std::vector<PointF> kept = Thinned(line);
    EXPECT_EQ(kept.front(), line.front());
    EXPECT_EQ(kept.back(), line.back());
    EXPECT_LE(kept.size(), 10U + 2U * 4U);
    // The lines that come in from outside start where they did.
    EXPECT_NE(std::find(kept.begin(), kept.end(), PointF{-1, -1}), kept.end());
    EXPECT_NE(std::find(kept.begin(), kept.end(), PointF{10, 3}), kept.end());
}

TEST(LineThinning, ColumnsAreTheDevices) {
    const Matrix quarterTurn{0, 2, -1, 0, 10, 0};
    // Ten points down a line that the device shows as level: two units long, with ends and inner columns.
    std::vector<PointF> line;
    for (int i = 0; i < 10; ++i) {
        line.push_back({1, 0.2F * static_cast<float>(i)});
    }
    const std::vector<PointF> kept = Thinned(line, quarterTurn);
    EXPECT_EQ(kept.front(), (PointF{10, 2}));
    EXPECT_LT(kept.size(), line.size());
}

TEST(LineThinning, LongColumnsKeepWhatTheirPointsAreOneByOne) {
    // Columns of many lengths that begin at any place, values that repeat, and a step back.
    std::vector<PointF> line;
    std::vector<PointF> wanted;
    for (std::size_t column = 0; column < 9; ++column) {
        std::vector<PointF> points;
        for (std::size_t i = 0; i < 20 + column * 37; ++i) {
            const float x = column == 5 ? 2.5F : static_cast<float>(column) + 0.5F;
            points.push_back({x + static_cast<float>(i) * 0.001F, static_cast<float>((i * i + column) % 23)});
        }
        const auto byHeight = [](PointF a, PointF b) { return a.Y < b.Y; };
        const auto lowest = std::min_element(points.begin(), points.end(), byHeight);
        const auto highest = std::max_element(points.begin(), points.end(), byHeight);
        for (auto p = points.begin(); p != points.end(); ++p) {
            if (p == points.begin() || p == lowest || p == highest || p + 1 == points.end()) {
                wanted.push_back(*p);
            }
        }
        line.insert(line.end(), points.begin(), points.end());
    }
    EXPECT_EQ(Thinned(line), wanted);
}

TEST(LineThinning, ARunEndsAtAPointThatIsNotFinite) {
    for (const float odd : {NAN, INFINITY, -INFINITY}) {
        for (std::size_t place = 0; place < 200; ++place) {
            for (const PointF gap : {PointF{0.5F, odd}, PointF{odd, 3.0F}}) {
                std::vector<PointF> line(200, PointF{0.5F, 3.0F});
                line[place] = gap;
                const ListLine list(line);
                DataRun run{list};
                std::size_t kept = 0;
                ThinLine(run, {}, {1.0, 0.0, 10.0}, [&kept](PointD) { ++kept; });
                EXPECT_EQ(run.End, place) << odd;
                EXPECT_EQ(FindGap(list, 0), place) << odd;
                EXPECT_EQ(kept, std::min<std::size_t>(place, 2)) << "the first and the last before the gap";
            }
        }
    }
}
