#include "penlode/gdiplus/GdiCanvas.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace penlode {
namespace {

Gdiplus::SmoothingMode SmoothingFor(SmoothingMode mode) {
    const bool jagged = mode == SmoothingMode::None || mode == SmoothingMode::HighSpeed;
    return jagged ? Gdiplus::SmoothingModeNone : Gdiplus::SmoothingModeAntiAlias;
}

} // namespace

GdipMatrix MatrixOf(const Matrix& m) {
    return Created<GdipMatrix>(flat::GdipCreateMatrix2, static_cast<float>(m.M11), static_cast<float>(m.M12),
                               static_cast<float>(m.M21), static_cast<float>(m.M22), static_cast<float>(m.Dx),
                               static_cast<float>(m.Dy));
}

GdiCanvas::GdiCanvas(GdipGraphics graphics, const DeviceSetting& setting)
    : m_graphics(std::move(graphics)), m_setting(setting) {
    flat::GdipSetPageUnit(m_graphics.get(), Gdiplus::UnitPixel);
    flat::GdipSetTextRenderingHint(m_graphics.get(), Gdiplus::TextRenderingHintAntiAlias);
    flat::GdipSetCompositingMode(m_graphics.get(), Gdiplus::CompositingModeSourceOver);
}

void GdiCanvas::Begin(const CSurfaceState& state) {
    GoHome();
    UpdateClip(state);
    flat::GdipSetSmoothingMode(m_graphics.get(), SmoothingFor(state.GetSmoothingMode()));
}

void GdiCanvas::GoHome() {
    if (!m_isHome) {
        SetTransform({});
        m_isHome = true;
    }
}

void GdiCanvas::SetTransform(const Matrix& m) {
    const double middle = m_setting.HasPixels ? -0.5 : 0.0;
    SetPlainTransform(m * Matrix::Translation(middle, middle));
}

void GdiCanvas::SetPlainTransform(const Matrix& m) {
    m_isHome = false;
    if (const GdipMatrix matrix = MatrixOf(m)) {
        flat::GdipSetWorldTransform(m_graphics.get(), matrix.get());
    }
}

Gdiplus::GpBrush* GdiCanvas::BrushFor(Color color) {
    if (m_brushColor != color) {
        Gdiplus::GpSolidFill* made = nullptr;
        flat::GdipCreateSolidFill(color.Argb, &made);
        m_brush.reset(made);
        m_brushColor = color;
    }
    return m_brush.get();
}

Gdiplus::GpPen* GdiCanvas::PenFor(const DevicePen& pen, double offset, bool dashed) {
    const PenKey key{pen.GetColor(), pen.Width(), dashed ? pen.GetDashStyle() : DashStyle::Solid};
    if (m_penKey != key) {
        m_pen = Created<GdipPen>(flat::GdipCreatePen1, key.Ink.Argb, static_cast<float>(key.Width),
                                 Gdiplus::UnitWorld);
        // A corner over the limit is cut as by a bevel: the plain join would leave it standing out.
        flat::GdipSetPenLineJoin(m_pen.get(), Gdiplus::LineJoinMiterClipped);
        flat::GdipSetPenDashStyle(m_pen.get(), static_cast<Gdiplus::DashStyle>(key.Dashes));
        m_penKey = key;
    }
    flat::GdipSetPenMiterLimit(m_pen.get(), static_cast<float>(pen.MiterLimit()));
    if (dashed) {
        const std::vector<double> dashes = pen.Dashes();
        const double period = std::accumulate(dashes.begin(), dashes.end(), 0.0);
        flat::GdipSetPenDashOffset(m_pen.get(), static_cast<float>(std::fmod(offset, period) / key.Width));
    }
    return m_pen.get();
}

void GdiCanvas::UpdateClip(const CSurfaceState& state) {
    if (m_clipGeneration == state.ClipGeneration()) {
        return;
    }
    if (const GdipRegion region = ClipRegion(state.DeviceClips(), m_setting)) {
        flat::GdipSetClipRegion(m_graphics.get(), region.get(), Gdiplus::CombineModeReplace);
        m_clipGeneration = state.ClipGeneration();
    }
}

GdiPainter::GdiPainter(GdiCanvas& canvas, const CSurfaceState& state)
    : ShapePainter(canvas.Setting(), state), m_canvas(canvas), m_ready(IsSound(ToDevice(), kMaxTransform)) {
    if (m_ready) {
        canvas.Begin(state);
    }
}

} // namespace penlode
