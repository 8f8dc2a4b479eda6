#include "charts/reading/NamesThatFit.h"

#include "support/Texts.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace millichart;
using penlode::SizeF;

namespace {

/// 2 mm a byte, so that a Chinese character has 4, and 5 mm a line.
SizeF Measured(const std::string& text) {
    float width = 0.0F;
    float line = 0.0F;
    float height = 5.0F;
    for (const char c : text) {
        line = c == '\n' ? 0.0F : line + 2.0F;
        height += c == '\n' ? 5.0F : 0.0F;
        width = std::max(width, line);
    }
    return {width, height};
}

std::vector<FittedName> Fitted(const std::vector<std::string>& names, float distance, bool areOnScale = false,
                               std::int32_t angle = 0) {
    std::vector<float> centers;
    for (std::size_t i = 0; i < names.size(); ++i) {
        centers.push_back(distance * static_cast<float>(i));
    }
    return FitNames({names, centers, 10.0F, angle, areOnScale, Measured});
}

std::vector<std::size_t> Indexes(const std::vector<FittedName>& names) {
    std::vector<std::size_t> indexes;
    for (const FittedName& name : names) {
        indexes.push_back(name.Index);
    }
    return indexes;
}

} // namespace

TEST(NamesThatFit, StayThenWrapThenTurnThenAreThinned) {
    const std::vector<std::string> names(3, "north east");
    EXPECT_EQ(Fitted(names, 22.0F).front().Text, "north east");
    const std::vector<FittedName> wrapped = Fitted(names, 14.0F);
    EXPECT_EQ(wrapped.front().Text, "north\neast");
    EXPECT_EQ(wrapped.front().Box, (penlode::RectF{-5.0F, 10.0F, 10.0F, 10.0F}));
    const std::vector<FittedName> turned = Fitted(names, 10.0F);
    EXPECT_EQ(turned.size(), 3U);
    EXPECT_EQ(turned.front().Angle, 45);
    EXPECT_EQ(turned.front().Text, "north east");
    EXPECT_LT(turned.front().Box.Right(), 2.5F) << "hung by its end";
    const std::vector<FittedName> thinned = Fitted(std::vector<std::string>(7, "north east"), 3.0F);
    EXPECT_EQ(thinned.front().Angle, 45);
    EXPECT_EQ(Indexes(thinned), (std::vector<std::size_t>{0, 3, 6}));
}

TEST(NamesThatFit, OnAScaleAreRatherThinnedThanTurned) {
    const std::vector<std::string> years(21, "2001");
    const std::vector<FittedName> thinned = Fitted(years, 4.0F, true);
    EXPECT_EQ(thinned.front().Angle, 0);
    EXPECT_EQ(Indexes(thinned), (std::vector<std::size_t>{0, 3, 6, 9, 12, 15, 18}));
    EXPECT_EQ(Fitted({years.begin(), years.begin() + 6}, 4.0F, true).front().Angle, 45)
        << "few would be left";
}

TEST(NamesThatFit, ThatARecordTurnsStayTurned) {
    const std::vector<FittedName> upright =
        Fitted(std::vector<std::string>(6, "north east"), 3.0F, false, 90);
    EXPECT_EQ(upright.front().Angle, 90);
    EXPECT_EQ(Indexes(upright), (std::vector<std::size_t>{0, 2, 4}));
}

TEST(NamesThatFit, BreakBetweenChineseCharactersButNotBeforeACommaOrInAWord) {
    EXPECT_EQ(WrappedText(Narrow(L"内蒙古自治区"), 12.0F, Measured), Narrow(L"内蒙古\n自治区"));
    EXPECT_EQ(WrappedText(Narrow(L"茶园，果园"), 9.0F, Measured), Narrow(L"茶\n园，\n果园"));
    EXPECT_EQ(WrappedText("north  east of it", 11.0F, Measured), "north\neast\nof it");
    EXPECT_EQ(WrappedText("unbreakable", 4.0F, Measured), "unbreakable");
    EXPECT_EQ(WrappedText("a\n\nb c", 2.0F, Measured), "a\n\nb\nc");
}
