#pragma once

#include "foundation/ChartOptions.h"
#include "foundation/Export.h"

#include <array>
#include <limits>
#include <vector>

/// Ranges of a value axis that values fill.
namespace millichart {

/// Beyond it in either direction an axis cannot tell values apart, nor place them.
inline constexpr double kMaxValue = 1e300;

/// What lies between the least and the largest of some values. What is not finite does not count.
class MILLICHART_API ValueSpan {
public:
    void Take(double value);

    bool IsEmpty() const { return m_min > m_max; }

    double Min() const { return m_min; }

    double Max() const { return m_max; }

    /// +infinity when no value is above 0.
    double SmallestPositive() const { return m_smallestPositive; }

private:
    double m_min = std::numeric_limits<double>::infinity();
    double m_max = -std::numeric_limits<double>::infinity();
    double m_smallestPositive = std::numeric_limits<double>::infinity();
};

/// The values at which bars end, one list a group. In a stack that is each sum on the way up; with
/// BarBase::Zero, of the values above 0 and of those below it.
MILLICHART_API ValueSpan BarSpanOf(const std::vector<std::vector<double>>& groups, bool areStacked,
                                   const ChartOptions& options);

/// What an axis is for.
struct RangeNeeds {
    bool HasZero = false;            ///< bars stand on 0
    bool HasRoomBelow = false;       ///< bars stand on the minimum, where one without a height is not seen
    bool HasClassicalLabels = false; ///< whole numbers from 1 on, and two decimals below

    /// Of the bars, or else of the lines, of a chart.
    MILLICHART_API static RangeNeeds Of(const ChartOptions& options, bool areBars);
};

/// A linear axis that the values fill: minimum, maximum, step and minor step. The step is 1, 2, 2.5 or 5
/// times a power of ten, the ends are multiples of it, and there are five to nine steps. With classical
/// labels fewer are taken where only those say what they stand at: up to 2.5 there are ticks at 0, 1, 2
/// and 3.
///
/// An axis that needs no 0 has one if it is no farther from the values than they are from each other, or if
/// they are all alike.
MILLICHART_API std::array<double, 4> FittedRange(const ValueSpan& values, RangeNeeds needs);

/// Whole decades of a logarithmic axis that hold the values above 0: minimum and maximum. Bars, which stand
/// on the minimum, stay at least a third of a decade high.
MILLICHART_API std::array<double, 2> FittedDecades(const ValueSpan& values, bool areBars);

} // namespace millichart
