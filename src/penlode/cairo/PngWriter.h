#pragma once

#include <cstdint>
#include <string>

namespace penlode {

/// Pixels as Cairo keeps them: one native word each, ARGB, premultiplied.
struct PremultipliedPixels {
    const unsigned char* Data = nullptr;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    std::int32_t Stride = 0; ///< bytes from row to row, a multiple of 4
};

/// A PNG file with the resolution (pHYs, in whole pixels per metre): 8-bit RGB when every pixel is opaque,
/// else RGBA. The same pixels give the same bytes. Empty when the encoder fails.
std::string EncodePng(const PremultipliedPixels& pixels, double dpiX, double dpiY);

/// A premultiplied word with straight colours.
std::uint32_t Unpremultiplied(std::uint32_t argb);

} // namespace penlode
