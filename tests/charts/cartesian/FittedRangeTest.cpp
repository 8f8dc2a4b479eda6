#include "charts/cartesian/FittedRange.h"

#include "charts/cartesian/LogarithmCoordinate.h"
#include "charts/cartesian/NaturalCoordinate.h"
#include "charts/curve/BasicCurve.h"
#include "charts/histogram/BasicHistogram.h"
#include "charts/pie/BasicHalfPieHistogram.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using namespace millichart;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

ValueSpan SpanOf(std::initializer_list<double> values) {
    ValueSpan span;
    for (const double value : values) {
        span.Take(value);
    }
    return span;
}

/// Major ticks as they are placed on an axis of 1000 mm.
std::vector<float> TicksOf(const std::array<double, 4>& range, std::vector<std::string>* labels = nullptr) {
    CNaturalCoordinate axis;
    axis.SetLength(1000.0F);
    axis.SetRange(range[0], range[1], range[2], range[3]);
    std::vector<float> ticks;
    axis.GetMajorTickPositions(ticks);
    if (labels != nullptr) {
        axis.GetTickLabels(*labels);
    }
    return ticks;
}

/// As bars have it that stand on the minimum, or lines.
RangeNeeds Classical(bool areBars) {
    return RangeNeeds::Of(ChartOptions(), areBars);
}

} // namespace

TEST(FittedRange, IsRoundAndFilled) {
    struct Case {
        double Min, Max;
        bool AreBars;
        std::array<double, 4> Range;
    };

    for (const Case& c :
         std::initializer_list<Case>{{3, 101, true, {0, 120, 20, 5}},
                                     {0, 100, true, {0, 100, 20, 5}},
                                     {1, 37, true, {0, 40, 5, 1}},
                                     {0, 0.0034, true, {0, 0.0035, 0.0005, 0.0001}},
                                     {0, 0.2, true, {0, 0.2, 0.02, 0.005}},
                                     {-20, 63, false, {-20, 70, 10, 2}},
                                     {-20, 63, true, {-40, 80, 20, 5}}, // bars stand on the minimum
                                     {-3, -2, true, {-3.5, 0, 0.5, 0.1}},
                                     {1000, 1010, false, {1000, 1010, 2, 0.5}},
                                     {4, 9, false, {0, 9, 1, 0.2}}, // 0 is near
                                     {6, 9, false, {6, 9, 1, 0.2}},
                                     // Labels are whole numbers from 1 on, and have two decimals below.
                                     {0, 2.5, true, {0, 3, 1, 0.2}},
                                     {0, 12.3, true, {0, 14, 2, 0.5}},
                                     {0, 0.93, true, {0, 0.99, 0.1, 0.02}},
                                     {0, 1, true, {0, 1, 1, 0.2}},
                                     {7, 7, true, {0, 7, 1, 0.2}},
                                     {-7, -7, false, {-7, 0, 1, 0.2}},
                                     {0, 0, true, {0, 1, 1, 0.2}},
                                     {kNan, kInfinity, true, {0, 1, 1, 0.2}},
                                     {0, 1e-310, false, {0, 1, 1, 0.2}}}) {
        const std::array<double, 4> range = FittedRange(SpanOf({c.Min, c.Max}), Classical(c.AreBars));
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_DOUBLE_EQ(range[i], c.Range[i]) << c.Min << " to " << c.Max << ", " << i;
        }
    }
}

