#pragma once

#include "penlode/GraphicsPath.h"
#include "penlode/Matrix.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

/// Points and boxes in device units, in double precision.
namespace penlode {

struct BoxD {
    double Left = 0.0;
    double Top = 0.0;
    double Right = 0.0;
    double Bottom = 0.0;

    double Width() const { return Right - Left; }

    double Height() const { return Bottom - Top; }

    bool Contains(PointD p) const { return p.X >= Left && p.X <= Right && p.Y >= Top && p.Y <= Bottom; }

    /// Whether they share a point, an edge's among them.
    bool Meets(const BoxD& other) const {
        return Left <= other.Right && Right >= other.Left && Top <= other.Bottom && Bottom >= other.Top;
    }

    /// The point of the box that is next to this one.
    PointD Nearest(PointD p) const { return {std::clamp(p.X, Left, Right), std::clamp(p.Y, Top, Bottom)}; }

    BoxD Grown(double margin) const { return {Left - margin, Top - margin, Right + margin, Bottom + margin}; }

    friend bool operator==(const BoxD&, const BoxD&) = default;
};

inline BoxD BoxBetween(PointD a, PointD b) {
    return {std::min(a.X, b.X), std::min(a.Y, b.Y), std::max(a.X, b.X), std::max(a.Y, b.Y)};
}

/// What both boxes cover; without extent, but never inverted, where they do not meet.
inline BoxD Common(const BoxD& a, const BoxD& b) {
    const double left = std::max(a.Left, b.Left);
    const double top = std::max(a.Top, b.Top);
    return {left, top, std::max(left, std::min(a.Right, b.Right)),
            std::max(top, std::min(a.Bottom, b.Bottom))};
}

/// The smallest box that holds both.
inline BoxD Union(const BoxD& a, const BoxD& b) {
    return {std::min(a.Left, b.Left), std::min(a.Top, b.Top), std::max(a.Right, b.Right),
            std::max(a.Bottom, b.Bottom)};
}

/// The smallest box that holds all of a box that was mapped.
inline BoxD Mapped(const Matrix& m, const BoxD& box) {
    return Union(BoxBetween(Mapped(m, PointD{box.Left, box.Top}), Mapped(m, PointD{box.Right, box.Bottom})),
                 BoxBetween(Mapped(m, PointD{box.Right, box.Top}), Mapped(m, PointD{box.Left, box.Bottom})));
}

template <class Points> std::vector<PointD> MappedAll(const Matrix& m, const Points& points) {
    std::vector<PointD> mapped;
    mapped.reserve(points.size());
    for (const auto& point : points) {
        mapped.push_back(Mapped(m, point));
    }
    return mapped;
}

/// In single precision.
inline RectF Narrowed(const BoxD& box) {
    return {static_cast<float>(box.Left), static_cast<float>(box.Top), static_cast<float>(box.Width()),
            static_cast<float>(box.Height())};
}

/// Corners in order, from the top left one clockwise.
inline std::array<PointF, 4> CornersOf(const RectF& r) {
    return {{{r.X, r.Y}, {r.Right(), r.Y}, {r.Right(), r.Bottom()}, {r.X, r.Bottom()}}};
}

inline std::array<PointD, 4> CornersOf(const BoxD& b) {
    return {{{b.Left, b.Top}, {b.Right, b.Top}, {b.Right, b.Bottom}, {b.Left, b.Bottom}}};
}

/// Chains of turns leave noise of this size, which nobody sees across any surface; a turn by a fraction of a
/// degree is more.
inline constexpr double kTurnNoise = 1e-7;

/// Axis-parallel lines stay so, turned by quarters at most.
inline bool KeepsAxesNearly(const Matrix& m) {
    const double x = kTurnNoise * std::hypot(m.M11, m.M12);
    const double y = kTurnNoise * std::hypot(m.M21, m.M22);
    return (std::abs(m.M12) <= x && std::abs(m.M21) <= y) || (std::abs(m.M11) <= x && std::abs(m.M22) <= y);
}

/// With edges on whole numbers, no smaller than it was.
inline BoxD RoundedOut(const BoxD& box) {
    return {std::floor(box.Left), std::floor(box.Top), std::ceil(box.Right), std::ceil(box.Bottom)};
}

} // namespace penlode
