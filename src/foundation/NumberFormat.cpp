#include "foundation/NumberFormat.h"

#include "foundation/Decimal.h"
#include "foundation/NumberText.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string_view>

namespace millichart {
namespace {

/// Plain digits up to here: on an axis, before the point; in a value, all that a double holds.
constexpr int kMostAxisDigits = 12;
constexpr int kMostValueDigits = 15;
/// Numbers below this power of ten, and decades beyond either, are written as powers.
constexpr int kLeastPlainPower = -5;
constexpr int kGreatestPlainPower = 5;
/// A double has no more.
constexpr int kMostDigits = 17;

/// What Chinese numbers are counted in.
struct Unit {
    int Power; ///< of ten
    std::string_view Name;
};

constexpr std::array kChineseUnits{Unit{0, ""}, Unit{4, "万"}, Unit{8, "亿"}};

std::string_view SeparatorOf(std::int32_t thousands) {
    switch (thousands) {
    case ThousandsStyle::Comma:
        return ",";
    case ThousandsStyle::ThinSpace:
        return "\u2009";
    default:
        return "";
    }
}

std::string PowerOfTen(int exponent) {
    constexpr std::array<std::string_view, 10> kSuperscripts{"⁰", "¹", "²", "³", "⁴",
                                                             "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string text = "10";
    for (const char digit : std::to_string(exponent)) {
        text += digit == '-' ? "⁻" : kSuperscripts[static_cast<std::size_t>(digit - '0')];
    }
    return text;
}

/// Narrow, from the UTF-8 that this file is written in.
std::string Narrow(const std::string& text) {
    return penlode::CStringUtil::Utf8ToAnsi(text);
}

/// With the digits that matter beside a step whose first is at this power of ten: all of them, or as far as
/// the step's third if there is no end to them, as in 1/3.
Decimal Tidied(const Decimal& number, int exponent) {
    constexpr int kDigitsSeen = 12;
    constexpr int kDigitsOfEndless = 2;
    constexpr int kZerosAtEnd = 3;
    const Decimal tidied = number.Rounded(kDigitsSeen - exponent);
    return tidied.Decimals() > kDigitsSeen - kZerosAtEnd - exponent
               ? number.Rounded(kDigitsOfEndless - exponent)
               : tidied;
}

/// How all labels of an axis are written.
struct AxisForm {
    int Power;        ///< of ten, in which they are counted
    std::string Name; ///< of that unit, which follows each label but 0
    int Decimals;     ///< in that unit
    std::string_view Separator;

    std::string Label(const Decimal& tick) const {
        const Decimal counted = tick.TimesTenTo(-Power).Rounded(Decimals);
        if (counted.IsZero() && Power != 0) {
            return "0";
        }
        return counted.Text(Decimals, Separator) + Name;
    }
};

Unit LargestUnitIn(const Decimal& number) {
    return *std::find_if(kChineseUnits.rbegin(), kChineseUnits.rend() - 1,
                         [&](const Unit& unit) { return number.Exponent() >= unit.Power; });
}

/// How many decimals the labels of an axis need; below 0 where all end in zeros.
int DecimalsOf(double first, double step) {
    const Decimal each = Decimal::Of(step);
    const int ofStep = Tidied(each, each.Exponent()).Decimals();
    const Decimal start = Tidied(Decimal::Of(first), each.Exponent());
    return start.IsZero() ? ofStep : std::max(ofStep, start.Decimals());
}

AxisForm FormOf(const std::vector<double>& ticks, double step, std::int32_t thousands) {
    const int needed = DecimalsOf(ticks.front(), step);
    const double farthest = std::max(std::abs(ticks.front()), std::abs(ticks.back()));
    const Decimal largest = Decimal::Of(farthest).Rounded(needed);
    const int decimals = std::min(needed, kMostDigits - largest.Point);
    AxisForm form{0, {}, std::max(decimals, 0), SeparatorOf(thousands)};
    const auto countIn = [&](int power, std::string name) {
        form.Power = power;
        form.Name = std::move(name);
        form.Decimals = std::max(decimals + power, 0);
    };
    if (thousands == ThousandsStyle::Chinese) {
        const Unit unit = LargestUnitIn(largest);
        countIn(unit.Power, std::string(unit.Name));
    }
    const bool isTiny = !largest.IsZero() && largest.Exponent() < kLeastPlainPower;
    if (isTiny || largest.Point - form.Power > kMostAxisDigits) {
        countIn(largest.Exponent(), "×" + PowerOfTen(largest.Exponent()));
    }
    return form;
}

std::string ClassicalDecade(double tick) {
    constexpr double kMaxDecimals = 400.0;
    return FixedText(tick, static_cast<int>(std::clamp(std::log10(1.0 / tick) + 0.5, 0.0, kMaxDecimals)));
}

std::vector<std::string> ClassicalLabels(const std::vector<double>& ticks, int decimals) {
    std::vector<std::string> labels;
    labels.reserve(ticks.size());
    std::transform(ticks.begin(), ticks.end(), std::back_inserter(labels),
                   [&](double tick) { return FixedText(tick, decimals); });
    return labels;
}

/// In the smallest unit in which it has four digits or fewer before the point.
std::string InChineseUnit(const Decimal& number, int maxDecimals) {
    constexpr int kMostDigitsBeforePoint = 4;
    std::string text;
    for (const Unit& unit : kChineseUnits) {
        const Decimal counted = number.TimesTenTo(-unit.Power).Rounded(maxDecimals);
        text = counted.Text(0) + std::string(unit.Name);
        if (counted.Point <= kMostDigitsBeforePoint) {
            break;
        }
    }
    return text;
}

std::string PlainText(const Decimal& number, int maxDecimals, std::int32_t thousands) {
    return thousands == ThousandsStyle::Chinese ? InChineseUnit(number, maxDecimals)
                                                : number.Rounded(maxDecimals).Text(0, SeparatorOf(thousands));
}

/// As one to ten of a power of ten.
std::string PowerText(const Decimal& number, int maxDecimals) {
    const Decimal mantissa = number.TimesTenTo(-number.Exponent()).Rounded(maxDecimals);
    return mantissa.TimesTenTo(-mantissa.Exponent()).Text(0) + "×" +
           PowerOfTen(number.Exponent() + mantissa.Exponent());
}

} // namespace

NumberFormat::NumberFormat(const ChartOptions& options)
    : m_isExact(options.Numbers == NumberStyle::Exact), m_thousands(options.Thousands),
      m_maxDecimals(std::clamp(options.MaxDecimals, 0, kMostValueDigits)) {}

std::vector<std::string> NumberFormat::StepLabels(const std::vector<double>& ticks, double step) const {
    if (ticks.empty() || !m_isExact) {
        return ClassicalLabels(ticks, !ticks.empty() && ticks.back() >= 1.0 ? 0 : 2);
    }
    const AxisForm form = FormOf(ticks, step, m_thousands);
    std::vector<std::string> labels;
    labels.reserve(ticks.size());
    for (const double tick : ticks) {
        labels.push_back(Narrow(form.Label(Decimal::Of(tick))));
    }
    return labels;
}

std::vector<std::string> NumberFormat::DecadeLabels(const std::vector<double>& ticks) const {
    std::vector<std::string> labels;
    labels.reserve(ticks.size());
    if (ticks.empty() || !m_isExact) {
        std::transform(ticks.begin(), ticks.end(), std::back_inserter(labels), ClassicalDecade);
        return labels;
    }
    const Decimal given = Decimal::Of(ticks.front());
    const Decimal first = Tidied(given, given.Exponent());
    const bool isPower = first.Digits == "1";
    const int last = first.Exponent() + static_cast<int>(ticks.size()) - 1;
    const bool arePowers =
        first.Exponent() < kLeastPlainPower || last + (isPower ? 0 : 1) > kGreatestPlainPower;
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        const Decimal tick = first.TimesTenTo(static_cast<int>(i));
        labels.push_back(Narrow(!arePowers ? PlainText(tick, kMostDigits, m_thousands)
                                : isPower  ? PowerOfTen(tick.Exponent())
                                           : PowerText(tick, kMostDigits)));
    }
    return labels;
}

std::string NumberFormat::ValueText(double value, int classicalDecimals) const {
    if (!m_isExact || !std::isfinite(value)) {
        return FixedText(value, classicalDecimals);
    }
    const Decimal number = Decimal::Of(value);
    const bool isLost = !number.IsZero() && number.Rounded(m_maxDecimals).IsZero();
    const bool isTiny = isLost && number.Exponent() < kLeastPlainPower;
    if (isTiny || number.Point > kMostValueDigits) {
        return Narrow(PowerText(number, m_maxDecimals));
    }
    return Narrow(PlainText(number, isLost ? -number.Exponent() : m_maxDecimals, m_thousands));
}

std::string NumberFormat::PercentText(double percent) const {
    const std::string text = FixedText(percent, 1);
    if (m_isExact && percent > 0.0 && text == "0.0") {
        return "<0.1%";
    }
    if (m_isExact && percent < 100.0 && text == "100.0") {
        return ">99.9%";
    }
    return (m_isExact && text == "-0.0" ? "0.0" : text) + "%";
}

} // namespace millichart
