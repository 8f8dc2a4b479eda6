#include "charts/reading/SlicesApart.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

using namespace millichart;
using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

constexpr float kRounding = 1e-3F;

const SliceRim kCircle{{100, 100}, 30, 30};
const SliceRim kDeep{{100, 100}, 30, 20, 13};
const SliceRim kUpper{{100, 100}, 30, 30, 0, true, false};
const SliceRim kLower{{100, 100}, 30, 30, 0, false, true};

bool Overlap(const RectF& a, const RectF& b) {
    return std::min(a.Right(), b.Right()) - std::max(a.X, b.X) > kRounding &&
           std::min(a.Bottom(), b.Bottom()) - std::max(a.Y, b.Y) > kRounding;
}

/// Does the straight way from one point to the other pass through the inner part of a box?
bool Crosses(PointF from, PointF to, const RectF& box) {
    float begin = 0.0F;
    float end = 1.0F;
    const auto cut = [&](float start, float way, float least, float most) {
        least += kRounding;
        most -= kRounding;
        if (way == 0.0F) {
            end = start > least && start < most ? end : -1.0F;
            return;
        }
        const auto [enter, leave] = std::minmax({(least - start) / way, (most - start) / way});
        begin = std::max(begin, enter);
        end = std::min(end, leave);
    };
    cut(from.X, to.X - from.X, box.X, box.Right());
    cut(from.Y, to.Y - from.Y, box.Y, box.Bottom());
    return begin < end;
}

/// Equal, random and tiny shares round a rim, with one-line or mixed sizes; the same on every platform.
class RandomSlices {
public:
    explicit RandomSlices(std::uint32_t seed) : m_engine(seed) {}

    std::vector<SliceLabel> On(const SliceRim& rim) {
        const std::size_t count = 1 + Below(Below(5) == 0 ? 120 : 25);
        const std::uint32_t kind = Below(3);
        std::vector<double> shares(count);
        for (double& share : shares) {
            const double random = Below(1000) / 1000.0;
            share = kind == 0 ? 1.0 : kind == 1 ? random : std::pow(random, 6.0) + 1e-4;
        }
        double total = 0.0;
        for (const double share : shares) {
            total += share;
        }
        const double turn = rim.HasUpper && rim.HasLower ? 360.0 : 180.0;
        double angle = rim.HasLower ? 0.0 : 180.0;
        angle += turn == 360.0 ? Below(360) : 0.0;
        const bool isMixed = Below(2) == 0;
        std::vector<SliceLabel> labels;
        for (const double share : shares) {
            const double sweep = total > 0.0 ? share / total * turn : 0.0;
            const float height = isMixed && Below(3) == 0 ? 8.0F : 4.0F;
            labels.push_back({static_cast<float>(angle + sweep * 0.5),
                              {3.0F + static_cast<float>(Below(30)), height},
                              sweep});
            angle += sweep;
        }
        return labels;
    }

    std::uint32_t Below(std::uint32_t count) { return static_cast<std::uint32_t>(m_engine()) % count; }

private:
    std::mt19937 m_engine;
};

/// Where the right half begins and ends, as for labels: 270 is left and 90 right.
bool IsRight(float middle) {
    const double angle = std::fmod(static_cast<double>(middle), 360.0);
    return angle <= 90.0 || angle > 270.0;
}

/// Degrees down from the top along the label's side of the rim.
double DownOf(float middle) {
    const double fromTop = std::fmod(static_cast<double>(middle) + 90.0, 360.0);
    return IsRight(middle) ? fromTop : std::fmod(360.0 - fromTop, 360.0);
}

void ExpectApart(const std::vector<PlacedSliceLabel>& placed) {
    for (std::size_t i = 0; i < placed.size(); ++i) {
        for (std::size_t j = 0; j < placed.size(); ++j) {
            EXPECT_FALSE(i < j && Overlap(placed[i].Box, placed[j].Box)) << i << " and " << j;
            const bool areShown = placed[i].IsShown && placed[j].IsShown;
            EXPECT_FALSE(areShown && Crosses(placed[i].Rim, placed[i].Tip, placed[j].Box))
                << "the line of " << i << " over " << j;
        }
    }
}

void ExpectInOrder(const std::vector<SliceLabel>& labels, const std::vector<PlacedSliceLabel>& placed) {
    for (std::size_t i = 0; i < placed.size(); ++i) {
        for (std::size_t j = 0; j < placed.size(); ++j) {
            const bool isAbove = IsRight(labels[i].Middle) == IsRight(labels[j].Middle) &&
                                 DownOf(labels[i].Middle) < DownOf(labels[j].Middle) - 1e-4;
            if (isAbove && placed[i].IsShown && placed[j].IsShown) {
                EXPECT_LE(placed[i].Box.Y, placed[j].Box.Y + kRounding) << i << " and " << j;
            }
        }
    }
}

void ExpectOutside(const SliceRim& rim, const std::vector<SliceLabel>& labels,
                   const std::vector<PlacedSliceLabel>& placed) {
    for (std::size_t i = 0; i < placed.size(); ++i) {
        const RectF& box = placed[i].Box;
        if (!placed[i].IsShown) {
            EXPECT_EQ(box.Width, 0.0F);
            continue;
        }
        EXPECT_TRUE(IsRight(labels[i].Middle) ? box.X >= rim.Center.X : box.Right() <= rim.Center.X) << i;
        EXPECT_TRUE(rim.HasLower || box.Bottom() <= rim.Center.Y) << i;
        EXPECT_TRUE(rim.HasUpper || box.Y >= rim.Center.Y) << i;
        for (float down = 0.0F; down <= 1.0F; down += 0.125F) {
            const float inner = IsRight(labels[i].Middle) ? box.X + kRounding : box.Right() - kRounding;
            EXPECT_TRUE(IsOutside(rim, {inner, box.Y + down * box.Height})) << i;
        }
    }
}

} // namespace

