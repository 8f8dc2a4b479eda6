#pragma once

#include "penlode/Color.h"
#include "penlode/Export.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsTypes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace penlode {

/// A picture of straight-alpha ARGB pixels, row by row from the top, with its resolution.
struct Image {
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    float HorizontalDpi = 96.0F;
    float VerticalDpi = 96.0F;
    std::vector<Color> Pixels;

    /// Width and height positive and a colour for every pixel; anything else is drawn by no engine.
    bool IsDrawable() const {
        return Width > 0 && Height > 0 &&
               Pixels.size() / static_cast<std::size_t>(Width) >= static_cast<std::size_t>(Height);
    }
};

/// How an image's colours change while it is drawn: (R, G, B, A, 1), each from 0 to 1, as a row vector times
/// the matrix, clamped to 0 to 1.
struct ImageAttributes {
    std::array<std::array<float, 5>, 5> ColorMatrix{
        {{1, 0, 0, 0, 0}, {0, 1, 0, 0, 0}, {0, 0, 1, 0, 0}, {0, 0, 0, 1, 0}, {0, 0, 0, 0, 1}}};
};

/// (R, G, B, A, 1) times the matrix, clamped.
PENLODE_API Color Adjusted(Color color, const ImageAttributes& attributes);

/// A source rectangle in pixels of the image; nothing for a unit that an image does not have.
PENLODE_API std::optional<RectF> SourceInPixels(const Image& image, const RectF& source, Unit unit);

} // namespace penlode
