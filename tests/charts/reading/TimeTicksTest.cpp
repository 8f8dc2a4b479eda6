#include "charts/reading/TimeTicks.h"

#include "foundation/ChartOptions.h"
#include "penlode/text/StringUtil.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace millichart;

namespace {

using Ticks = std::vector<TimeTick>;

constexpr std::int32_t kFirst = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kLast = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kDay = 86400;

Ticks InUtf8(Ticks ticks) {
    for (TimeTick& tick : ticks) {
        tick.Text = penlode::CStringUtil::AnsiToUtf8(tick.Text);
    }
    return ticks;
}

Ticks Days(std::int32_t first, std::int32_t last, std::size_t most = 12) {
    return InUtf8(TimeTicks({first, last, TimeUnit::Days}, most));
}

Ticks Seconds(std::int32_t first, std::int32_t last, std::size_t most = 12) {
    return InUtf8(TimeTicks({first, last, TimeUnit::Seconds}, most));
}

/// 1 January 2024, a Monday in a leap year.
constexpr std::int32_t k2024 = 19723;

} // namespace

TEST(TimeTicks, FallOnDates) {
    EXPECT_EQ(
        Days(k2024, k2024 + 3),
        (Ticks{
            {k2024, "1月1日\n2024"}, {k2024 + 1, "1月2日"}, {k2024 + 2, "1月3日"}, {k2024 + 3, "1月4日"}}));
    EXPECT_EQ(Days(k2024 - 2, k2024 + 20, 4),
              (Ticks{{k2024, "1月1日\n2024"}, {k2024 + 7, "1月8日"}, {k2024 + 14, "1月15日"}}))
        << "Mondays";
    EXPECT_EQ(
        Days(k2024 - 40, k2024 + 70, 5),
        (Ticks{{k2024 - 31, "12月\n2023"}, {k2024, "1月\n2024"}, {k2024 + 31, "2月"}, {k2024 + 60, "3月"}}))
        << "February has 29 days";
    EXPECT_EQ(Days(k2024 + 1, k2024 + 400, 5), (Ticks{{k2024 + 91, "4月\n2024"},
                                                      {k2024 + 182, "7月"},
                                                      {k2024 + 274, "10月"},
                                                      {k2024 + 366, "1月\n2025"}}))
        << "quarters";
    EXPECT_EQ(
        Days(0, 4000, 6),
        (Ticks{{0, "1970"}, {730, "1972"}, {1461, "1974"}, {2191, "1976"}, {2922, "1978"}, {3652, "1980"}}));
}

TEST(TimeTicks, FallOnTimesOfDay) {
    constexpr std::int32_t kStart = k2024 * kDay;
    EXPECT_EQ(Seconds(kStart - 1, kStart + kDay, 5), (Ticks{{kStart, "0:00\n2024年1月1日"},
                                                            {kStart + kDay / 4, "6:00"},
                                                            {kStart + kDay / 2, "12:00"},
                                                            {kStart + kDay / 4 * 3, "18:00"},
                                                            {kStart + kDay, "0:00\n1月2日"}}));
    EXPECT_EQ(Seconds(kStart + 52200, kStart + 52200 + 120, 3),
              (Ticks{{kStart + 52200, "14:30\n2024年1月1日"},
                     {kStart + 52260, "14:31"},
                     {kStart + 52320, "14:32"}}));
    EXPECT_EQ(Seconds(7, 8), (Ticks{{7, "0:00:07\n1970年1月1日"}, {8, "0:00:08"}}));
    EXPECT_EQ(Seconds(-1, -1), (Ticks{{-1, "23:59:59\n1969年12月31日"}}));
}

