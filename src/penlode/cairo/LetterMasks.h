#pragma once

#include "penlode/Font.h"
#include "penlode/Matrix.h"
#include "penlode/cairo/CairoHandles.h"
#include "penlode/cairo/PangoText.h"

#include <string_view>

/// Small letters as pixels, made once: a host that draws a chart again has the same words at the same places
/// of the pixel grid.
namespace penlode {

/// How much of each pixel the letters of a line cover.
struct LetterMask {
    cairo_surface_t* Coverage = nullptr; ///< 8-bit alpha; null where nothing is covered
    double X = 0.0;                      ///< of its left edge, a whole pixel
    double Y = 0.0;
};

/// Would the mask be small enough to keep?
bool HasLetterMask(const SetLine& line, const Matrix& toDevice);

/// The mask of a line that was set from this text and font. `toDevice` maps the line's own units to pixels.
/// Stays valid until the thread's next call.
LetterMask LetterMaskOf(const SetLine& line, std::wstring_view text, const Font& font,
                        const Matrix& toDevice);

} // namespace penlode
