#pragma once

#include "penlode/cairo/CairoCanvas.h"
#include "penlode/engine/Drawings.h"
#include "penlode/engine/Outline.h"

#include <optional>
#include <span>

/// What an engine on Cairo draws, given in world coordinates.
namespace penlode {

/// On a surface of pixels boxes, faces of 3D bars and axis-parallel lines are snapped to the grid; what is
/// drawn as a path never is.
Status Stroke(const Painter& painter, const Outline& outline, const Pen& pen);
Status Fill(const Painter& painter, const Outline& outline, Color color);

/// However long the line, thinned to what the surface can show; never snapped. InvalidParameter, and nothing
/// drawn, when a point is not finite: they are looked at once, here.
Status StrokeDataLine(const Painter& painter, std::span<const PointF> points, const Pen& pen);

/// A baseline that runs along an axis of a surface of pixels stands on a whole pixel; glyphs keep their exact
/// places along it. A line that lies out of sight, or whose glyphs are larger than Cairo can count or too
/// small to see, is left out. One that is stretched strongly one way is drawn as outlines.
Status PaintText(const Painter& painter, const TextRun& text);

/// The part of the source that the image covers goes to the part of the destination that belongs to it. On
/// pixels the destination's edges stand on the grid. An image whose pixels are enlarged or reduced more than
/// 32767 times either way is left out; a single pixel may be enlarged without limit.
Status PaintImage(const Painter& painter, const ImagePart& part);

Status PaintGradient(const Painter& painter, const GradientMesh& mesh);

/// Where a rectangle lies in device units: snapped on pixels; nothing under a transform that turns it.
std::optional<BoxD> DeviceBox(const Painter& painter, const RectF& rect);

} // namespace penlode
