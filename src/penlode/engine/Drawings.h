#pragma once

#include "penlode/IGraphicsEngine.h"

#include <algorithm>
#include <span>
#include <string_view>

/// What an engine draws beside outlines. All numbers are finite; what is pointed to lasts as long as the
/// call.
namespace penlode {

struct TextRun {
    std::wstring_view Text; ///< one line or several
    const Font* Face;
    RectF Box; ///< in which the lines stand; see PlaceLines
    StringFormat Format;
    Color Ink;
};

struct ImagePart {
    const Image* Picture;
    RectF Source; ///< in pixels of the image; a negative extent mirrors
    RectF Destination;
    const ImageAttributes* Attributes = nullptr;
    DrawImageAbort Abort = nullptr;
    void* CallbackData = nullptr;
};

/// Rectangles or, if the mode says so, triangles of a list of vertices, which are moved to where they are
/// filled, inside bounds. Each entry names vertices that are there.
struct GradientMesh {
    RectL Bounds;
    PointF Origin;
    std::span<const GradientVertex> Vertices;
    GradientMode Mode;
    std::span<const GradientRect> Rects;
    std::span<const GradientTriangle> Triangles;
};

/// The arguments of GradientFill. What is null, and a mesh of an unknown mode, has no entries.
inline GradientMesh MeshOf(const RectL& bounds, const PointF& origin, const GradientVertex* vertices,
                           std::uint32_t vertexCount, const void* mesh, std::uint32_t meshCount,
                           GradientMode mode) {
    GradientMesh whole{bounds, origin, {}, mode, {}, {}};
    if (vertices != nullptr) {
        whole.Vertices = {vertices, vertexCount};
    }
    if (mesh != nullptr && mode == GradientMode::Triangle) {
        whole.Triangles = {static_cast<const GradientTriangle*>(mesh), meshCount};
    } else if (mesh != nullptr && mode < GradientMode::Triangle) {
        whole.Rects = {static_cast<const GradientRect*>(mesh), meshCount};
    }
    return whole;
}

/// Whether every entry names vertices that are there.
inline bool AreVerticesThere(const GradientMesh& mesh) {
    const auto isThere = [&](std::uint32_t index) { return index < mesh.Vertices.size(); };
    return std::all_of(
               mesh.Rects.begin(), mesh.Rects.end(),
               [&](const GradientRect& r) { return isThere(r.UpperLeft) && isThere(r.LowerRight); }) &&
           std::all_of(mesh.Triangles.begin(), mesh.Triangles.end(), [&](const GradientTriangle& t) {
               return isThere(t.Vertex1) && isThere(t.Vertex2) && isThere(t.Vertex3);
           });
}

} // namespace penlode
