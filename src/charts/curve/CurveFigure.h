#pragma once

#include "charts/cartesian/ValueAxis.h"
#include "penlode/Geometry.h"

#include <cstdint>
#include <span>
#include <vector>

namespace millichart {

/// One curve on the page, in mm.
struct CurveFigure {
    std::vector<penlode::PointF> Points; ///< one a value that has a time; not finite where it has no place
    std::vector<bool> NullFlags;         ///< parallel to the points
    /// What drawing would otherwise have to look through all points for.
    bool HasNull = false;
    bool HasUnplaced = false; ///< a point may be not finite
};

/// The first and the last time of a chart.
struct TimeSpan {
    std::int32_t Min = 0;
    std::int32_t Max = 0;
};

/// The times of all curves together; `previous` if they have none.
TimeSpan TimeSpanOf(std::span<const std::vector<std::int32_t>> curves, TimeSpan previous);

/// What places a curve's values: the times span the plot's width, the axis its height.
struct CurveScales {
    penlode::RectF Plot;
    TimeSpan Times;
    const ValueAxis& Values;
};

/// Places one value at each time; the lists are equally long. A null value stands at the value 0. If there is
/// only one time, all stand at the plot's left edge.
void PlaceCurve(std::span<const double> values, std::span<const std::int32_t> times,
                const CurveScales& scales, CurveFigure& curve);

} // namespace millichart
