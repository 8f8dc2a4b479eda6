#include "charts/cartesian/FittedRange.h"

#include "charts/cartesian/PowerOfTen.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace millichart {
namespace {

/// Values nearer to each other than this part of themselves are all alike: there is no room for ticks between
/// them in double precision.
constexpr double kLeastSpan = 1e-11;
constexpr double kLeastNumber = 1e-290;
/// Of an axis, for the bar of the least value: bars stand on the minimum, and with no height it is not seen.
constexpr double kLeastBar = 0.04;
/// A quotient this near to a whole number is one.
constexpr double kRounding = 1e-9;

int FloorOfLog(double positive) {
    int exponent = static_cast<int>(std::floor(std::log10(positive)));
    exponent += PowerOfTen(exponent + 1) <= positive ? 1 : 0;
    return PowerOfTen(exponent) > positive ? exponent - 1 : exponent;
}

/// `Tenths` of ten times a power of ten.
struct Step {
    int Tenths;
    int MinorTenths;
    int Exponent; ///< of the tenths' unit

    /// Rounded once, so that three steps of 0.1 are 0.3.
    double Times(double count, int tenths) const {
        const double tens = count * tenths;
        return Exponent < 0 ? tens / PowerOfTen(-Exponent) : tens * PowerOfTen(Exponent);
    }

    double Times(double count) const { return Times(count, Tenths); }
};

constexpr Step kSteps[] = {{10, 2, 0}, {20, 5, 0}, {25, 5, 0}, {50, 10, 0}};

/// An axis from so many steps to so many, which ends there or a little beyond.
struct Axis {
    Step Each;
    double First;
    double Last;
    double End;

    double Steps() const { return Last - First; }
};

/// One with classical labels that would end at 1 for values below it ends before it, as a tick at 1 would
/// have all labels written as whole numbers.
Axis AxisRound(const Step& step, double min, double max, RangeNeeds needs) {
    constexpr double kBelowOne = 0.99;
    const double unit = step.Times(1.0);
    Axis axis{step, std::floor(min / unit + kRounding), std::ceil(max / unit - kRounding), max};
    if (needs.HasClassicalLabels && step.Times(axis.Last) == 1.0 && max < 1.0) {
        axis.Last -= 1.0;
        axis.End = std::max(kBelowOne, max);
    }
    return axis;
}

/// Does each classical label say what it stands at?
bool IsWrittenExactly(const Axis& axis) {
    const bool isWhole = axis.Each.Times(axis.Last) >= 1.0;
    const double steps = axis.Each.Times(1.0) * (isWhole ? 1.0 : 100.0);
    return std::abs(steps - std::round(steps)) <= kRounding && std::round(steps) >= 1.0;
}

/// What is better comes first: labels that are right on an axis that is half filled or more; the number of
/// steps; how much of the axis is filled.
auto Rank(const Axis& axis, double min, double max, RangeNeeds needs) {
    constexpr double kFewest = 5.0;
    constexpr double kMost = 9.0;
    constexpr double kHalf = 0.5;
    const double filled =
        (max - min) / (std::max(axis.End, axis.Each.Times(axis.Last)) - axis.Each.Times(axis.First));
    const double beyond = std::max({kFewest - axis.Steps(), axis.Steps() - kMost, 0.0});
    const bool isRight = !needs.HasClassicalLabels || IsWrittenExactly(axis);
    return std::tuple(!(isRight && filled >= kHalf), beyond, -filled);
}

Axis BestAxis(double min, double max, RangeNeeds needs) {
    const int middle = FloorOfLog(max - min);
    Axis best{};
    bool isFirst = true;
    for (int exponent = middle - 3; exponent <= middle; ++exponent) {
        for (Step step : kSteps) {
            step.Exponent = exponent;
            const Axis axis = AxisRound(step, min, max, needs);
            if (isFirst || Rank(axis, min, max, needs) < Rank(best, min, max, needs)) {
                best = axis;
                isFirst = false;
            }
        }
    }
    return best;
}

/// Where step on step ends, and whether it passes so closely below 0 that a classical label would say -0.00.
struct Walk {
    double End;
    bool IsBelowZero;
};

Walk WalkBy(double step, double first, double steps) {
    constexpr double kClosely = 1e-6;
    Walk walk{first, false};
    for (double i = 0.0; i < steps; i += 1.0) {
        walk.End += step;
        walk.IsBelowZero = walk.IsBelowZero || (walk.End < 0.0 && walk.End > -step * kClosely);
    }
    return walk;
}

/// An axis adds step on step, so that the sum may end a little beside the last multiple: the last tick
/// counts. For classical labels a step may be longer by a hair.
std::array<double, 4> RangeOf(const Axis& axis, double min, RangeNeeds needs) {
    double step = axis.Each.Times(1.0);
    const double first = std::min(axis.Each.Times(axis.First), min);
    while (needs.HasClassicalLabels && WalkBy(step, first, axis.Steps()).IsBelowZero) {
        step = std::nextafter(step, std::numeric_limits<double>::infinity());
    }
    return {first, std::max({WalkBy(step, first, axis.Steps()).End, axis.Each.Times(axis.Last), axis.End}),
            step, axis.Each.Times(1.0, axis.Each.MinorTenths)};
}

double InReach(double value) {
    return std::abs(value) < kLeastNumber ? 0.0 : std::clamp(value, -kMaxValue, kMaxValue);
}

} // namespace

