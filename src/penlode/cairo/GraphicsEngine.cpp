#include "penlode/cairo/GraphicsEngine.h"

#include "penlode/cairo/CairoGradient.h"
#include "penlode/cairo/CairoImage.h"
#include "penlode/cairo/CairoShapes.h"
#include "penlode/cairo/CairoTarget.h"
#include "penlode/cairo/CairoText.h"
#include "penlode/engine/EngineArguments.h"
#include "penlode/engine/LineThinning.h"
#include "penlode/engine/ShapePaths.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <array>

namespace penlode {
namespace {

std::array<PointF, 2> Diagonal(const RectF& rect) {
    return {rect.TopLeft(), {rect.Right(), rect.Bottom()}};
}

Pen LookOf(const SolidBrush& brush) {
    return Pen(brush.FillColor, 0.0F);
}

} // namespace

Status CGraphicsEngine::DrawRectangle(const Pen* pen, float x, float y, float width, float height) {
    if (!IsUsable(pen) || !AreFinite(x, y, width, height)) {
        return Status::InvalidParameter;
    }
    return m_target->DrawMark(State(), MarkShape::Box, *pen, Diagonal({x, y, width, height}),
                              [&](const Painter& p) {
                                  return StrokeBox(p, *pen, {x, y, width, height});
                              });
}

/// Data are looked at when they are thinned, so that millions of points are gone through once.
Status CGraphicsEngine::DrawLines(const Pen* pen, const PointF* points, std::int32_t count) {
    const bool isData = points != nullptr && count >= static_cast<std::int32_t>(kMinDataLinePoints);
    if (!IsUsable(pen) || (!isData && !AreUsable(points, count))) {
        return Status::InvalidParameter;
    }
    bool seen = false;
    const Status answer = m_target->Draw(State(), [&](const Painter& p) {
        seen = true;
        return StrokeLines(p, *pen, SpanOf(points, count));
    });
    return seen || AreUsable(points, count) ? answer : Status::InvalidParameter;
}

Status CGraphicsEngine::DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) {
    const PointF ends[] = {{x1, y1}, {x2, y2}};
    return DrawLines(pen, ends, 2);
}

Status CGraphicsEngine::DrawArc(const Pen* pen, float x, float y, float width, float height, float startAngle,
                                float sweepAngle) {
    const RectF rect{x, y, width, height};
    if (!IsUsable(pen) || !IsFinite(rect) || !AreFinite(startAngle, sweepAngle)) {
        return Status::InvalidParameter;
    }
    return m_target->Draw(
        State(), [&](const Painter& p) { return StrokePath(p, *pen, ArcOf(rect, startAngle, sweepAngle)); });
}

Status CGraphicsEngine::DrawEllipse(const Pen* pen, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    if (!IsUsable(pen) || !IsFinite(rect)) {
        return Status::InvalidParameter;
    }
    return m_target->DrawMark(State(), MarkShape::Ellipse, *pen, Diagonal(rect),
                              [&](const Painter& p) { return StrokePath(p, *pen, EllipseOf(rect)); });
}

Status CGraphicsEngine::DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) {
    if (!IsUsable(pen) || !IsFinite(rect) || !AreFinite(startAngle, sweepAngle)) {
        return Status::InvalidParameter;
    }
    return m_target->Draw(
        State(), [&](const Painter& p) { return StrokePath(p, *pen, PieOf(rect, startAngle, sweepAngle)); });
}

Status CGraphicsEngine::DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) {
    if (!IsUsable(pen) || !AreUsable(points, count)) {
        return Status::InvalidParameter;
    }
    return m_target->DrawMark(
        State(), MarkShape::Polygon, *pen, SpanOf(points, count),
        [&](const Painter& p) { return StrokePolygon(p, *pen, SpanOf(points, count)); });
}

Status CGraphicsEngine::DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) {
    if (!IsUsable(pen) || !AreUsable(points, count)) {
        return Status::InvalidParameter;
    }
    return m_target->Draw(
        State(), [&](const Painter& p) { return StrokePath(p, *pen, CurveOf(SpanOf(points, count))); });
}

