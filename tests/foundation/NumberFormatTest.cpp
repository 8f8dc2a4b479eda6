#include "foundation/NumberFormat.h"

#include "charts/cartesian/LogarithmCoordinate.h"
#include "charts/cartesian/NaturalCoordinate.h"
#include "penlode/text/StringUtil.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using millichart::ChartOptions;
using millichart::NumberFormat;
using Texts = std::vector<std::string>;
namespace Thousands = millichart::ThousandsStyle;

NumberFormat Exact(std::int32_t thousands, std::int32_t maxDecimals = 3) {
    ChartOptions options;
    options.Numbers = millichart::NumberStyle::Exact;
    options.Thousands = thousands;
    options.MaxDecimals = maxDecimals;
    return NumberFormat(options);
}

std::string Utf8(const std::string& narrow) {
    return penlode::CStringUtil::AnsiToUtf8(narrow);
}

Texts LabelsOf(const millichart::CCoordinate& axis, const NumberFormat& numbers) {
    Texts labels;
    axis.GetTickLabels(labels, numbers);
    std::transform(labels.begin(), labels.end(), labels.begin(), Utf8);
    return labels;
}

Texts Linear(double min, double max, double step, std::int32_t thousands = Thousands::None) {
    millichart::CNaturalCoordinate axis;
    axis.SetRange(min, max, step, step);
    return LabelsOf(axis, Exact(thousands));
}

Texts Logarithmic(double min, double max, std::int32_t thousands = Thousands::None) {
    millichart::CLogarithmCoordinate axis;
    axis.SetRange(min, max);
    return LabelsOf(axis, Exact(thousands));
}

std::string Value(double value, std::int32_t thousands = Thousands::None, std::int32_t maxDecimals = 3) {
    return Utf8(Exact(thousands, maxDecimals).ValueText(value, 0));
}

} // namespace

TEST(NumberFormat, GivesAnAxisTheDecimalsOfItsStep) {
    EXPECT_EQ(Linear(0, 1, 0.25), (Texts{"0.00", "0.25", "0.50", "0.75", "1.00"}));
    EXPECT_EQ(Linear(0, 0.41, 0.1), (Texts{"0.0", "0.1", "0.2", "0.3", "0.4"}));
    EXPECT_EQ(Linear(-0.3, 0.1, 0.1), (Texts{"-0.3", "-0.2", "-0.1", "0.0"})); // the last sum is above 0.1
    EXPECT_EQ(Linear(0.05, 0.3, 0.1), (Texts{"0.05", "0.15", "0.25"}));
    EXPECT_EQ(Linear(0, 1, 1.0 / 3), (Texts{"0.000", "0.333", "0.667", "1.000"}));
    EXPECT_EQ(Linear(1.0 / 3, 3, 1), (Texts{"0.33", "1.33", "2.33"}));
    EXPECT_EQ(Linear(0, 0.3, 0.12345), (Texts{"0.00000", "0.12345", "0.24690"}));
    EXPECT_EQ(Linear(100000, 100001, 0.5), (Texts{"100000.0", "100000.5", "100001.0"}));
    EXPECT_EQ(Linear(0, 1, std::nextafter(0.5, 1.0)), (Texts{"0.0", "0.5"}));
}

TEST(NumberFormat, KeepsVerySmallAndVeryLargeStepsReadable) {
    EXPECT_EQ(Linear(0, 2.1e-7, 1e-7), (Texts{"0", "1×10⁻⁷", "2×10⁻⁷"}));
    EXPECT_EQ(Linear(0, 1.5e-6, 5e-7), (Texts{"0", "0.5×10⁻⁶", "1.0×10⁻⁶", "1.5×10⁻⁶"}));
    EXPECT_EQ(Linear(0, 3.1e-5, 1e-5), (Texts{"0.00000", "0.00001", "0.00002", "0.00003"}));
    EXPECT_EQ(Linear(-5e12, 5e12, 5e12), (Texts{"-5×10¹²", "0", "5×10¹²"}));
    EXPECT_EQ(Linear(0, 1e11, 5e10), (Texts{"0", "50000000000", "100000000000"}));
    EXPECT_EQ(Linear(0, 1e308, 5e307), (Texts{"0", "0.5×10³⁰⁸", "1.0×10³⁰⁸"}));
    EXPECT_EQ(Linear(1e15, 1e15 + 1, 0.5).front(), "1.0000000000000000×10¹⁵");
    EXPECT_TRUE(Linear(0, 1, 1e-300).empty());
}

