#include "charts/cartesian/LogarithmCoordinate.h"
#include "charts/cartesian/NaturalCoordinate.h"
#include "foundation/NumberText.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

using namespace millichart;

namespace {

using Labels = std::vector<std::string>;
using Positions = std::vector<float>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

Labels LabelsOf(const CCoordinate& axis) {
    Labels labels{"left over"};
    axis.GetTickLabels(labels);
    return labels;
}

Positions Major(const CCoordinate& axis) {
    Positions positions{-1.0F};
    axis.GetMajorTickPositions(positions);
    return positions;
}

Positions Minor(const CCoordinate& axis) {
    Positions positions{-1.0F};
    axis.GetMinorTickPositions(positions);
    return positions;
}

struct Range {
    double Min = 0.0;
    double Max = 0.0;
    double Step = 0.0;
    double MinorStep = 0.0;

    bool operator==(const Range&) const = default;
};

Range AutoRanged(double largest) {
    CNaturalCoordinate axis;
    axis.AutoRange(largest);
    Range range;
    axis.GetRange(range.Min, range.Max, range.Step, range.MinorStep);
    return range;
}

std::pair<double, double> LogarithmRange(double largest) {
    CLogarithmCoordinate axis;
    axis.AutoRange(largest);
    std::pair<double, double> range;
    axis.GetRange(range.first, range.second);
    return range;
}

} // namespace

TEST(NaturalCoordinate, TakesTheNextRoundMaximum) {
    EXPECT_EQ(AutoRanged(37), (Range{0, 40, 10, 1}));
    EXPECT_EQ(AutoRanged(40), (Range{0, 50, 10, 1}));
    EXPECT_EQ(AutoRanged(9.5), (Range{0, 10, 1, 0.1}));
    EXPECT_EQ(AutoRanged(10), (Range{0, 20, 10, 1}));
    EXPECT_EQ(AutoRanged(100), (Range{0, 200, 100, 10}));
    for (const double small : {0.3, 0.0, -5.0, kNan, kInfinity, -kInfinity}) {
        EXPECT_EQ(AutoRanged(small), (Range{0, 1, 1, 0.1})) << small;
    }
}

TEST(NaturalCoordinate, TicksLabelsAndPlaces) {
    CNaturalCoordinate axis;
    EXPECT_TRUE(Major(axis).empty());
    axis.SetLength(100.0F);
    axis.AutoRange(37);
    EXPECT_EQ(Major(axis), (Positions{0, 25, 50, 75, 100}));
    EXPECT_EQ(LabelsOf(axis), (Labels{"0", "10", "20", "30", "40"}));
    EXPECT_EQ(Minor(axis).size(), 40U);
    EXPECT_EQ(Minor(axis)[1], 2.5F);
    EXPECT_EQ(axis.ValueToPosition(-4), -10.0F);
    EXPECT_EQ(axis.ValueToPosition(44), 110.0F);

    axis.AutoRange(0.3);
    EXPECT_EQ(LabelsOf(axis), (Labels{"0", "1"}));
    // Ten tenths added up stay below 1; multiplied they reach it, and make no eleventh mark.
    EXPECT_EQ(Minor(axis).size(), 10U);

    axis.SetRange(0, 0.5, 0.25, 0.1);
    EXPECT_EQ(LabelsOf(axis), (Labels{"0.00", "0.25", "0.50"}));
    EXPECT_EQ(Minor(axis), (Positions{0, 20, 40, 50, 70, 90}));
    axis.SetRange(-10, 25, 20, 0);
    EXPECT_EQ(LabelsOf(axis), (Labels{"-10", "10"}));
    EXPECT_TRUE(Minor(axis).empty());
    // After the last major tick the minor ones go on to the range's end.
    axis.SetRange(0, 25, 10, 5);
    EXPECT_EQ(Minor(axis), (Positions{0, 20, 40, 60, 80}));

    double min = 7.0;
    double max = 8.0;
    static_cast<CCoordinate&>(axis).SetRange(1, 1000);
    static_cast<const CCoordinate&>(axis).GetRange(min, max);
    EXPECT_EQ(min + max, 15.0);
    EXPECT_EQ(Minor(axis).size(), 5U);
}

TEST(NaturalCoordinate, StepsAddUpAsTheyRound) {
    CNaturalCoordinate axis;
    axis.SetRange(0, 1, 0.1, 0.05);
    // 0.1 added ten times gives 0.9999999999999999.
    EXPECT_EQ(LabelsOf(axis).size(), 11U);
    EXPECT_EQ(LabelsOf(axis).back(), "1.00");
    axis.SetRange(0, 0.3, 0.1, 0.1);
    // and three times more than 0.3.
    EXPECT_EQ(LabelsOf(axis).size(), 3U);
}

