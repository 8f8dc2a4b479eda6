#include "penlode/svg/SvgEngine.h"

#include "penlode/EngineArguments.h"
#include "penlode/TextPlacement.h"
#include "penlode/Units.h"
#include "penlode/svg/SvgClip.h"
#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgGradient.h"
#include "penlode/svg/SvgImage.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgShapes.h"
#include "penlode/svg/SvgWriter.h"

#include <span>

namespace penlode {
namespace {

std::span<const PointF> SpanOf(const PointF* points, std::int32_t count) {
    return {points, static_cast<std::size_t>(count)};
}

/// An arc or sector, nothing of an ellipse without extent.
GraphicsPath ArcOf(const RectF& rect, float startAngle, float sweepAngle) {
    GraphicsPath path;
    if (HasExtent(rect)) {
        path.AddArc(rect, startAngle, sweepAngle);
    }
    return path;
}

GraphicsPath PieOf(const RectF& rect, float startAngle, float sweepAngle) {
    GraphicsPath path;
    if (HasExtent(rect)) {
        path.AddPie(rect, startAngle, sweepAngle);
    }
    return path;
}

GraphicsPath CurveOf(std::span<const PointF> points) {
    GraphicsPath path;
    path.AddCurve(points);
    return path;
}

bool IsFiniteArc(const RectF& rect, float startAngle, float sweepAngle) {
    return IsFinite(rect) && AreFinite(startAngle, sweepAngle);
}

} // namespace

CSvgEngine::CSvgEngine(SizeF millimetres, const SvgOptions& options)
    : CTrackingEngine(kMillimetresPerInch, kMillimetresPerInch), m_textAsOutlines(options.TextAsOutlines),
      m_document(millimetres, options), m_groups(millimetres) {}

std::string CSvgEngine::Text() const {
    return m_document.Text();
}

template <class Shape> Status CSvgEngine::Stroke(const Pen* pen, bool valid, const Shape& shape) {
    if (!IsUsable(pen) || !valid) {
        return Status::InvalidParameter;
    }
    const Matrix toPage = ToPage();
    if (svg::CanMap(toPage) && pen->GetColor().A() != 0) {
        Write(shape(toPage, svg::StrokeAttributes(*pen, toPage.LengthFactor())));
    }
    return Status::Ok;
}

template <class Shape> Status CSvgEngine::Fill(const SolidBrush* brush, bool valid, const Shape& shape) {
    if (brush == nullptr || !valid) {
        return Status::InvalidParameter;
    }
    const Matrix toPage = ToPage();
    if (svg::CanMap(toPage) && brush->FillColor.A() != 0) {
        Write(shape(toPage, svg::FillAttributes(brush->FillColor)));
    }
    return Status::Ok;
}

void CSvgEngine::Write(const std::string& element) {
    if (!element.empty()) {
        m_document.Add(m_groups.For(State(), m_document.Definitions()), element);
    }
}

Status CSvgEngine::DrawRectangle(const Pen* pen, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    return Stroke(pen, IsFinite(rect), [&](const Matrix& toPage, const std::string& stroke) {
        return svg::StrokedBox(toPage, rect, stroke);
    });
}

Status CSvgEngine::DrawLines(const Pen* pen, const PointF* points, std::int32_t count) {
    return Stroke(pen, AreUsable(points, count), [&](const Matrix& toPage, const std::string& stroke) {
        return svg::PolylineElement(toPage, SpanOf(points, count), stroke);
    });
}

Status CSvgEngine::DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) {
    const PointF from{x1, y1};
    const PointF to{x2, y2};
    return Stroke(pen, AreFinite(x1, y1, x2, y2), [&](const Matrix& toPage, const std::string& stroke) {
        return svg::LineElement(toPage, from, to, stroke);
    });
}

Status CSvgEngine::DrawArc(const Pen* pen, float x, float y, float width, float height, float startAngle,
                           float sweepAngle) {
    const RectF rect{x, y, width, height};
    return Stroke(pen, IsFiniteArc(rect, startAngle, sweepAngle),
                  [&](const Matrix& toPage, const std::string& stroke) {
                      return svg::PathElement(toPage, ArcOf(rect, startAngle, sweepAngle), stroke);
                  });
}

Status CSvgEngine::DrawEllipse(const Pen* pen, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    return Stroke(pen, IsFinite(rect), [&](const Matrix& toPage, const std::string& stroke) {
        return HasExtent(rect) ? svg::EllipseElement(toPage, rect, stroke) : "";
    });
}

Status CSvgEngine::DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) {
    return Stroke(pen, IsFiniteArc(rect, startAngle, sweepAngle),
                  [&](const Matrix& toPage, const std::string& stroke) {
                      return svg::PathElement(toPage, PieOf(rect, startAngle, sweepAngle), stroke);
                  });
}

Status CSvgEngine::DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) {
    return Stroke(pen, AreUsable(points, count), [&](const Matrix& toPage, const std::string& stroke) {
        return svg::PolygonElement(toPage, SpanOf(points, count), stroke);
    });
}

Status CSvgEngine::DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) {
    return Stroke(pen, AreUsable(points, count), [&](const Matrix& toPage, const std::string& stroke) {
        return svg::PathElement(toPage, CurveOf(SpanOf(points, count)), stroke);
    });
}