TEST(NumberFormat, SeparatesThousandsAndCountsInOneUnit) {
    EXPECT_EQ(Linear(0, 2000, 1000, Thousands::Comma), (Texts{"0", "1,000", "2,000"}));
    EXPECT_EQ(Linear(-1e6, 0, 1e6, Thousands::Comma), (Texts{"-1,000,000", "0"}));
    EXPECT_EQ(Linear(99999.5, 100000, 0.5, Thousands::ThinSpace), (Texts{"99\u2009999.5", "100\u2009000.0"}));
    EXPECT_EQ(Linear(0, 10000, 2500, Thousands::Chinese),
              (Texts{"0", "0.25万", "0.50万", "0.75万", "1.00万"}));
    EXPECT_EQ(Linear(-2e8, 1e8, 1e8, Thousands::Chinese), (Texts{"-2亿", "-1亿", "0", "1亿"}));
    EXPECT_EQ(Linear(0, 9000, 4500, Thousands::Chinese), (Texts{"0", "4500", "9000"}));
}

TEST(NumberFormat, WritesFarDecadesAsPowersOfTen) {
    EXPECT_EQ(Logarithmic(0.01, 100), (Texts{"0.01", "0.1", "1", "10", "100"}));
    EXPECT_EQ(Logarithmic(1000, 1e5, Thousands::Comma), (Texts{"1,000", "10,000", "100,000"}));
    EXPECT_EQ(Logarithmic(1000, 1e5, Thousands::Chinese), (Texts{"1000", "1万", "10万"}));
    EXPECT_EQ(Logarithmic(0.1, 1e6), (Texts{"10⁻¹", "10⁰", "10¹", "10²", "10³", "10⁴", "10⁵", "10⁶"}));
    EXPECT_EQ(Logarithmic(1e-6, 1e-5), (Texts{"10⁻⁶", "10⁻⁵"}));
    EXPECT_EQ(Logarithmic(1e-5, 1e-4), (Texts{"0.00001", "0.0001"}));
    EXPECT_EQ(Logarithmic(0.5, 60), (Texts{"0.5", "5", "50"}));
    EXPECT_EQ(Logarithmic(50000, 6e6), (Texts{"5×10⁴", "5×10⁵", "5×10⁶"}));
    EXPECT_EQ(Logarithmic(0.3, 3), (Texts{"0.3", "3"}));
}

TEST(NumberFormat, GivesValuesTheirOwnDecimals) {
    EXPECT_EQ(Value(0.1 + 0.2), "0.3");
    EXPECT_EQ(Value(12.5), "12.5");
    EXPECT_EQ(Value(-1234.5678, Thousands::Comma), "-1,234.568");
    EXPECT_EQ(Value(2.675, Thousands::None, 2), "2.68");
    EXPECT_EQ(Value(2.675, Thousands::None, -1), "3");
    EXPECT_EQ(Value(0.1 + 0.2, Thousands::None, 15), "0.3");
    EXPECT_EQ(Value(-0.0), "0");
    EXPECT_EQ(Value(99.9999), "100");
    EXPECT_EQ(Value(-0.00004), "-0.00004");
    EXPECT_EQ(Value(-0.0000004), "-4×10⁻⁷");
    EXPECT_EQ(Value(0.00099996), "0.001");
    EXPECT_EQ(Value(123456789012345.0), "123456789012345");
    EXPECT_EQ(Value(9.9999e15), "1×10¹⁶");
    EXPECT_EQ(Value(std::numeric_limits<double>::denorm_min()), "5×10⁻³²⁴");
    EXPECT_EQ(Value(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(Value(9999, Thousands::Chinese), "9999");
    EXPECT_EQ(Value(9999.9999, Thousands::Chinese), "1万");
    EXPECT_EQ(Value(-12500, Thousands::Chinese), "-1.25万");
    EXPECT_EQ(Value(99999999.9, Thousands::Chinese), "1亿");
    EXPECT_EQ(Value(3.1e8, Thousands::Chinese), "3.1亿");
    EXPECT_EQ(Value(1.5e13, Thousands::Chinese), "150000亿");
}

TEST(NumberFormat, NeverRoundsASliceAwayOrToTheWhole) {
    const NumberFormat exact = Exact(Thousands::None);
    EXPECT_EQ(exact.PercentText(33.333), "33.3%");
    EXPECT_EQ(exact.PercentText(0.0), "0.0%");
    EXPECT_EQ(exact.PercentText(0.01), "<0.1%");
    EXPECT_EQ(exact.PercentText(0.06), "0.1%");
    EXPECT_EQ(exact.PercentText(-0.01), "0.0%");
    EXPECT_EQ(exact.PercentText(99.96), ">99.9%");
    EXPECT_EQ(exact.PercentText(100.0), "100.0%");
    const NumberFormat classical{ChartOptions()};
    EXPECT_EQ(classical.PercentText(0.01), "0.0%");
    EXPECT_EQ(classical.PercentText(-0.01), "-0.0%");
    EXPECT_EQ(classical.ValueText(2.5, 0), "2");
    EXPECT_EQ(classical.ValueText(1234.56, 1), "1234.6");
}
