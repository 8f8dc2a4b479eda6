#pragma once

#include <array>
#include <limits>

/// Ranges that values fill: what `"range": "fit"` asks for.
namespace millichart::documents {

/// What lies between the least and the largest of some values. What is not finite does not count.
class ValueSpan {
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

/// A linear axis that the values fill: minimum, maximum, step and minor step. The step is 1, 2, 2.5 or 5
/// times a power of ten, the ends are multiples of it, and there are five to nine steps. Fewer are taken
/// where only those have labels that say what they stand at, as an axis writes whole numbers from 1 on and
/// two decimals below: up to 2.5 there are ticks at 0, 1, 2 and 3.
///
/// An axis that bars stand on has a 0, and begins so far below a negative value that its bar is seen. Any
/// other has a 0 if it is no farther from the values than they are
/// from each other, or if they are all alike.
std::array<double, 4> FittedRange(const ValueSpan& values, bool standsOnZero);

/// Whole decades of a logarithmic axis that hold the values above 0: minimum and maximum. Bars, which stand
/// on the minimum, stay at least a third of a decade high.
std::array<double, 2> FittedDecades(const ValueSpan& values, bool standsOnMinimum);

} // namespace millichart::documents