TEST(NaturalCoordinate, UnsoundRangesHaveNoTicks) {
    CNaturalCoordinate axis;
    const Range unsound[] = {{0, 10, 0, 1},         {0, 10, -1, 1},   {10, 0, 1, 1},
                             {0, 10, kNan, 1},      {kNan, 10, 1, 1}, {0, kInfinity, 1, 1},
                             {-kInfinity, 0, 1, 1}, {0, 1e5, 1, 0.5}, {1e17, 1e17 + 64, 1, 1},
                             {0, 1e300, 1e-300, 1}};
    for (const Range& range : unsound) {
        axis.SetRange(range.Min, range.Max, range.Step, range.MinorStep);
        EXPECT_TRUE(LabelsOf(axis).empty()) << range.Min << " " << range.Max << " " << range.Step;
        EXPECT_TRUE(Minor(axis).empty());
    }
    axis.SetRange(0, 10, 10, 1e-9);
    EXPECT_EQ(LabelsOf(axis).size(), 2U);
    EXPECT_TRUE(Minor(axis).empty());
    axis.SetRange(1e17, 2e17, 1e17, 1);
    EXPECT_TRUE(Minor(axis).empty());
}

TEST(LogarithmCoordinate, TakesTheDecadeAboveAndTwoBelow) {
    using R = std::pair<double, double>;
    EXPECT_EQ(LogarithmRange(5000), R(1, 10000));
    EXPECT_EQ(LogarithmRange(10), R(1, 100));
    EXPECT_EQ(LogarithmRange(9.99), R(0.1, 10));
    EXPECT_EQ(LogarithmRange(1), R(0.1, 10));
    EXPECT_EQ(LogarithmRange(0.5), R(0.01, 1));
    EXPECT_EQ(LogarithmRange(0.1), R(0.001, 0.1));
    EXPECT_EQ(LogarithmRange(1e-5).second, 1e-5);
    for (const double without : {0.0, -3.0, kNan, kInfinity}) {
        EXPECT_EQ(LogarithmRange(without), R(0.1, 10)) << without;
    }
}

TEST(LogarithmCoordinate, TicksLabelsAndPlaces) {
    CLogarithmCoordinate axis;
    axis.SetLength(100.0F);
    axis.AutoRange(5000);
    EXPECT_EQ(Major(axis), (Positions{0, 25, 50, 75, 100}));
    EXPECT_EQ(LabelsOf(axis), (Labels{"1", "10", "100", "1000", "10000"}));
    EXPECT_EQ(axis.ValueToPosition(100), 50.0F);
    // 1, 2 ... 9 of each of four decades.
    EXPECT_EQ(Minor(axis).size(), 36U);
    EXPECT_EQ(Minor(axis)[9], 25.0F);
    EXPECT_NEAR(Minor(axis)[10], 25 + 25 * std::log10(2.0), 1e-5);

    axis.AutoRange(5);
    EXPECT_EQ(LabelsOf(axis), (Labels{"0.1", "1", "10"}));
    axis.SetRange(0.001, 0.02);
    EXPECT_EQ(LabelsOf(axis), (Labels{"0.001", "0.01"}));
}

TEST(LogarithmCoordinate, UnsoundRangesHaveNoTicks) {
    CLogarithmCoordinate axis;
    for (const auto& [min, max] : {std::pair{0.0, 10.0},
                                   {-1.0, 10.0},
                                   {10.0, 1.0},
                                   {1.0, kInfinity},
                                   {kNan, 10.0},
                                   {1.0, kNan},
                                   {kInfinity, kInfinity}}) {
        axis.SetRange(min, max);
        EXPECT_TRUE(Major(axis).empty()) << min << " " << max;
        EXPECT_TRUE(Minor(axis).empty());
    }
    axis.SetRange(5e-324, 1.7e308);
    EXPECT_LT(LabelsOf(axis).size(), 700U);
}

TEST(Coordinate, MappingManyValuesEqualsMappingEach) {
    CNaturalCoordinate natural;
    natural.SetRange(-0.3, 7.1, 1, 0.1);
    CLogarithmCoordinate logarithm;
    logarithm.SetRange(0.003, 700);
    std::vector<double> values{0.0, -0.0, -1.0, 1e300, -1e-300, kNan, kInfinity, -kInfinity};
    for (int i = 0; i < 1000; ++i) {
        values.push_back(std::exp(i * 0.017 - 8.0) / 3.0);
    }
    for (CCoordinate* axis : {static_cast<CCoordinate*>(&natural), static_cast<CCoordinate*>(&logarithm)}) {
        axis->SetLength(33.3F);
        Positions many(values.size());
        axis->ValuesToPositions(values, many);
        Positions inherited(values.size());
        axis->CCoordinate::ValuesToPositions(values, inherited);
        for (std::size_t i = 0; i < values.size(); ++i) {
            const auto each = std::bit_cast<std::uint32_t>(axis->ValueToPosition(values[i]));
            EXPECT_EQ(std::bit_cast<std::uint32_t>(many[i]), each) << values[i];
            EXPECT_EQ(std::bit_cast<std::uint32_t>(inherited[i]), each) << values[i];
        }
    }
}

TEST(NumberText, TrailingZerosGo) {
    EXPECT_EQ(WithoutTrailingZeros("2.500"), "2.5");
    EXPECT_EQ(WithoutTrailingZeros("3.00"), "3");
    EXPECT_EQ(WithoutTrailingZeros("300"), "300");
    EXPECT_EQ(WithoutTrailingZeros("-0.10"), "-0.1");
    EXPECT_EQ(WithoutTrailingZeros(""), "");
}
