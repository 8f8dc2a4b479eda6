#pragma once

#include "penlode/Geometry.h"
#include "penlode/GraphicsTypes.h"
#include "penlode/Pen.h"
#include "penlode/cairo/CairoCanvas.h"

#include <span>

namespace penlode {

/// Strokes a polyline of data, given in world coordinates and however long, thinned to what the surface can
/// show. It is never snapped. InvalidParameter, and nothing drawn, when a point is not finite: they are
/// looked at once, here.
Status StrokeDataLine(const Painter& painter, const Pen& pen, std::span<const PointF> points);

} // namespace penlode
