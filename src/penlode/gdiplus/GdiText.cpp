#include "penlode/engine/DeviceText.h"
#include "penlode/gdiplus/GdiCanvas.h"
#include "penlode/gdiplus/GdiFonts.h"

namespace penlode {
namespace {

/// A line whose baseline begins at the origin of its own units.
void DrawLine(const GdiPainter& painter, const std::wstring& text, const GdiFace& face,
              const Matrix& toDevice, Color color) {
    const Gdiplus::RectF place(0.0F, static_cast<float>(-face.CellAscent * kShapingEm), 0.0F, 0.0F);
    painter.Canvas().SetPlainTransform(toDevice);
    flat::GdipDrawString(painter.Graphics(), text.data(), static_cast<INT>(text.size()), face.Face.get(),
                         &place, LineFormat(), painter.Canvas().BrushFor(color));
    painter.Canvas().GoHome();
}

} // namespace

Status PaintText(const GdiPainter& painter, const TextRun& text) {
    const Font& font = *text.Face;
    const GdiFace* face = FaceFor(font);
    if (face == nullptr) {
        return Status::Ok;
    }
    for (const PlacedLine& placed : PlaceLines(text.Text, font, text.Box, text.Format)) {
        const SetText line{kShapingEm, LineWidth(placed.Text, font)};
        const Matrix toDevice = LineToDevice(painter, placed, font, kShapingEm);
        if (!placed.Text.empty() && CanBeSeen(painter, line, toDevice)) {
            DrawLine(painter, Printable(placed.Text), *face, toDevice, text.Ink);
            Decorate(painter, line, toDevice, font, text.Ink);
        }
    }
    return Status::Ok;
}

} // namespace penlode
