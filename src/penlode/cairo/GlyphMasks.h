#pragma once

#include "penlode/Matrix.h"
#include "penlode/cairo/CairoHandles.h"
#include "penlode/cairo/PangoText.h"
#include "penlode/engine/DeviceGeometry.h"

#include <optional>

/// Small glyphs as pixels. Each is filled once for each place within a pixel, and copied from then on: most
/// of the time that a labelled chart is drawn in went into filling the same glyphs. Cairo 1.16 keeps a glyph
/// for whole pixels alone; from 1.18 on it keeps phases between them itself, and this can go where no older
/// one is to be found.
namespace penlode {

/// How much of each pixel the glyphs of a line cover.
struct GlyphMask {
    CairoSurface Coverage; ///< 8-bit alpha; null where nothing is covered
    double X = 0.0;        ///< of its left edge, a whole pixel
    double Y = 0.0;
};

/// The glyphs that lie in `sight`, or near it. `toDevice` maps the line's own units to pixels. Each way, a
/// glyph is at most an eighth of a pixel from its place. Nothing for characters that no face has, for a mask
/// that is too large, and when Cairo fails.
std::optional<GlyphMask> GlyphMaskOf(const ShapedLine& line, const Matrix& toDevice, const BoxD& sight);

} // namespace penlode
