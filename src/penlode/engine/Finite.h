#pragma once

#include "penlode/Geometry.h"
#include "penlode/GraphicsPath.h"
#include "penlode/Matrix.h"
#include "penlode/Region.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <span>

/// Whether all numbers of a thing are numbers, and none is beyond range.
namespace penlode {

template <std::floating_point... Numbers> bool AreFinite(Numbers... numbers) {
    return (... && std::isfinite(numbers));
}

inline bool IsFinite(PointF p) {
    return AreFinite(p.X, p.Y);
}

inline bool IsFinite(PointD p) {
    return AreFinite(p.X, p.Y);
}

inline bool IsFinite(const RectF& r) {
    return AreFinite(r.X, r.Y, r.Width, r.Height);
}

inline bool IsFinite(const Matrix& m) {
    return AreFinite(m.M11, m.M12, m.M21, m.M22, m.Dx, m.Dy);
}

inline bool AreFinite(std::span<const PointF> points) {
    return std::all_of(points.begin(), points.end(), [](PointF p) { return IsFinite(p); });
}

inline bool AreFinite(std::span<const PointD> points) {
    return std::all_of(points.begin(), points.end(), [](PointD p) { return IsFinite(p); });
}

inline bool IsFinite(const GraphicsPath::Piece& piece) {
    if (const auto* line = std::get_if<GraphicsPath::Line>(&piece)) {
        return IsFinite(line->From) && IsFinite(line->To);
    }
    if (const auto* arc = std::get_if<GraphicsPath::Arc>(&piece)) {
        return IsFinite(arc->Ellipse) && AreFinite(arc->StartAngle, arc->SweepAngle);
    }
    return AreFinite(std::span<const PointF>(std::get<GraphicsPath::Bezier>(piece).Points));
}

inline bool IsFinite(const GraphicsPath& path) {
    const auto& figures = path.Figures();
    return std::all_of(figures.begin(), figures.end(), [](const GraphicsPath::Figure& figure) {
        return std::all_of(figure.Pieces.begin(), figure.Pieces.end(),
                           [](const GraphicsPath::Piece& piece) { return IsFinite(piece); });
    });
}

/// Regions lie in one another Region::kMaxLevels deep at most.
inline bool IsFinite(const Region& region) {
    const auto& steps = region.Steps();
    return std::all_of(steps.begin(), steps.end(), [](const Region::Step& step) {
        const auto* rect = std::get_if<RectF>(&step.Operand);
        const auto* path = std::get_if<GraphicsPath>(&step.Operand);
        const auto* nested = std::get_if<Region::Nested>(&step.Operand);
        return (rect == nullptr || IsFinite(*rect)) && (path == nullptr || IsFinite(*path)) &&
               (nested == nullptr || IsFinite(*nested->Area));
    });
}

} // namespace penlode
