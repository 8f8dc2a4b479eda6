#include "editing/CellSamples.h"

#include "editing/CellTexts.h"
#include "penlode/Units.h"

#include <algorithm>

namespace millichart {
namespace {

constexpr penlode::Color kFrame{0xFF808080U};

void DrawColor(penlode::IGraphicsEngine& engine, const penlode::RectF& box, penlode::Color color) {
    const penlode::SolidBrush brush{color};
    const penlode::Pen frame(kFrame, 1.0F);
    engine.FillRectangle(&brush, box.X, box.Y, box.Width, box.Height);
    engine.DrawRectangle(&frame, box.X, box.Y, box.Width - 1, box.Height - 1);
}

void DrawLine(penlode::IGraphicsEngine& engine, const penlode::RectF& box, const LineCellValues& line,
              float dpi) {
    const float width = penlode::PixelsFromMillimetres(line.Width, dpi);
    penlode::Pen pen(penlode::FromColorRef(line.ColorRef),
                     std::clamp(width, 0.0F, std::max(box.Height, 0.0F)));
    pen.SetDashStyle(static_cast<penlode::DashStyle>(line.DashStyle));
    const float middle = box.Y + box.Height / 2;
    engine.DrawLine(&pen, box.X, middle, box.X + box.Width, middle);
}

} // namespace

void DrawCellSample(penlode::IGraphicsEngine& engine, const penlode::RectF& box, CellKind kind,
                    const std::string& cell, float dpi) {
    const penlode::RectF inner{box.X + 3, box.Y + 3, box.Width - 6, box.Height - 6};
    if (kind == CellKind::Color) {
        DrawColor(engine, inner, ColorOfCell(cell));
    } else if (kind == CellKind::Line) {
        DrawLine(engine, inner, LineOfCell(cell), dpi);
    }
}

} // namespace millichart
