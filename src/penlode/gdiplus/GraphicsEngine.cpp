#include "penlode/gdiplus/GraphicsEngine.h"

#include "penlode/engine/ThinnedLine.h"
#include "penlode/gdiplus/GdiTarget.h"

namespace penlode {

Status CGraphicsEngine::StrokeOutline(const Outline& outline, const Pen& pen) {
    return m_target->DrawShape(State(), outline, pen, false,
                               [&](const GdiPainter& painter) { return painter.Stroke(outline, pen); });
}

Status CGraphicsEngine::FillOutline(const Outline& outline, const SolidBrush& brush) {
    return m_target->DrawShape(
        State(), outline, Pen(brush.FillColor, 0.0F), true,
        [&](const GdiPainter& painter) { return painter.Fill(outline, brush.FillColor); });
}

Status CGraphicsEngine::StrokeDataLine(DataRun& run, const Pen& pen) {
    return m_target->Draw(
        State(), [&](const GdiPainter& painter) { return penlode::StrokeDataLine(painter, run, pen); });
}

std::vector<float> CGraphicsEngine::DataColumns(float left, float right) const {
    return ColumnsOf(DeviceView(m_target->Canvas.Setting().Device, State()), left, right);
}

Status CGraphicsEngine::PaintText(const TextRun& text) {
    return m_target->Draw(State(),
                          [&](const GdiPainter& painter) { return penlode::PaintText(painter, text); });
}

Status CGraphicsEngine::PaintImage(const ImagePart& part) {
    return m_target->Draw(State(),
                          [&](const GdiPainter& painter) { return penlode::PaintImage(painter, part); });
}

Status CGraphicsEngine::PaintGradient(const GradientMesh& mesh) {
    return m_target->Draw(State(),
                          [&](const GdiPainter& painter) { return penlode::PaintGradient(painter, mesh); });
}

} // namespace penlode
