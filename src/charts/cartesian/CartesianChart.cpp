#include "charts/cartesian/CartesianChart.h"

#include "charts/cartesian/FittedRange.h"

namespace millichart {

void CCartesianChart::InitializeValueRange(double largest) {
    if (m_options.ValueRange == RangeStyle::BothEnds) {
        InitializeValueRange(0.0, largest);
    } else {
        m_axis.AutoRange(largest);
    }
}

/// Either scale takes the form of range that is its own.
void CCartesianChart::InitializeValueRange(double smallest, double largest) {
    ValueSpan span;
    span.Take(smallest);
    span.Take(largest);
    if (smallest > 0.0) {
        const std::array<double, 2> decades = FittedDecades(span, m_areBars);
        m_axis.SetLogarithmRange(decades[0], decades[1]);
    } else {
        m_axis.AutoRange(largest);
    }
    const std::array<double, 4> range = FittedRange(span, RangeNeeds::Of(m_options, m_areBars));
    m_axis.SetNaturalRange(range[0], range[1], range[2], range[3]);
}

} // namespace millichart
