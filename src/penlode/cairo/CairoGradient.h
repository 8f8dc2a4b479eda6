#pragma once

#include "penlode/IGraphicsEngine.h"
#include "penlode/cairo/CairoCanvas.h"

#include <span>

namespace penlode {

/// A vertex list moved to where it is filled, inside bounds.
struct GradientArea {
    RectL Bounds;
    PointF Origin;
    std::span<const GradientVertex> Vertices;
};

/// Fills with colours blended between vertices. The result is opaque whatever a vertex's alpha says, as on
/// GDI, whose callers leave it 0. False, and nothing drawn, when an entry names a vertex that is not there.
bool FillGradientRects(const Painter& painter, const GradientArea& area, std::span<const GradientRect> rects,
                       bool vertical);
bool FillGradientTriangles(const Painter& painter, const GradientArea& area,
                           std::span<const GradientTriangle> triangles);

} // namespace penlode