Status CSvgEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font, const RectF& layout,
                              const StringFormat* format, const SolidBrush* brush) {
    if (text == nullptr || font == nullptr || brush == nullptr || !IsDrawable(*font) || !IsFinite(layout)) {
        return Status::InvalidParameter;
    }
    const Matrix toPage = ToPage();
    if (!svg::CanMap(toPage) || brush->FillColor.A() == 0) {
        return Status::Ok;
    }
    const std::string fill = svg::FillAttributes(brush->FillColor);
    const StringFormat plain;
    for (const PlacedLine& line :
         PlaceLines(TextOf(text, length), *font, layout, format == nullptr ? plain : *format)) {
        Write(m_textAsOutlines ? svg::OutlineElement(toPage, line, *font, fill)
                               : svg::TextElement(toPage, line, *font, m_families.For(font->Family), fill));
    }
    return Status::Ok;
}

Status CSvgEngine::DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                             float sourceWidth, float sourceHeight, Unit sourceUnit,
                             const ImageAttributes* attributes, DrawImageAbort abort, void* callbackData) {
    if (image == nullptr || !image->IsDrawable() || !IsFinite(destination)) {
        return Status::InvalidParameter;
    }
    const auto source = SourceInPixels(*image, {sourceX, sourceY, sourceWidth, sourceHeight}, sourceUnit);
    if (!source || !IsFinite(*source)) {
        return Status::InvalidParameter;
    }
    if (abort != nullptr && abort(callbackData)) {
        return Status::Aborted;
    }
    return WriteImage(*image, destination, *source, attributes);
}

Status CSvgEngine::WriteImage(const Image& image, const RectF& destination, const RectF& source,
                              const ImageAttributes* attributes) {
    const Matrix toPage = ToPage();
    if (!svg::CanMap(toPage)) {
        return Status::Ok;
    }
    const svg::DrawnImage drawn = svg::DrawImagePart(toPage, image, destination, source, attributes);
    if (drawn.ClipData.empty()) {
        Write(drawn.Element);
        return Status::Ok;
    }
    const std::string clip = svg::ClipAttribute(drawn.ClipData, m_document.Definitions());
    Write(svg::SvgElement("g").Raw(clip).Around(drawn.Element));
    return Status::Ok;
}

Status CSvgEngine::FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    return Fill(brush, IsFinite(rect), [&](const Matrix& toPage, const std::string& fill) {
        return svg::FilledBox(toPage, rect, fill);
    });
}

Status CSvgEngine::FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    return Fill(brush, IsFinite(rect), [&](const Matrix& toPage, const std::string& fill) {
        return HasExtent(rect) ? svg::EllipseElement(toPage, rect, fill) : "";
    });
}

Status CSvgEngine::FillPie(const SolidBrush* brush, const RectF& rect, float startAngle, float sweepAngle) {
    return Fill(brush, IsFiniteArc(rect, startAngle, sweepAngle),
                [&](const Matrix& toPage, const std::string& fill) {
                    return svg::PathElement(toPage, PieOf(rect, startAngle, sweepAngle), fill);
                });
}

Status CSvgEngine::FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) {
    return Fill(brush, AreUsable(points, count), [&](const Matrix& toPage, const std::string& fill) {
        return count < 3 ? "" : svg::PolygonElement(toPage, SpanOf(points, count), fill);
    });
}

Status CSvgEngine::FillPath(const SolidBrush* brush, const GraphicsPath* path) {
    return Fill(
        brush, path != nullptr && svg::IsFinitePath(*path),
        [&](const Matrix& toPage, const std::string& fill) { return svg::PathElement(toPage, *path, fill); });
}

std::int32_t CSvgEngine::GradientFill(const RectL& bounds, const PointF& origin,
                                      const GradientVertex* vertices, std::uint32_t vertexCount,
                                      const void* mesh, std::uint32_t meshCount, GradientMode mode) {
    if (vertices == nullptr || mesh == nullptr || !AreFinite(origin.X, origin.Y) ||
        mode > GradientMode::Triangle) {
        return 0;
    }
    const Matrix toPage = ToPage();
    if (!svg::CanMap(toPage)) {
        return 1;
    }
    const svg::GradientArea area{bounds, origin, {vertices, vertexCount}};
    svg::SvgDefinitions& definitions = m_document.Definitions();
    const auto elements =
        mode == GradientMode::Triangle
            ? svg::GradientTriangles(toPage, area, {static_cast<const GradientTriangle*>(mesh), meshCount},
                                     definitions)
            : svg::GradientRects(toPage, area, {static_cast<const GradientRect*>(mesh), meshCount},
                                 mode == GradientMode::RectV, definitions);
    Write(elements.value_or(""));
    return elements ? 1 : 0;
}

std::uint32_t CSvgEngine::BeginContainer() {
    const std::size_t clipsOutside = State().DeviceClips().size();
    const std::uint32_t container = CTrackingEngine::BeginContainer();
    m_groups.Begin(container, clipsOutside);
    return container;
}

Status CSvgEngine::EndContainer(std::uint32_t container) {
    const Status status = CTrackingEngine::EndContainer(container);
    if (status == Status::Ok) {
        m_groups.End(container);
    }
    return status;
}

} // namespace penlode
