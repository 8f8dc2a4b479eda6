#pragma once

#include "penlode/Color.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsPath.h"
#include "penlode/Pen.h"
#include "penlode/cairo/CairoCanvas.h"

#include <span>

/// Fills and strokes shapes given in world coordinates. On a surface of pixels boxes, faces of 3D bars and
/// axis-parallel lines are snapped to the grid; paths never are.
namespace penlode {

/// Where a rectangle lies in device units: snapped on pixels; nothing under a transform that turns it.
std::optional<BoxD> DeviceBox(const Painter& painter, const RectF& rect);

/// A rectangle without width or height fills nothing.
Status FillBox(const Painter& painter, Color color, const RectF& rect);
Status FillPolygon(const Painter& painter, Color color, std::span<const PointF> points);
Status FillPath(const Painter& painter, Color color, const GraphicsPath& path);

/// A rectangle without height or width is a line.
Status StrokeBox(const Painter& painter, const Pen& pen, const RectF& rect);
Status StrokeLines(const Painter& painter, const Pen& pen, std::span<const PointF> points);
Status StrokePolygon(const Painter& painter, const Pen& pen, std::span<const PointF> points);
Status StrokePath(const Painter& painter, const Pen& pen, const GraphicsPath& path);

} // namespace penlode
