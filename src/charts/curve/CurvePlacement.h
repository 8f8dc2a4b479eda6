#pragma once

#include "charts/cartesian/ValueAxis.h"
#include "charts/curve/CurveTrace.h"

#include <cstdint>
#include <span>
#include <vector>

/// Where the points of curves stand.
namespace millichart {

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
                const CurveScales& scales, CurveTrace& curve);

} // namespace millichart