TEST(FittedRange, OfAnyValuesHoldsThemAndKeepsItsLastTick) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-12, 12);
    for (int i = 0; i < 20000; ++i) {
        const double scale = std::pow(10.0, exponent(random));
        // Some with few digits, as people have them.
        const double digits = i % 2 == 0 ? 10.0 : 1e9;
        const double a = std::round(mantissa(random) * digits) / digits * scale;
        const double b = std::round(mantissa(random) * digits) / digits * scale;
        const std::array<double, 4> range = FittedRange(SpanOf({a, b}), Classical(i % 3 == 0));
        std::vector<std::string> labels;
        const std::vector<float> ticks = TicksOf(range, &labels);
        SCOPED_TRACE(std::to_string(a) + " " + std::to_string(b) + ": " + std::to_string(range[2]));
        ASSERT_LE(range[0], std::min(a, b));
        ASSERT_GE(range[1], std::max(a, b));
        ASSERT_TRUE(ticks.size() >= 2 && ticks.size() <= 11) << ticks.size();
        const bool isBelowOne = std::abs(range[1] - 0.99) < 0.01 && ticks.back() < 999.0F;
        ASSERT_TRUE(isBelowOne || ticks.back() > 999.9F) << ticks.back();
        if (range[2] > 0.009) {
            ASSERT_EQ(std::count(labels.begin(), labels.end(), "-0.00"), 0)
                << "the sum of steps passes 0 closely";
        }
        const double filled = std::abs(b - a) / (range[1] - range[0]);
        ASSERT_TRUE(filled > 0.45 || range[0] * range[1] <= 0.0) << filled;
    }
    for (const double huge : {1e300, 1.7e308, -1e305}) {
        EXPECT_GE(TicksOf(FittedRange(SpanOf({huge, -huge / 3}), Classical(true))).size(), 2U);
    }
}

TEST(FittedRange, OfALogarithmicAxisIsWholeDecades) {
    using Ends = std::array<double, 2>;
    EXPECT_EQ(FittedDecades(SpanOf({0.003, 0.4}), false), (Ends{0.001, 1.0}));
    EXPECT_EQ(FittedDecades(SpanOf({20, 80}), false), (Ends{10, 100}));
    EXPECT_EQ(FittedDecades(SpanOf({-5, 0, 100, 1000}), false), (Ends{100, 1000}));
    EXPECT_EQ(FittedDecades(SpanOf({100}), false), (Ends{100, 1000}));
    EXPECT_EQ(FittedDecades(SpanOf({1, 1000}), true), (Ends{0.1, 1000})) << "the bar of 1 is seen";
    EXPECT_EQ(FittedDecades(SpanOf({-1, 0}), true), (Ends{1, 10}));
    for (const double least : {1e-308, 3e-17, 2e5}) {
        const Ends ends = FittedDecades(SpanOf({least, 1e17, 1e305}), true);
        CLogarithmCoordinate axis;
        axis.SetLength(1000.0F);
        axis.SetRange(ends[0], ends[1]);
        std::vector<float> ticks;
        axis.GetMajorTickPositions(ticks);
        ASSERT_FALSE(ticks.empty());
        EXPECT_NEAR(ticks.back(), 1000.0F, 0.1F) << least;
    }
}

/// The steps of the range, 0 if it does not hold both ends, or reaches a step or more beyond one.
double StepsOf(const std::array<double, 4>& range, double least, double largest) {
    const auto [min, max, step, minorStep] = range;
    const bool isTight = min <= least && max >= largest && least - min < step && max - largest < step;
    return isTight ? std::round((max - min) / step) : 0.0;
}

TEST(FittedRange, WithExactLabelsHasFiveToNineRoundSteps) {
    const ChartOptions readable = ChartOptions::Readable();
    std::mt19937 random(2);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-250, 250);
    for (int i = 0; i < 20000; ++i) {
        const double scale = std::pow(10.0, exponent(random));
        const bool areBars = i % 2 == 0;
        const auto [least, largest] = std::minmax({mantissa(random) * scale, mantissa(random) * scale});
        const std::array<double, 4> range =
            FittedRange(SpanOf({least, largest}), RangeNeeds::Of(readable, areBars));
        const bool hasZero = areBars || (range[0] <= 0.0 && range[1] >= 0.0);
        const double steps = StepsOf(range, hasZero ? std::min(least, 0.0) : least,
                                     hasZero ? std::max(largest, 0.0) : largest);
        SCOPED_TRACE(std::to_string(least) + " " + std::to_string(largest) + ": " + std::to_string(steps));
        ASSERT_TRUE(steps >= 5.0 && steps <= 9.0);
        ASSERT_EQ(static_cast<double>(TicksOf(range).size()), steps + 1.0);
        const double digits = range[2] / std::pow(10.0, std::floor(std::log10(range[2]) + 1e-9));
        ASSERT_TRUE(std::abs(digits - 1.0) < 1e-9 || std::abs(digits - 2.0) < 1e-9 ||
                    std::abs(digits - 2.5) < 1e-9 || std::abs(digits - 5.0) < 1e-9)
            << digits;
    }
}

