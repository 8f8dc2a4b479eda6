#include "penlode/text/TextPlacement.h"

#include <gtest/gtest.h>
#include <limits>

namespace penlode {
namespace {

using Lines = std::vector<std::wstring_view>;

/// Ascent 4, lines 5 apart; "ab" is 4 wide, "深度三" 12, "c" 2.
const Font kFont{L"Arial", 4.0F};
constexpr std::wstring_view kThreeLines = L"ab\n深度三\r\nc";

StringFormat Format(StringAlignment across, StringAlignment down) {
    return {0, 0, across, down};
}

void ExpectPlaced(const RectF& box, const StringFormat& format, PointF ab, PointF wide, PointF c) {
    const std::vector<PlacedLine> placed = PlaceLines(kThreeLines, kFont, box, format);
    ASSERT_EQ(placed.size(), 3U);
    EXPECT_EQ(placed[0].Text, L"ab");
    EXPECT_EQ(placed[1].Text, L"深度三");
    EXPECT_EQ(placed[2].Text, L"c");
    EXPECT_EQ(placed[0].Baseline, ab);
    EXPECT_EQ(placed[1].Baseline, wide);
    EXPECT_EQ(placed[2].Baseline, c);
    EXPECT_EQ(placed[0].Width, 4.0F);
    EXPECT_EQ(placed[1].Width, 12.0F);
    EXPECT_EQ(placed[2].Width, 2.0F);
}

TEST(TextPlacement, AlignsEveryLineAcrossAndTheBlockDown) {
    using enum StringAlignment;
    const RectF box{10, 20, 40, 35};
    ExpectPlaced(box, Format(Near, Near), {10, 24}, {10, 29}, {10, 34});
    ExpectPlaced(box, Format(Center, Center), {28, 34}, {24, 39}, {29, 44});
    ExpectPlaced(box, Format(Far, Far), {46, 44}, {38, 49}, {48, 54});
    ExpectPlaced(box, Format(Near, Far), {10, 44}, {10, 49}, {10, 54});
}

TEST(TextPlacement, ABoxWithoutExtentAlignsOnItsCorner) {
    using enum StringAlignment;
    const RectF corner{10, 20, 0, 0};
    ExpectPlaced(corner, Format(Near, Near), {10, 24}, {10, 29}, {10, 34});
    ExpectPlaced(corner, Format(Center, Center), {8, 16.5F}, {4, 21.5F}, {9, 26.5F});
    ExpectPlaced(corner, Format(Far, Far), {6, 9}, {-2, 14}, {8, 19});
}

TEST(TextPlacement, BoundsCoverAllLines) {
    using enum StringAlignment;
    const RectF box{10, 20, 40, 35};
    EXPECT_EQ(TextBounds(kThreeLines, kFont, box, Format(Near, Near)), (RectF{10, 20, 12, 15}));
    EXPECT_EQ(TextBounds(kThreeLines, kFont, box, Format(Center, Far)), (RectF{24, 40, 12, 15}));
    EXPECT_EQ(TextBounds(kThreeLines, kFont, box, Format(Far, Center)), (RectF{38, 30, 12, 15}));
    EXPECT_EQ(TextBounds(kThreeLines, kFont, {10, 20, 0, 0}, Format(Far, Far)), (RectF{-2, 5, 12, 15}));
    EXPECT_EQ(TextBounds(L"", kFont, box, Format(Center, Far)), (RectF{30, 55, 0, 0}));
}

TEST(TextPlacement, ATextHasOneLineMoreThanBreaks) {
    EXPECT_EQ(SplitLines(L""), Lines{L""});
    EXPECT_EQ(SplitLines(L"a"), Lines{L"a"});
    EXPECT_EQ(SplitLines(L"a\r\n\r\nb\n"), (Lines{L"a", L"", L"b", L""}));
    EXPECT_EQ(SplitLines(L"\n"), (Lines{L"", L""}));
    EXPECT_EQ(SplitLines(L"a\rb\r"), Lines{L"a\rb\r"}); // only together with a line feed is it a break
}

TEST(TextPlacement, TakesTextByLengthOrUpToItsEnd) {
    EXPECT_EQ(TextOf(L"深度", -1), L"深度");
    EXPECT_EQ(TextOf(L"深度", 1), L"深");
    EXPECT_EQ(TextOf(L"深度", 0), L"");
    EXPECT_EQ(TextOf(L"ab\0cd", 4), L"ab");
    EXPECT_EQ(TextOf(L"ab", std::numeric_limits<std::int32_t>::max()), L"ab");
    EXPECT_EQ(TextOf(nullptr, 7), L"");
    EXPECT_EQ(TextOf(nullptr, -1), L"");
}

} // namespace
} // namespace penlode
