#pragma once

#include "penlode/cairo/CairoCanvas.h"
#include "penlode/engine/DataRun.h"
#include "penlode/engine/Drawings.h"

#include <span>

/// What an engine on Cairo draws, given in world coordinates.
namespace penlode {

/// However long the line, thinned to what the surface can show; never snapped. InvalidParameter, and nothing
/// drawn, when a point is not finite: they are looked at once, here.
Status StrokeDataLine(const Painter& painter, DataRun& run, const Pen& pen);

/// A baseline that runs along an axis of a surface of pixels stands on a whole pixel; glyphs keep their exact
/// places along it. A line that lies out of sight, or whose glyphs are larger than Cairo can count or too
/// small to see, is left out. One that is stretched strongly one way is drawn as outlines.
Status PaintText(const Painter& painter, const TextRun& text);

/// The part of the source that the image covers goes to the part of the destination that belongs to it. On
/// pixels the destination's edges stand on the grid. An image whose pixels are enlarged or reduced more than
/// 32767 times either way is left out; a single pixel may be enlarged without limit.
Status PaintImage(const Painter& painter, const ImagePart& part);

Status PaintGradient(const Painter& painter, const GradientMesh& mesh);

} // namespace penlode