TEST(FittedRange, OfStacksHoldsTheirEnds) {
    ChartOptions options;
    const std::vector<std::vector<double>> groups{{3, -5, 4}, {-2, kNan, -1}};
    const auto ends = [&](bool areStacked) {
        const ValueSpan span = BarSpanOf(groups, areStacked, options);
        return std::pair(span.Min(), span.Max());
    };
    EXPECT_EQ(ends(false), std::pair(-5.0, 4.0));
    EXPECT_EQ(ends(true), std::pair(-3.0, 3.0)) << "the sums on the way";
    options.BarBase = BarBase::Zero;
    EXPECT_EQ(ends(true), std::pair(-5.0, 7.0)) << "up and down from 0";
    EXPECT_EQ(ends(false), std::pair(-5.0, 4.0));
}

template <class Chart> std::array<double, 4> NaturalOf(const Chart& chart) {
    std::array<double, 4> range{};
    chart.GetNaturalValueRange(range[0], range[1], range[2], range[3]);
    return range;
}

template <class Chart> std::array<double, 2> LogarithmOf(const Chart& chart) {
    std::array<double, 2> range{};
    chart.GetLogarithmValueRange(range[0], range[1]);
    return range;
}

TEST(FittedRange, IsTakenByBarsAndLines) {
    using Natural = std::array<double, 4>;
    using Logarithm = std::array<double, 2>;
    CBasicHistogram bars;
    bars.InitializeValueRange(1, 2); // without an axis yet
    bars.SetHistogramProp({});
    CBasicCurve lines;
    lines.SetCurveProp({});
    bars.InitializeValueRange(90, 100);
    lines.InitializeValueRange(100, 90);
    EXPECT_EQ(NaturalOf(bars), (Natural{0, 100, 20, 5}));
    EXPECT_EQ(NaturalOf(lines), (Natural{90, 100, 2, 0.5}));
    bars.InitializeValueRange(-40, 80);
    EXPECT_EQ(NaturalOf(bars), (Natural{-60, 80, 20, 5})) << "room for the bar of -40";

    bars.SetOptions(ChartOptions::Readable());
    bars.InitializeValueRange(-40, 80);
    EXPECT_EQ(NaturalOf(bars), (Natural{-40, 80, 20, 5}));
    bars.InitializeValueRange(37);
    EXPECT_EQ(NaturalOf(bars), (Natural{0, 40, 5, 1}));
    bars.InitializeValueRange(kNan);
    EXPECT_EQ(NaturalOf(bars), (Natural{0, 1, 0.2, 0.05}));

    CurveProp logarithmic;
    logarithmic.Plot.LogarithmScale = 1;
    lines.SetCurveProp(logarithmic);
    lines.SetOptions(ChartOptions::Readable());
    lines.InitializeValueRange(0.003, 40);
    EXPECT_EQ(LogarithmOf(lines), (Logarithm{0.001, 100}));
    lines.InitializeValueRange(0.5);
    EXPECT_EQ(LogarithmOf(lines), (Logarithm{0.01, 1})) << "from two decades below";
}

TEST(FittedRange, OfBarsOnAHalfPieComesFromTheirGroups) {
    HalfPieHistogramProp prop;
    prop.Histogram.Plot.ComponentName = {"a", "b"};
    CBasicHalfPieHistogram chart;
    chart.SetHalfPieHistogramProp(prop);
    chart.SetComponentValue({1}, {{-30, 80}, {20, 10}}, 80);
    chart.SetOptions(ChartOptions::Readable());
    chart.Layout();
    EXPECT_EQ(NaturalOf(chart.GetHistogram()), (std::array<double, 4>{-40, 80, 20, 5}));
    chart.SetOptions({});
    chart.ResetValueRange();
    EXPECT_EQ(NaturalOf(chart.GetHistogram()), (std::array<double, 4>{0, 90, 10, 1}));
}
