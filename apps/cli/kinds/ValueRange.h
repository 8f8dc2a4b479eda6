#pragma once

#include "documents/ChartStream.h"
#include "files/Message.h"

#include <string>
#include <vector>

namespace cli {

/// Beyond it in either direction an axis cannot tell values apart, nor place them.
inline constexpr double kMaxValue = 1e300;

/// The range of a value axis as a document gives it in its group "range", by the library's own words:
///
///     "range": {"InitializeValueRange": 37}
///     "range": {"NaturalValueRange": [0, 40, 10, 2]}
///     "range": {"LogarithmValueRange": [1, 1000]}
///
/// Without that group it is found from the largest value.
class ValueRange {
public:
    /// Refuses what is not one sound range of the chart's scale.
    ValueRange(ChartStream& stream, bool isLogarithmic, std::vector<Message>& messages);

    template <class Chart> void ApplyTo(Chart& chart, double largest) const {
        if (m_natural.size() == 4) {
            chart.SetNaturalValueRange(m_natural[0], m_natural[1], m_natural[2], m_natural[3]);
        } else if (m_logarithm.size() == 2) {
            chart.SetLogarithmValueRange(m_logarithm[0], m_logarithm[1]);
        } else {
            chart.InitializeValueRange(m_largest.empty() ? largest : m_largest.front());
        }
    }

private:
    void Check(ChartStream& stream, bool isLogarithmic, std::vector<Message>& messages) const;

    std::vector<double> m_largest;
    std::vector<double> m_natural;
    std::vector<double> m_logarithm;
};

/// The range in the document of a chart that always finds its axis's range from a largest value: that value,
/// or `largest` without the group.
double LoadLargestValue(ChartStream& stream, double largest, std::vector<Message>& messages);

/// Looks for values that a value axis from `min` to `max` does not hold, one after the other.
class RangeDoubts {
public:
    template <class Chart> static RangeDoubts Of(const Chart& chart, bool isLogarithmic) {
        double min = 0.0;
        double max = 0.0;
        double step = 0.0;
        if (isLogarithmic) {
            chart.GetLogarithmValueRange(min, max);
        } else {
            chart.GetNaturalValueRange(min, max, step, step);
        }
        return {min, max};
    }

    /// `place` gives the FilePlace of the value; it is called for the first one that does not fit, and for
    /// the first one that no axis could hold.
    template <class Place> void Look(double value, const Place& place) {
        if (value < m_min || value > m_max) {
            m_first = m_outside == 0 ? place() : m_first;
            ++m_outside;
        }
        if (value < -kMaxValue || value > kMaxValue) {
            m_firstHuge = m_huge == 0 ? place() : m_firstHuge;
            ++m_huge;
        }
    }

    /// Nothing, a warning, or an error.
    std::vector<Message> Doubts() const;

    /// Where in the range a value stands, 0 being its minimum and 1 its maximum.
    double PartOf(double value) const { return (value - m_min) / (m_max - m_min); }

    /// "the value axis, which goes from 0 to 50"
    std::string Axis() const;

private:
    RangeDoubts(double min, double max) : m_min(min), m_max(max) {}

    double m_min;
    double m_max;
    std::size_t m_outside = 0;
    FilePlace m_first;
    std::size_t m_huge = 0;
    FilePlace m_firstHuge;
};

} // namespace cli
