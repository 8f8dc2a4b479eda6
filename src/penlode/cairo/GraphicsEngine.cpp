#include "penlode/cairo/GraphicsEngine.h"

#include "penlode/cairo/CairoOperations.h"
#include "penlode/cairo/CairoTarget.h"
#include "penlode/engine/Finite.h"

#include <array>
#include <optional>

namespace penlode {
namespace {

/// A shape that data may draw many times over in one place, by its corners.
struct Marking {
    MarkShape Shape;
    std::span<const PointF> Corners;
};

/// `diagonal` keeps the corners of a box.
std::optional<Marking> MarkingOf(const Outline& outline, bool fills, std::array<PointF, 2>& diagonal) {
    const auto within = [&](const RectF& box) {
        diagonal = {box.TopLeft(), {box.Right(), box.Bottom()}};
        return std::span<const PointF>(diagonal);
    };
    if (const auto* rectangle = std::get_if<Outline::Rectangle>(&outline.Shape)) {
        return Marking{fills ? MarkShape::FilledBox : MarkShape::Box, within(rectangle->Box)};
    }
    if (const auto* ellipse = std::get_if<Outline::Ellipse>(&outline.Shape)) {
        return Marking{fills ? MarkShape::FilledEllipse : MarkShape::Ellipse, within(ellipse->Box)};
    }
    if (const auto* polygon = std::get_if<Outline::Polygon>(&outline.Shape)) {
        return Marking{fills ? MarkShape::FilledPolygon : MarkShape::Polygon, polygon->Points};
    }
    return std::nullopt;
}

} // namespace

Status CGraphicsEngine::StrokeOutline(const Outline& outline, const Pen& pen) {
    const auto stroke = [&](const Painter& painter) { return penlode::Stroke(painter, outline, pen); };
    std::array<PointF, 2> diagonal;
    const std::optional<Marking> mark = MarkingOf(outline, false, diagonal);
    return mark ? m_target->DrawMark(State(), mark->Shape, pen, mark->Corners, stroke)
                : m_target->Draw(State(), stroke);
}

Status CGraphicsEngine::FillOutline(const Outline& outline, const SolidBrush& brush) {
    const auto fill = [&](const Painter& painter) {
        return penlode::Fill(painter, outline, brush.FillColor);
    };
    std::array<PointF, 2> diagonal;
    const std::optional<Marking> mark = MarkingOf(outline, true, diagonal);
    return mark ? m_target->DrawMark(State(), mark->Shape, Pen(brush.FillColor, 0.0F), mark->Corners, fill)
                : m_target->Draw(State(), fill);
}

Status CGraphicsEngine::StrokeDataLine(std::span<const PointF> points, const Pen& pen) {
    bool seen = false;
    const Status answer = m_target->Draw(State(), [&](const Painter& painter) {
        seen = true;
        return penlode::StrokeDataLine(painter, points, pen);
    });
    return seen || AreFinite(points) ? answer : Status::InvalidParameter;
}

Status CGraphicsEngine::PaintText(const TextRun& text) {
    return m_target->Draw(State(), [&](const Painter& painter) { return penlode::PaintText(painter, text); });
}

Status CGraphicsEngine::PaintImage(const ImagePart& part) {
    return m_target->Draw(State(),
                          [&](const Painter& painter) { return penlode::PaintImage(painter, part); });
}

Status CGraphicsEngine::PaintGradient(const GradientMesh& mesh) {
    return m_target->Draw(State(),
                          [&](const Painter& painter) { return penlode::PaintGradient(painter, mesh); });
}

} // namespace penlode
