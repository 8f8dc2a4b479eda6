#pragma once

#include "penlode/Font.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsPath.h"
#include "penlode/GraphicsTypes.h"
#include "penlode/Pen.h"
#include "penlode/Region.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

/// What an engine asks of its arguments before it draws. An operation whose arguments fail answers
/// InvalidParameter.
namespace penlode {

template <class... Numbers> bool AreFinite(Numbers... numbers) {
    return (... && std::isfinite(numbers));
}

inline bool IsFinite(const RectF& r) {
    return AreFinite(r.X, r.Y, r.Width, r.Height);
}

inline bool IsFinite(const GraphicsPath::Piece& piece) {
    if (const auto* line = std::get_if<GraphicsPath::Line>(&piece)) {
        return AreFinite(line->From.X, line->From.Y, line->To.X, line->To.Y);
    }
    if (const auto* arc = std::get_if<GraphicsPath::Arc>(&piece)) {
        return IsFinite(arc->Ellipse) && AreFinite(arc->StartAngle, arc->SweepAngle);
    }
    const auto& points = std::get<GraphicsPath::Bezier>(piece).Points;
    return std::all_of(points.begin(), points.end(), [](PointF p) { return AreFinite(p.X, p.Y); });
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

inline bool IsUsable(const Pen* pen) {
    return pen != nullptr && std::isfinite(pen->GetWidth());
}

inline bool AreUsable(const PointF* points, std::int32_t count) {
    return points != nullptr && count >= 0 &&
           std::all_of(points, points + count, [](PointF p) { return AreFinite(p.X, p.Y); });
}

inline bool IsKnown(CombineMode mode) {
    return mode >= CombineMode::Replace && mode <= CombineMode::Complement;
}

inline bool HasExtent(const RectF& rect) {
    return rect.Width > 0.0F && rect.Height > 0.0F;
}

/// A font of no size has no glyphs and no lines.
inline bool IsDrawable(const Font& font) {
    return std::isfinite(font.Size) && font.Size > 0.0F;
}

} // namespace penlode
