#pragma once

#include "charts/cartesian/ValueAxis.h"
#include "foundation/ChartOptions.h"
#include "foundation/Export.h"
#include "penlode/Geometry.h"

namespace millichart {

/// What a bar and a line chart have alike for their hosts: a place, and a value axis with its range. Copies
/// share the axis.
class MILLICHART_API CCartesianChart {
public:
    /// What the chart does so that it reads well; at first nothing. To be followed by a Layout, as the places
    /// that the last one found are not those of other options.
    void SetOptions(const ChartOptions& options) { m_options = options; }

    const ChartOptions& GetOptions() const { return m_options; }

    /// The top-left corner, legend included, in mm of the page.
    void SetLocation(penlode::PointF location) { m_location = location; }

    penlode::PointF GetLocation() const { return m_location; }

    /// Takes a round range that holds `largest`; with RangeStyle::BothEnds and a linear scale, one that goes
    /// from 0 to it or the other way. The range operations do nothing before the chart has its first record,
    /// nor those of the other scale.
    void InitializeValueRange(double largest);

    /// Takes a round range that values from `smallest` to `largest` fill, in five to nine steps or whole
    /// decades; see FittedRange. On a logarithmic scale a `smallest` that is not above 0 is as if not given.
    void InitializeValueRange(double smallest, double largest);

    /// A range that would need more than 100,000 ticks has none.
    void SetNaturalValueRange(double min, double max, double step, double minorStep) {
        m_axis.SetNaturalRange(min, max, step, minorStep);
    }

    void GetNaturalValueRange(double& min, double& max, double& step, double& minorStep) const {
        m_axis.GetNaturalRange(min, max, step, minorStep);
    }

    void SetLogarithmValueRange(double min, double max) { m_axis.SetLogarithmRange(min, max); }

    void GetLogarithmValueRange(double& min, double& max) const { m_axis.GetLogarithmRange(min, max); }

protected:
    explicit CCartesianChart(bool areBars) : m_areBars(areBars) {}

    ChartOptions m_options;
    ValueAxis m_axis;
    penlode::PointF m_location;

private:
    bool m_areBars;
};

} // namespace millichart
