#pragma once

#include "penlode/IGraphicsEngine.h"
#include "penlode/cairo/CairoCanvas.h"

namespace penlode {

/// How an image is drawn beside where it goes.
struct ImageDrawing {
    RectF Source; ///< in pixels of the image; a negative extent mirrors
    const ImageAttributes* Attributes = nullptr;
    DrawImageAbort Abort = nullptr;
    void* CallbackData = nullptr;
};

/// Draws the part of the source that the image covers on the part of `destination` that belongs to it. On
/// pixels the destination's edges stand on the grid. An image whose pixels are enlarged or reduced more than
/// 32767 times either way is left out; a single pixel may be enlarged without limit.
Status PaintImage(const Painter& painter, const Image& image, const RectF& destination,
                  const ImageDrawing& drawing);

} // namespace penlode
