#pragma once

#include "penlode/Color.h"

#include <array>
#include <cstddef>
#include <cstdint>
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

} // namespace penlode
