#pragma once

#include <algorithm>

/// Positions and extents in page units, millimetres unless a host set another unit. y grows downwards.
namespace penlode {

struct PointF {
    float X = 0.0F;
    float Y = 0.0F;

    friend constexpr bool operator==(const PointF&, const PointF&) = default;

    friend constexpr PointF operator+(PointF a, PointF b) { return {a.X + b.X, a.Y + b.Y}; }

    friend constexpr PointF operator-(PointF a, PointF b) { return {a.X - b.X, a.Y - b.Y}; }
};

/// A point in double precision, for outlines that are about to be drawn.
struct PointD {
    double X = 0.0;
    double Y = 0.0;
};

struct SizeF {
    float Width = 0.0F;
    float Height = 0.0F;

    friend constexpr bool operator==(const SizeF&, const SizeF&) = default;
};

/// Top-left corner and extent. A negative extent is kept as it is.
struct RectF {
    float X = 0.0F;
    float Y = 0.0F;
    float Width = 0.0F;
    float Height = 0.0F;

    constexpr float Right() const { return X + Width; }

    constexpr float Bottom() const { return Y + Height; }

    constexpr PointF TopLeft() const { return {X, Y}; }

    constexpr PointF Center() const { return {X + Width * 0.5F, Y + Height * 0.5F}; }

    friend constexpr bool operator==(const RectF&, const RectF&) = default;
};

/// The rectangle moved by (offset.X, offset.Y); its extent stays.
constexpr RectF Translated(const RectF& rect, PointF offset) {
    return {rect.X + offset.X, rect.Y + offset.Y, rect.Width, rect.Height};
}

/// Spans from the smaller left and top to the larger right and bottom. An empty rectangle still pulls the
/// union to its corner.
constexpr RectF Union(const RectF& a, const RectF& b) {
    // In parentheses, since <windows.h> has macros of these names.
    const float left = (std::min)(a.X, b.X);
    const float top = (std::min)(a.Y, b.Y);
    return {left, top, (std::max)(a.Right(), b.Right()) - left, (std::max)(a.Bottom(), b.Bottom()) - top};
}

} // namespace penlode
