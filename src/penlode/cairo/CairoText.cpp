#include "penlode/cairo/CairoOperations.h"
#include "penlode/cairo/CairoOutline.h"
#include "penlode/cairo/GlyphMasks.h"
#include "penlode/cairo/PangoText.h"
#include "penlode/engine/DeviceText.h"
#include "penlode/text/FontFace.h"

#include <array>
#include <pango/pangocairo.h>

namespace penlode {
namespace {

/// On pixels, Cairo 1.16 puts each glyph on a whole pixel: small ones stand unevenly, and dance on a slanted
/// line. Up to this em size, in pixels, they are drawn as outlines, which keep their places; larger ones as
/// Cairo keeps glyphs.
constexpr double kMaxOutlineEm = 32.0;

/// FreeType refuses glyphs that are stretched far more one way than the other, and then refuses its face for
/// good.
bool IsMuchStretched(const Matrix& toDevice) {
    constexpr double kMaxStretch = 2.0;
    const double x = std::hypot(toDevice.M11, toDevice.M12);
    const double y = std::hypot(toDevice.M21, toDevice.M22);
    const double flattest = std::abs(toDevice.Determinant()) / std::max(x, y);
    return std::max(x, y) > kMaxStretch * flattest;
}

/// Fills outlines that were taken before the transform.
void FillOutlines(const Painter& painter, std::wstring_view text, const Font& font, const Matrix& toDevice) {
    const double scale = kShapingEm / font.Size;
    AddArea(painter.Context(), OutlineOfLine(text, font), Matrix::Scale(scale, scale) * toDevice,
            painter.GuardBand());
    cairo_save(painter.Context());
    cairo_set_fill_rule(painter.Context(), CAIRO_FILL_RULE_WINDING);
    cairo_set_antialias(painter.Context(), CAIRO_ANTIALIAS_DEFAULT);
    cairo_fill(painter.Context());
    cairo_restore(painter.Context());
}

/// As outlines, or as Cairo keeps glyphs.
void DrawGlyphs(const Painter& painter, const ShapedLine& line, const Matrix& toDevice, bool asOutlines) {
    cairo_t* context = painter.Context();
    cairo_save(context);
    painter.SetMatrix(toDevice);
    cairo_move_to(context, 0.0, 0.0);
    if (asOutlines) {
        cairo_set_fill_rule(context, CAIRO_FILL_RULE_WINDING);
        cairo_set_antialias(context, CAIRO_ANTIALIAS_DEFAULT);
        pango_cairo_layout_line_path(context, line.Line);
        cairo_fill(context);
    } else {
        pango_cairo_show_layout_line(context, line.Line);
    }
    cairo_restore(context);
    cairo_new_path(context);
}

void ShowGlyphs(const Painter& painter, const ShapedLine& line, const Matrix& toDevice) {
    if (!painter.HasPixels() || toDevice.LengthFactor() * kShapingEm > kMaxOutlineEm) {
        DrawGlyphs(painter, line, toDevice, false);
    } else if (const std::optional<GlyphMask> mask = GlyphMaskOf(line, toDevice, painter.GuardBand());
               !mask) {
        DrawGlyphs(painter, line, toDevice, true);
    } else if (mask->Coverage != nullptr) {
        cairo_mask_surface(painter.Context(), mask->Coverage.get(), mask->X, mask->Y);
    }
}

} // namespace

Status PaintText(const Painter& painter, const TextRun& text) {
    const Font& font = *text.Face;
    for (const PlacedLine& placed : PlaceLines(text.Text, font, text.Box, text.Format)) {
        const ShapedLine line = ShapeLine(placed.Text, font);
        const SetText set{kShapingEm, line.Width};
        const Matrix toDevice = LineToDevice(painter, placed, font, kShapingEm);
        if (line.Line == nullptr || !CanBeSeen(painter, set, toDevice)) {
            continue;
        }
        painter.SetColor(text.Ink);
        if (IsMuchStretched(toDevice)) {
            FillOutlines(painter, placed.Text, font, toDevice);
        } else {
            ShowGlyphs(painter, line, toDevice);
            Decorate(painter, set, toDevice, font, text.Ink);
        }
    }
    return Status::Ok;
}

} // namespace penlode
