#include "charts/reading/LegendSeat.h"

#include "support/Texts.h"

#include <gtest/gtest.h>
#include <limits>

using namespace millichart;
using penlode::RectF;

namespace {

const RectF kPlot{20, 10, 60, 40};
const RectF kWhole{0, 0, 80, 60};

/// Lines are 3.75 mm high, letters 1.5 wide; gaps are 1.25.
LegendProp PropAt(std::int32_t position) {
    LegendProp prop;
    prop.ShowLegend = 1;
    prop.LegendPos = position;
    prop.Font->Size = 3.0F;
    return prop;
}

/// Every seventh name is longer than the others.
std::vector<std::string> Names(std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) {
        names.push_back(i % 7 == 3 ? "a longer name" : "name");
    }
    return names;
}

SeatedLegend Seated(std::int32_t position, std::size_t count, bool hasAir = false) {
    return SeatLegend(PropAt(position), Names(count), kLegendSquareFactor, kPlot, kWhole, hasAir);
}

bool Overlap(const RectF& a, const RectF& b) {
    constexpr float kRounding = 0.001F;
    return std::min(a.Right(), b.Right()) - std::max(a.X, b.X) > kRounding &&
           std::min(a.Bottom(), b.Bottom()) - std::max(a.Y, b.Y) > kRounding;
}

bool Holds(const RectF& outer, const RectF& inner) {
    const RectF both = penlode::Union(outer, inner);
    return both.Width <= outer.Width + 0.001F && both.Height <= outer.Height + 0.001F;
}

} // namespace

TEST(LegendSeat, StandsAlongThePlotOffTheWhole) {
    // 3.75 and 1.25, and 6 for the name; 1.25 after it.
    EXPECT_EQ(Seated(LegendPosition::RightTop, 2).Box, (RectF{82, 10, 12.25F, 7.5F}));
    EXPECT_EQ(Seated(LegendPosition::RightCenter, 2).Box, (RectF{82, 26.25F, 12.25F, 7.5F}));
    EXPECT_EQ(Seated(LegendPosition::LeftBottom, 2).Box, (RectF{-14.25F, 42.5F, 12.25F, 7.5F}));
    // Columns are 2.5 apart.
    EXPECT_EQ(Seated(LegendPosition::TopLeft, 2).Box, (RectF{20, -5.75F, 25.75F, 3.75F}));
    EXPECT_EQ(Seated(LegendPosition::BottomRight, 2).Box, (RectF{54.25F, 62, 25.75F, 3.75F}));
    EXPECT_EQ(Seated(LegendPosition::BottomCenter, 1, true).Box, (RectF{43.25F, 62, 13.5F, 6.25F}));
    const SeatedLegend legend = Seated(LegendPosition::RightTop, 2, true);
    EXPECT_EQ(legend.Items[1], (RectF{83.25F, 15, 11, 3.75F}));
    EXPECT_EQ(legend.NameGap, 1.25F);
}

TEST(LegendSeat, WrapsInsteadOfGrowingPastTheChart) {
    // Sixteen lines fit into 60 mm: two even columns, the second behind the longer name.
    const SeatedLegend columns = Seated(LegendPosition::RightCenter, 20);
    ASSERT_EQ(columns.Items.size(), 20U);
    EXPECT_EQ(columns.Items[10].Y, columns.Items[0].Y);
    EXPECT_EQ(columns.Items[10].X, columns.Items[3].Right() + 2.5F);
    EXPECT_EQ(columns.Box.Height, 37.5F);
    // Rows of at most 80 mm: seven short names and a long one do not find room, four and four do.
    const SeatedLegend rows = Seated(LegendPosition::BottomLeft, 8);
    EXPECT_EQ(rows.Items[4].X, rows.Items[0].X);
    EXPECT_EQ(rows.Items[4].Y, rows.Items[0].Y + 3.75F);
    EXPECT_EQ(rows.LeftOut, 0U);
}

TEST(LegendSeat, EveryPositionHoldsWhatItShowsAndCountsTheRest) {
    for (std::int32_t position = LegendPosition::LeftTop; position <= LegendPosition::BottomRight;
         ++position) {
        for (const std::size_t count : {1U, 5U, 24U, 300U}) {
            const SeatedLegend legend = Seated(position, count, count % 2 == 0);
            SCOPED_TRACE(std::to_string(position) + " " + std::to_string(count));
            EXPECT_EQ(legend.Items.size() + legend.LeftOut, count);
            EXPECT_EQ(legend.LeftOut > 0, count == 300);
            EXPECT_EQ(legend.RestText.empty(), legend.LeftOut == 0);
            EXPECT_FALSE(Overlap(legend.Box, kWhole));
            EXPECT_LE(legend.Box.Height, kWhole.Height + 0.001F);
            std::vector<RectF> all = legend.Items;
            if (legend.LeftOut > 0) {
                EXPECT_EQ(legend.RestText, Narrow(L"… ") + std::to_string(legend.LeftOut));
                all.push_back(legend.Rest);
            }
            for (std::size_t i = 0; i < all.size(); ++i) {
                EXPECT_TRUE(Holds(legend.Box, all[i]));
                for (std::size_t j = 0; j < i; ++j) {
                    EXPECT_FALSE(Overlap(all[i], all[j])) << i << " " << j;
                }
            }
        }
    }
}

TEST(LegendSeat, WhatHasNoPlaceHasNoItems) {
    LegendProp prop = PropAt(LegendPosition::RightTop);
    const auto isEmpty = [&prop](const RectF& whole) {
        return SeatLegend(prop, {"A", ""}, 1.0F, kPlot, whole, true).Items.empty();
    };
    EXPECT_FALSE(isEmpty(kWhole));
    EXPECT_FALSE(isEmpty({}));
    EXPECT_TRUE(isEmpty({std::numeric_limits<float>::quiet_NaN(), 0, 10, 10}));
    prop.ItemDist = -20.0F;
    EXPECT_FALSE(isEmpty(kWhole));
    prop.ItemDist = std::numeric_limits<float>::infinity();
    EXPECT_TRUE(isEmpty(kWhole));
    prop = PropAt(12);
    EXPECT_TRUE(isEmpty(kWhole));
    prop = PropAt(LegendPosition::TopLeft);
    prop.Font = nullptr;
    EXPECT_TRUE(isEmpty(kWhole));
}

TEST(LegendSeat, AnEntryWithoutANameHasItsSample) {
    const SeatedLegend legend =
        SeatLegend(PropAt(LegendPosition::RightTop), {"", "A"}, 1.0F, kPlot, kWhole, false);
    EXPECT_EQ(legend.Items[0], (RectF{82, 10, 5, 3.75F}));
}
