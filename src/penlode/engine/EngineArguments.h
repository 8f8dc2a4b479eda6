#pragma once

#include "penlode/Font.h"
#include "penlode/GraphicsTypes.h"
#include "penlode/Pen.h"
#include "penlode/engine/Finite.h"

#include <cstddef>
#include <cstdint>

/// What an engine asks of its arguments before it draws. An operation whose arguments fail answers
/// InvalidParameter.
namespace penlode {

inline bool IsUsable(const Pen* pen) {
    return pen != nullptr && AreFinite(pen->GetWidth());
}

inline bool AreThere(const PointF* points, std::int32_t count) {
    return points != nullptr && count >= 0;
}

/// Points that are there.
inline std::span<const PointF> SpanOf(const PointF* points, std::int32_t count) {
    return {points, static_cast<std::size_t>(count)};
}

inline bool IsKnown(CombineMode mode) {
    return mode >= CombineMode::Replace && mode <= CombineMode::Complement;
}

inline bool IsKnown(SmoothingMode mode) {
    return mode >= SmoothingMode::Default && mode <= SmoothingMode::AntiAlias;
}

inline bool HasExtent(const RectF& rect) {
    return rect.Width > 0.0F && rect.Height > 0.0F;
}

/// A font of no size has no glyphs and no lines.
inline bool IsDrawable(const Font& font) {
    return AreFinite(font.Size) && font.Size > 0.0F;
}

} // namespace penlode
