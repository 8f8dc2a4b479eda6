#pragma once

#include "charts/curve/CurveStyle.h"
#include "penlode/Geometry.h"

#include <cstdint>
#include <span>
#include <vector>

namespace millichart {

/// The points of one curve on the page, in mm.
struct CurveTrace {
    std::vector<penlode::PointF> Points; ///< one a value that has a time; not finite where it has no place
    std::vector<bool> NullFlags;         ///< parallel to the points
    /// What drawing would otherwise have to look through all points for.
    bool HasNull = false;
    bool HasUnplaced = false; ///< a point may be not finite
};

/// A curve as it is drawn. It leads into the chart's layout and is good until the next one.
struct CurveShape {
    CurveStyle Style;
    /// The lines up to each gap and after the last one, in order; some may have one point or none, which
    /// draws nothing.
    std::vector<std::span<const penlode::PointF>> Lines;
    /// Markers, if the style has any, stand at its points that are finite and not null.
    const CurveTrace* Trace = nullptr;
};

/// The first and the last time of a chart.
struct TimeSpan {
    std::int32_t Min = 0;
    std::int32_t Max = 0;
};

} // namespace millichart
