#pragma once

#include "penlode/GraphicsPath.h"
#include "penlode/engine/EngineArguments.h"

#include <cstddef>
#include <cstdint>
#include <span>

/// The shapes of drawing operations as paths: empty for an ellipse without extent.
namespace penlode {

inline std::span<const PointF> SpanOf(const PointF* points, std::int32_t count) {
    return {points, static_cast<std::size_t>(count)};
}

inline GraphicsPath ArcOf(const RectF& ellipse, float startAngle, float sweepAngle) {
    GraphicsPath path;
    if (HasExtent(ellipse)) {
        path.AddArc(ellipse, startAngle, sweepAngle);
    }
    return path;
}

inline GraphicsPath PieOf(const RectF& ellipse, float startAngle, float sweepAngle) {
    GraphicsPath path;
    if (HasExtent(ellipse)) {
        path.AddPie(ellipse, startAngle, sweepAngle);
    }
    return path;
}

inline GraphicsPath EllipseOf(const RectF& ellipse) {
    GraphicsPath path;
    if (HasExtent(ellipse)) {
        path.AddEllipse(ellipse);
    }
    return path;
}

inline GraphicsPath CurveOf(std::span<const PointF> points) {
    GraphicsPath path;
    path.AddCurve(points);
    return path;
}

} // namespace penlode
