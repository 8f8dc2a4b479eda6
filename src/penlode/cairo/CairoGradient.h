#pragma once

#include "penlode/cairo/CairoCanvas.h"
#include "penlode/engine/GradientVertices.h"

#include <span>

namespace penlode {

/// Fills with colours blended between vertices. False, and nothing drawn, when an entry names a vertex that
/// is not there.
bool FillGradientRects(const Painter& painter, const GradientArea& area, std::span<const GradientRect> rects,
                       bool vertical);
bool FillGradientTriangles(const Painter& painter, const GradientArea& area,
                           std::span<const GradientTriangle> triangles);

} // namespace penlode
