#include "penlode/Region.h"

#include <gtest/gtest.h>

using namespace penlode;

TEST(Region, AWindowNarrowedAgainAndAgainStaysOneStep) {
    Region region(RectF{0, 0, 100, 100});
    for (int i = 0; i < 100000; ++i) {
        region.Combine(RectF{10, 20, 30, 300}, CombineMode::Intersect);
    }
    EXPECT_EQ(region, Region(RectF{10, 20, 30, 80}));
    region.Combine(RectF{40, 110, -35, -60}, CombineMode::Intersect);
    EXPECT_EQ(region, Region(RectF{10, 50, 30, 50})) << "a negative extent reaches the other way";
    region.Combine(RectF{40, 0, 5, 5}, CombineMode::Intersect);
    Region empty;
    empty.MakeEmpty();
    EXPECT_EQ(region, empty);
}

TEST(Region, OneShapeIsCombinedAsItselfAndMoreAsARegion) {
    Region two(RectF{0, 0, 1, 1});
    two.Combine(RectF{5, 5, 1, 1}, CombineMode::Union);
    Region region(RectF{0, 0, 9, 9});
    region.Combine(Region(RectF{1, 1, 1, 1}), CombineMode::Xor);
    region.Combine(two, CombineMode::Exclude);
    ASSERT_EQ(region.Steps().size(), 3U);
    EXPECT_EQ(std::get<RectF>(region.Steps()[1].Operand), (RectF{1, 1, 1, 1}));
    EXPECT_EQ(*std::get<Region::Nested>(region.Steps()[2].Operand).Area, two);
    region.Combine(Region(), CombineMode::Complement);
    EXPECT_TRUE(std::holds_alternative<Region::Everything>(region.Steps()[3].Operand));
    region.Combine(two, CombineMode::Replace);
    EXPECT_EQ(region, two);
    EXPECT_EQ(region.Combine(Region::Nested{}, CombineMode::Union), Status::InvalidParameter);
}

TEST(Region, GrowthHasAnEnd) {
    Region steps;
    Status status = Status::Ok;
    for (std::size_t i = 0; i <= Region::kMaxSteps; ++i) {
        status = steps.Combine(RectF{0, 0, 1, 1}, CombineMode::Xor);
    }
    EXPECT_EQ(status, Status::OutOfMemory);
    EXPECT_EQ(steps.Steps().size(), Region::kMaxSteps);

    Region nested(RectF{0, 0, 1, 1});
    nested.Combine(RectF{2, 2, 1, 1}, CombineMode::Union);
    std::size_t rounds = 0;
    while (rounds < 1000 && nested.Combine(Region(nested), CombineMode::Intersect) == Status::Ok) {
        ++rounds;
    }
    EXPECT_LT(rounds, Region::kMaxLevels);
    EXPECT_EQ(nested.Combine(nested, CombineMode::Replace), Status::Ok);
}
