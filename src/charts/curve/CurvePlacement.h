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

/// Where times stand across a rectangle, over whose whole width they span; at its left edge if there is only
/// one.
class TimeScale {
public:
    TimeScale(const penlode::RectF& area, TimeSpan times)
        : m_left(area.X), m_start(times.Min),
          m_perTime(times.Max > times.Min ? area.Width / (times.Max - m_start) : 0.0) {}

    float At(std::int32_t time) const { return static_cast<float>((time - m_start) * m_perTime + m_left); }

private:
    double m_left;
    double m_start;
    double m_perTime;
};

/// What places a curve's values: the times span the area's width, the axis its height.
struct CurveScales {
    penlode::RectF Area;
    TimeSpan Times;
    const ValueAxis& Values;
};

/// Places one value at each time; the lists are equally long. A null value stands at the value 0. If there is
/// only one time, all stand at the plot's left edge.
void PlaceCurve(std::span<const double> values, std::span<const std::int32_t> times,
                const CurveScales& scales, CurveTrace& curve);

} // namespace millichart
