#pragma once

#include "penlode/cairo/CairoCanvas.h"
#include "penlode/engine/DevicePen.h"

namespace penlode {

/// Strokes the context's path, which lies within the guard band.
void StrokeCurrentPath(const Painter& painter, const DevicePen& pen);

} // namespace penlode
