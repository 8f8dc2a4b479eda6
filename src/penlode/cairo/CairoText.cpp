#include "penlode/cairo/CairoOperations.h"
#include "penlode/cairo/CairoOutline.h"
#include "penlode/cairo/GlyphMasks.h"
#include "penlode/cairo/PangoText.h"
#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"
#include "penlode/text/TextPlacement.h"

#include <array>
#include <pango/pangocairo.h>

namespace penlode {
namespace {

constexpr double kMaxEm = 16384.0;
constexpr double kMinEm = 0.1;

/// On pixels, Cairo 1.16 puts each glyph on a whole pixel: small ones stand unevenly, and dance on a slanted
/// line. Up to this em size, in pixels, they are drawn as outlines, which keep their places; larger ones as
/// Cairo keeps glyphs.
constexpr double kMaxOutlineEm = 32.0;

/// Cairo's coordinates wrap around at twice this distance.
constexpr double kMaxDistance = 4194304.0;

/// The map from a set line's own units, its baseline beginning at (0, 0), to device units.
Matrix LineToDevice(const Painter& painter, const PlacedLine& line, const Font& font) {
    const double scale = font.Size / kShapingEm;
    return Matrix::Scale(scale, scale) * Matrix::Translation(line.Baseline.X, line.Baseline.Y) *
           painter.ToDevice();
}

/// Moves a baseline that runs along an axis to a whole pixel.
Matrix OnWholePixel(const Painter& painter, Matrix m) {
    if (painter.Snaps()) {
        const bool horizontal = std::abs(m.M11) > std::abs(m.M12);
        double& across = horizontal ? m.Dy : m.Dx;
        across = PixelGrid::Edge(across);
    }
    return m;
}

/// A box round the line in device units, with room for glyphs that leave their line.
BoxD Surroundings(const Matrix& toDevice, double width) {
    const double room = 2.0 * kShapingEm;
    return Mapped(toDevice, BoxD{-room, -room, width + room, room});
}

bool IsInSight(const Painter& painter, const BoxD& line) {
    const BoxD countable{-kMaxDistance, -kMaxDistance, kMaxDistance, kMaxDistance};
    return line.Meets(painter.GuardBand()) && Common(line, countable) == line;
}

bool CanBeDrawn(const Matrix& toDevice) {
    const double em = toDevice.LengthFactor() * kShapingEm;
    const double longest =
        kShapingEm * std::max(std::hypot(toDevice.M11, toDevice.M12), std::hypot(toDevice.M21, toDevice.M22));
    return toDevice.IsInvertible() && em >= kMinEm && longest <= kMaxEm;
}

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

/// Underline and strikeout of one text are equally thick, wherever they fall on the grid.
BoxD WholePixelStroke(const BoxD& stroke) {
    BoxD box = PixelGrid::Box(stroke);
    if (stroke.Height() < stroke.Width()) {
        box.Bottom = box.Top + PixelGrid::WholeWidth(stroke.Height());
    } else {
        box.Right = box.Left + PixelGrid::WholeWidth(stroke.Width());
    }
    return box;
}

/// A stroke along the whole line whose middle lies `height` ems above the baseline.
void Decorate(const Painter& painter, const ShapedLine& line, const Matrix& toDevice, double height) {
    const double top = -(height + kDecorationThickness / 2.0) * kShapingEm;
    const double bottom = top + kDecorationThickness * kShapingEm;
    const std::vector<PointD> corners = MappedAll(toDevice, CornersOf(BoxD{0.0, top, line.Width, bottom}));
    if (painter.Snaps()) {
        AddBox(painter.Context(), WholePixelStroke(BoxBetween(corners[0], corners[2])), painter.GuardBand());
    } else {
        AddPolygon(painter.Context(), corners, painter.GuardBand());
    }
    cairo_fill(painter.Context());
}

void ShowLine(const Painter& painter, const ShapedLine& line, const Matrix& toDevice, const Font& font) {
    ShowGlyphs(painter, line, toDevice);
    if (font.Has(FontStyle::Underline)) {
        Decorate(painter, line, toDevice, kUnderline);
    }
    if (font.Has(FontStyle::Strikeout)) {
        Decorate(painter, line, toDevice, kStrikeout);
    }
}

} // namespace

Status PaintText(const Painter& painter, const TextRun& text) {
    const Font& font = *text.Face;
    painter.SetColor(text.Ink);
    for (const PlacedLine& placed : PlaceLines(text.Text, font, text.Box, text.Format)) {
        const ShapedLine line = ShapeLine(placed.Text, font);
        const Matrix toDevice = OnWholePixel(painter, LineToDevice(painter, placed, font));
        if (line.Line != nullptr && CanBeDrawn(toDevice) &&
            IsInSight(painter, Surroundings(toDevice, line.Width))) {
            if (IsMuchStretched(toDevice)) {
                FillOutlines(painter, placed.Text, font, toDevice);
            } else {
                ShowLine(painter, line, toDevice, font);
            }
        }
    }
    return Status::Ok;
}

} // namespace penlode
