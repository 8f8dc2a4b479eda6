#pragma once

#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// What every engine's gradients are made of.
namespace penlode {

/// A vertex list moved to where it is filled, inside bounds. Colours are opaque whatever a vertex's alpha
/// says, as on GDI, whose callers leave it 0.
struct GradientArea {
    RectL Bounds;
    PointF Origin;
    std::span<const GradientVertex> Vertices;
};

/// Red, green and blue from 0 to 255.
using Rgb = std::array<double, 3>;

struct ColoredPoint {
    PointD Place;
    Rgb Colour;
};

/// The vertex, which is there, in world coordinates.
inline ColoredPoint Moved(const GradientArea& area, std::uint32_t index) {
    const GradientVertex& v = area.Vertices[index];
    const auto channel = [](std::uint16_t value) { return std::min(value / 256.0, 255.0); };
    return {{static_cast<double>(v.X) + area.Origin.X, static_cast<double>(v.Y) + area.Origin.Y},
            {channel(v.Red), channel(v.Green), channel(v.Blue)}};
}

/// Corners of the bounds in order.
inline std::array<PointD, 4> CornersOf(const RectL& r) {
    const PointD a{static_cast<double>(r.Left), static_cast<double>(r.Top)};
    const PointD b{static_cast<double>(r.Right), static_cast<double>(r.Bottom)};
    return {a, {b.X, a.Y}, b, {a.X, b.Y}};
}

/// Whether every entry of a gradient's mesh names vertices that are there.
inline bool AreVerticesThere(std::span<const GradientRect> rects, std::size_t count) {
    return std::all_of(rects.begin(), rects.end(), [count](const GradientRect& r) {
        return r.UpperLeft < count && r.LowerRight < count;
    });
}

inline bool AreVerticesThere(std::span<const GradientTriangle> triangles, std::size_t count) {
    return std::all_of(triangles.begin(), triangles.end(), [count](const GradientTriangle& t) {
        return t.Vertex1 < count && t.Vertex2 < count && t.Vertex3 < count;
    });
}

} // namespace penlode