void ValueSpan::Take(double value) {
    if (std::isfinite(value)) {
        m_min = std::min(m_min, value);
        m_max = std::max(m_max, value);
        m_smallestPositive = value > 0.0 ? std::min(m_smallestPositive, value) : m_smallestPositive;
    }
}

ValueSpan BarSpanOf(const std::vector<std::vector<double>>& groups, bool areStacked,
                    const ChartOptions& options) {
    const bool growsBothWays = options.BarBase == BarBase::Zero;
    ValueSpan span;
    for (const std::vector<double>& values : groups) {
        double up = 0.0;
        double down = 0.0;
        for (const double value : values) {
            double& sum = growsBothWays && value < 0.0 ? down : up;
            sum = std::isfinite(value) ? sum + value : sum;
            span.Take(areStacked ? sum : value);
        }
    }
    return span;
}

RangeNeeds RangeNeeds::Of(const ChartOptions& options, bool areBars) {
    return {areBars, areBars && options.BarBase != BarBase::Zero, options.Numbers != NumberStyle::Exact};
}

std::array<double, 4> FittedRange(const ValueSpan& values, RangeNeeds needs) {
    double min = values.IsEmpty() ? 0.0 : InReach(values.Min());
    double max = values.IsEmpty() ? 0.0 : InReach(values.Max());
    const bool areAlike = max - min <= std::max(std::abs(min), std::abs(max)) * kLeastSpan;
    if (needs.HasZero || areAlike || (min > 0.0 ? min : -max) <= max - min) {
        min = std::min(min, 0.0);
        max = std::max(max, 0.0);
    }
    if (needs.HasRoomBelow && min < 0.0) {
        min = InReach(min - (max - min) * kLeastBar);
    }
    max = min == max ? 1.0 : max;
    return RangeOf(BestAxis(min, max, needs), min, needs);
}

std::array<double, 2> FittedDecades(const ValueSpan& values, bool areBars) {
    if (!std::isfinite(values.SmallestPositive())) {
        return {1.0, 10.0};
    }
    const double least =
        std::clamp(values.SmallestPositive() / (areBars ? 2.0 : 1.0), kLeastNumber, kMaxValue);
    const double largest = std::clamp(values.Max(), least, kMaxValue);
    const int first = FloorOfLog(least);
    int last = FloorOfLog(largest);
    last += PowerOfTen(last) < largest || last == first ? 1 : 0;
    // An axis multiplies by ten again and again: the last tick counts here too.
    double end = PowerOfTen(first);
    for (int i = first; i < last; ++i) {
        end *= 10.0;
    }
    return {PowerOfTen(first), std::max(end, PowerOfTen(last))};
}

} // namespace millichart