TEST(SlicesApart, RandomLabelsStandApartInOrderOutsideThePie) {
    const SliceRim rims[] = {kCircle, kDeep, kUpper, kLower};
    for (std::uint32_t seed = 0; seed < 800; ++seed) {
        SCOPED_TRACE(seed);
        const SliceRim& rim = rims[seed % 4];
        RandomSlices slices(seed);
        const std::vector<SliceLabel> labels = slices.On(rim);
        const auto distance = static_cast<float>(1 + slices.Below(4));
        const std::vector<PlacedSliceLabel> placed = SlicesApart(rim, distance, seed % 3 != 0, labels);
        ASSERT_EQ(placed.size(), labels.size());
        ExpectApart(placed);
        ExpectInOrder(labels, placed);
        ExpectOutside(rim, labels, placed);
        if (HasFailure()) {
            return;
        }
    }
}

TEST(SlicesApart, LabelsThatTouchNothingStayWithACornerOnTheOrbit) {
    std::vector<SliceLabel> labels;
    for (const float middle : {15.0F, 60.0F, 110.0F, 200.0F, 255.0F, 300.0F}) {
        labels.push_back({middle, {20, 4}, 1.0});
    }
    for (const PlacedSliceLabel& label : SlicesApart(kCircle, 2, true, labels)) {
        ASSERT_TRUE(label.IsShown);
        EXPECT_NEAR(std::hypot(label.Tip.X - 100, label.Tip.Y - 100), 32, kRounding);
        const PointF way = label.Tip - label.Rim;
        EXPECT_NEAR(std::hypot(way.X, way.Y), 2, kRounding) << "straight out of its slice";
    }
    const RectF lowest = SlicesApart(kCircle, 2, true, {{90, {20, 4}, 1.0}})[0].Box;
    EXPECT_NEAR(lowest.Y, 132, kRounding);
    EXPECT_NEAR(lowest.X, 100, kRounding) << "90 degrees is right";
}

TEST(SlicesApart, NeighboursMoveAsFarAsEachOther) {
    const auto placed =
        SlicesApart(kCircle, 2, true, {{-2, {20, 4}, 1.0}, {2, {20, 4}, 1.0}, {60, {20, 4}, 1.0}});
    const float gap = placed[1].Box.Y - placed[0].Box.Bottom();
    EXPECT_GT(gap, 0.0F);
    EXPECT_LT(gap, 3.0F) << "they have had room before";
    const auto alone = SlicesApart(kCircle, 2, true, {{60, {20, 4}, 1.0}});
    EXPECT_NEAR(placed[2].Box.Y, alone[0].Box.Y, kRounding);

    const auto crowd = SlicesApart(kCircle, 2, true, {{8, {20, 4}, 1}, {9, {20, 4}, 1}, {10, {20, 4}, 1}});
    const float wanted = 100 + 32 * std::sin(9 * std::acos(-1.0F) / 180);
    EXPECT_NEAR(crowd[1].Box.Y, wanted, 0.05F);
    EXPECT_NEAR(crowd[0].Box.Y - crowd[1].Box.Y, crowd[1].Box.Y - crowd[2].Box.Y, kRounding);
}

TEST(SlicesApart, TheSmallestOfTooManyAreLeftOut) {
    std::vector<SliceLabel> labels;
    for (int i = 0; i < 200; ++i) {
        labels.push_back({static_cast<float>(i) * 1.8F, {15, 4}, i % 10 == 0 ? 2.0 : 1.0});
    }
    const auto placed = SlicesApart(kCircle, 2, true, labels);
    std::size_t shown = 0;
    std::size_t run = 0;
    std::size_t longestRun = 0;
    for (std::size_t i = 0; i < placed.size(); ++i) {
        EXPECT_TRUE(placed[i].IsShown || i % 10 != 0) << "a larger one";
        shown += placed[i].IsShown ? 1U : 0U;
        run = placed[i].IsShown ? 0U : run + 1U;
        longestRun = std::max(longestRun, run);
    }
    EXPECT_GT(shown, 35U);
    EXPECT_LT(shown, 70U);
    EXPECT_LE(longestRun, 9U) << "equal ones are left out evenly";
}

TEST(SlicesApart, IsSoundWhateverTheNumbers) {
    const float odd[] = {NAN, INFINITY, -INFINITY, 1e38F, -1e38F, 0.0F, -5.0F};
    for (const float number : odd) {
        const SliceRim rims[] = {{{number, 0}, 30, 30},
                                 {{0, 0}, number, 30},
                                 {{0, 0}, 30, number},
                                 {{0, 0}, 30, 30, number},
                                 {{0, 0}, number, number, number, true, false}};
        for (const SliceRim& rim : rims) {
            const auto placed = SlicesApart(
                rim, number, true,
                {{number, {10, 4}, 1}, {10, {number, 4}, 1}, {10, {10, number}, 1}, {10, {10, 4}, number}});
            EXPECT_EQ(placed.size(), 4U);
            for (const PlacedSliceLabel& label : placed) {
                EXPECT_TRUE(!label.IsShown || std::isfinite(label.Box.X + label.Box.Y));
            }
        }
    }
    EXPECT_FALSE(SlicesApart(kCircle, 2, true, {{NAN, {10, 4}, 1}})[0].IsShown);
    EXPECT_TRUE(SlicesApart(kCircle, 2, true, {}).empty());
    const auto turned = SlicesApart(kCircle, 2, true, {{-690, {10, 4}, 1}, {750, {10, 4}, 1}});
    EXPECT_GT(turned[1].Box.Y, turned[0].Box.Bottom()) << "both at 30 degrees";
}
