#pragma once

#include "penlode/engine/DeviceGeometry.h"
#include "penlode/engine/Drawings.h"

#include <algorithm>
#include <array>
#include <cstdint>

/// What every engine's gradients are made of. Colours are opaque whatever a vertex's alpha says, as on GDI,
/// whose callers leave it 0.
namespace penlode {

/// Red, green and blue from 0 to 255.
using Rgb = std::array<double, 3>;

/// The colour at a part of the way from one to the other.
inline Rgb Between(const Rgb& a, const Rgb& b, double t) {
    return {a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1]), a[2] + t * (b[2] - a[2])};
}

struct ColoredPoint {
    PointD Place;
    Rgb Colour;
};

/// A vertex in world coordinates.
inline ColoredPoint Moved(const GradientMesh& mesh, std::uint32_t index) {
    const GradientVertex& v = mesh.Vertices[index];
    const auto channel = [](std::uint16_t value) { return std::min(value / 256.0, 255.0); };
    return {{static_cast<double>(v.X) + mesh.Origin.X, static_cast<double>(v.Y) + mesh.Origin.Y},
            {channel(v.Red), channel(v.Green), channel(v.Blue)}};
}

/// Hands on each entry of a mesh: rectangles by two corners in world coordinates, triangles in device units.
template <class FillRect, class FillTriangle>
void ForEachPatch(const GradientMesh& mesh, const Matrix& toDevice, const FillRect& fillRect,
                  const FillTriangle& fillTriangle) {
    for (const GradientRect& rect : mesh.Rects) {
        fillRect(Moved(mesh, rect.UpperLeft), Moved(mesh, rect.LowerRight));
    }
    for (const GradientTriangle& triangle : mesh.Triangles) {
        std::array<ColoredPoint, 3> corners{Moved(mesh, triangle.Vertex1), Moved(mesh, triangle.Vertex2),
                                            Moved(mesh, triangle.Vertex3)};
        for (ColoredPoint& corner : corners) {
            corner.Place = Mapped(toDevice, corner.Place);
        }
        fillTriangle(corners);
    }
}

inline BoxD BoxOf(const RectL& r) {
    return {static_cast<double>(r.Left), static_cast<double>(r.Top), static_cast<double>(r.Right),
            static_cast<double>(r.Bottom)};
}

} // namespace penlode