Status CGraphicsEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const RectF& layout, const StringFormat* format, const SolidBrush* brush) {
    if (text == nullptr || font == nullptr || brush == nullptr || !IsDrawable(*font) || !IsFinite(layout)) {
        return Status::InvalidParameter;
    }
    const StringFormat plain;
    return m_target->Draw(State(), [&](const Painter& p) {
        return PaintText(p, TextOf(text, length), *font, layout, format == nullptr ? plain : *format,
                         brush->FillColor);
    });
}

Status CGraphicsEngine::DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                                  float sourceWidth, float sourceHeight, Unit sourceUnit,
                                  const ImageAttributes* attributes, DrawImageAbort abort,
                                  void* callbackData) {
    const RectF source{sourceX, sourceY, sourceWidth, sourceHeight};
    if (image == nullptr || !image->IsDrawable() || !IsFinite(destination) || !IsFinite(source)) {
        return Status::InvalidParameter;
    }
    const std::optional<RectF> pixels = SourceInPixels(*image, source, sourceUnit);
    if (!pixels) {
        return Status::InvalidParameter;
    }
    return m_target->Draw(State(), [&](const Painter& p) {
        return PaintImage(p, *image, destination, {*pixels, attributes, abort, callbackData});
    });
}

Status CGraphicsEngine::FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) {
    if (brush == nullptr || !AreFinite(x, y, width, height)) {
        return Status::InvalidParameter;
    }
    return m_target->DrawMark(State(), MarkShape::FilledBox, LookOf(*brush), Diagonal({x, y, width, height}),
                              [&](const Painter& p) {
                                  return FillBox(p, brush->FillColor, {x, y, width, height});
                              });
}

Status CGraphicsEngine::FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    if (brush == nullptr || !IsFinite(rect)) {
        return Status::InvalidParameter;
    }
    return m_target->DrawMark(
        State(), MarkShape::FilledEllipse, LookOf(*brush), Diagonal(rect),
        [&](const Painter& p) { return penlode::FillPath(p, brush->FillColor, EllipseOf(rect)); });
}

Status CGraphicsEngine::FillPie(const SolidBrush* brush, const RectF& rect, float startAngle,
                                float sweepAngle) {
    if (brush == nullptr || !IsFinite(rect) || !AreFinite(startAngle, sweepAngle)) {
        return Status::InvalidParameter;
    }
    return m_target->Draw(State(), [&](const Painter& p) {
        return penlode::FillPath(p, brush->FillColor, PieOf(rect, startAngle, sweepAngle));
    });
}

Status CGraphicsEngine::FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) {
    if (brush == nullptr || !AreUsable(points, count)) {
        return Status::InvalidParameter;
    }
    return m_target->DrawMark(
        State(), MarkShape::FilledPolygon, LookOf(*brush), SpanOf(points, count),
        [&](const Painter& p) { return penlode::FillPolygon(p, brush->FillColor, SpanOf(points, count)); });
}

Status CGraphicsEngine::FillPath(const SolidBrush* brush, const GraphicsPath* path) {
    if (brush == nullptr || path == nullptr || !IsFinite(*path)) {
        return Status::InvalidParameter;
    }
    return m_target->Draw(State(),
                          [&](const Painter& p) { return penlode::FillPath(p, brush->FillColor, *path); });
}

std::int32_t CGraphicsEngine::GradientFill(const RectL& bounds, const PointF& origin,
                                           const GradientVertex* vertices, std::uint32_t vertexCount,
                                           const void* mesh, std::uint32_t meshCount, GradientMode mode) {
    if (vertices == nullptr || mesh == nullptr || !AreFinite(origin.X, origin.Y) ||
        mode > GradientMode::Triangle) {
        return 0;
    }
    const GradientArea area{bounds, origin, {vertices, vertexCount}};
    const auto fill = [&](const Painter& p) {
        const bool filled =
            mode == GradientMode::Triangle
                ? FillGradientTriangles(p, area, {static_cast<const GradientTriangle*>(mesh), meshCount})
                : FillGradientRects(p, area, {static_cast<const GradientRect*>(mesh), meshCount},
                                    mode == GradientMode::RectV);
        return filled ? Status::Ok : Status::InvalidParameter;
    };
    return m_target->Draw(State(), fill) == Status::Ok ? 1 : 0;
}

} // namespace penlode
