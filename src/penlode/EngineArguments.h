#pragma once

#include "penlode/Font.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsTypes.h"
#include "penlode/Pen.h"

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
