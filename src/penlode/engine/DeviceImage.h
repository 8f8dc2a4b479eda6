#pragma once

#include "penlode/engine/DeviceView.h"
#include "penlode/engine/Drawings.h"

#include <optional>

/// How images lie on a device, and their pixels as devices want them.
namespace penlode {

/// Whole pixels of an image.
struct PixelRect {
    std::int32_t X;
    std::int32_t Y;
    std::int32_t Width;
    std::int32_t Height;

    bool IsOnePixel() const { return Width == 1 && Height == 1; }
};

/// A part of an image that can be drawn.
struct PlacedImage {
    PixelRect Part;        ///< the whole pixels that hold what is seen
    BoxD Visible;          ///< what is seen, in pixels of the image
    Matrix PixelsToDevice; ///< on pixels the destination's edges stand on the grid
};

/// Nothing for a part outside the image, and for an image whose pixels are enlarged or reduced more than
/// 32767 times either way; a single pixel may be enlarged without limit.
std::optional<PlacedImage> Placed(const DeviceView& view, const ImagePart& drawn);

/// The longest side of a part that engines draw.
inline constexpr std::int32_t kMaxImageSide = 32767;

/// Writes a part's pixels row by row: premultiplied ARGB words, as the image's attributes change them.
/// Aborted when the callback asks to stop.
Status CopyPixels(const ImagePart& drawn, const PixelRect& part, unsigned char* rows, std::ptrdiff_t stride);

} // namespace penlode