TEST(TimeTicks, ReachBothEndsOfTheNumbers) {
    EXPECT_EQ(Seconds(kLast - 1, kLast).back(), (TimeTick{kLast, "3:14:07"}));
    EXPECT_EQ(Seconds(kFirst, kFirst).front(), (TimeTick{kFirst, "20:45:52\n1901年12月13日"}));
    EXPECT_EQ(Seconds(kFirst, kLast, 8).front().Text, "1920");
    const Ticks ages = Days(kFirst, kLast);
    ASSERT_EQ(ages.size(), 11U);
    EXPECT_EQ(ages.front().Text, "-5000000");
    EXPECT_EQ(ages.back().Text, "5000000");
    EXPECT_EQ(ages[5], (TimeTick{-719528, "0"}));
    EXPECT_EQ(Days(kLast, kLast).front().Text, "7月11日\n5881580");
    const Ticks centuries = Days(-719528, 741442); // 40 of them
    EXPECT_EQ(centuries.size(), 9U);
    EXPECT_EQ(centuries[4].Text, "2000");
    EXPECT_TRUE(Days(0, 1000, 0).empty());
    EXPECT_LE(Days(kFirst, kLast, std::numeric_limits<std::size_t>::max()).size(), 10000U);
}

TEST(TimeTicks, OfAnySpanLieInItAndAreEnough) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> logarithm(0.0, 32.0);
    for (int i = 0; i < 3000; ++i) {
        const auto length = static_cast<std::int64_t>(std::exp2(logarithm(random))) - 1;
        const std::int64_t first =
            std::uniform_int_distribution<std::int64_t>(kFirst, kLast - length)(random);
        for (const std::int32_t unit : {TimeUnit::Days, TimeUnit::Seconds}) {
            const Ticks ticks = TimeTicks(
                {static_cast<std::int32_t>(first), static_cast<std::int32_t>(first + length), unit}, 12);
            SCOPED_TRACE(std::to_string(first) + " + " + std::to_string(length));
            ASSERT_GE(ticks.size(), std::min<std::size_t>(static_cast<std::size_t>(length) + 1, 3));
            ASSERT_LE(ticks.size(), 12U);
            ASSERT_GE(ticks.front().Time, first);
            ASSERT_LE(ticks.back().Time, first + length);
            for (std::size_t k = 1; k < ticks.size(); ++k) {
                ASSERT_LT(ticks[k - 1].Time, ticks[k].Time);
            }
        }
    }
}

TEST(TimeTicks, FitInTheirAxis) {
    const auto measure = [](const std::string& text) {
        return penlode::SizeF{static_cast<float>(text.find('\n') == std::string::npos ? text.size() : 6),
                              4.0F};
    };
    const auto fitted = [&](float length) {
        return TimeTicksThatFit({k2024, k2024 + 365, TimeUnit::Days}, length, measure);
    };
    EXPECT_EQ(fitted(120.0F).size(), 12U);
    EXPECT_EQ(fitted(50.0F).size(), 4U);
    EXPECT_EQ(fitted(1.0F).size(), 2U) << "years would leave one";
}

TEST(TimeTicks, OfAnyAxisDoNotTouch) {
    const auto measure = [](const std::string& text) {
        const std::size_t lineBreak = text.find('\n');
        const bool isOneLine = lineBreak == std::string::npos;
        const std::size_t longest =
            isOneLine ? text.size() : std::max(lineBreak, text.size() - lineBreak - 1);
        return penlode::SizeF{static_cast<float>(longest), isOneLine ? 2.5F : 5.0F};
    };
    std::mt19937 random(4);
    std::uniform_real_distribution<double> logarithm(2.0, 31.0);
    std::uniform_real_distribution<float> lengths(60.0F, 200.0F);
    for (int i = 0; i < 2000; ++i) {
        const auto span = static_cast<std::int32_t>(std::exp2(logarithm(random)) - 1.0);
        const std::int32_t first = std::uniform_int_distribution(-1000000, kLast - span)(random);
        const DateSpan dates{first, first + span, i % 2 == 0 ? TimeUnit::Days : TimeUnit::Seconds};
        const float length = lengths(random);
        const Ticks ticks = TimeTicksThatFit(dates, length, measure);
        ASSERT_GE(ticks.size(), 2U) << first << " + " << span;
        for (std::size_t k = 1; k < ticks.size(); ++k) {
            const double distance = (static_cast<double>(ticks[k].Time) - ticks[k - 1].Time) / span * length;
            const float halves = (measure(ticks[k].Text).Width + measure(ticks[k - 1].Text).Width) / 2.0F;
            ASSERT_GT(distance, halves) << first << " + " << span << " on " << length << " mm";
        }
    }
}
