#include "penlode/svg/SvgEngine.h"

#include "penlode/Units.h"
#include "penlode/engine/EngineArguments.h"
#include "penlode/engine/ShapePaths.h"
#include "penlode/svg/SvgClip.h"
#include "penlode/svg/SvgDocument.h"
#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgGradient.h"
#include "penlode/svg/SvgGroups.h"
#include "penlode/svg/SvgImage.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgShapes.h"
#include "penlode/svg/SvgText.h"
#include "penlode/svg/SvgWriter.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace penlode {
namespace {

bool IsFiniteArc(const RectF& rect, float startAngle, float sweepAngle) {
    return IsFinite(rect) && AreFinite(startAngle, sweepAngle);
}

double SideOf(float millimetres) {
    return std::isfinite(millimetres) ? std::clamp<double>(millimetres, 0.0, svg::kMaxDistance) : 0.0;
}

SizeF PageOf(SizeF millimetres) {
    return {static_cast<float>(SideOf(millimetres.Width)), static_cast<float>(SideOf(millimetres.Height))};
}

} // namespace

/// The document, and what it takes to write in it.
struct CSvgEngine::Drawing {
    Drawing(SizeF page, const SvgOptions& options)
        : Page(page), TextAsOutlines(options.TextAsOutlines), Document(page, options), Groups(page) {}

    svg::PageMap Map(const CSurfaceState& state) const { return {state.WorldToDevice(), Page}; }

    void Write(const CSurfaceState& state, const std::string& element) {
        LastShape.clear();
        if (!element.empty()) {
            Document.Add(Groups.For(state, Document.Definitions()), element);
        }
    }

    /// Data denser than the page draw one marker many times over: an opaque one that is the same as the last
    /// is not written again.
    void WriteShape(const CSurfaceState& state, std::string element, Color color) {
        if (color.A() == 0xFFU && element == LastShape && state.ClipGeneration() == LastClip) {
            return;
        }
        Write(state, element);
        LastShape = std::move(element);
        LastClip = state.ClipGeneration();
    }

    /// Writes what `shape` makes of the map to the page and the pen.
    template <class Shape>
    Status Stroke(const CSurfaceState& state, const Pen* pen, bool valid, const Shape& shape) {
        if (!IsUsable(pen) || !valid) {
            return Status::InvalidParameter;
        }
        const svg::PageMap map = Map(state);
        if (svg::CanMap(map.ToPage) && pen->GetColor().A() != 0) {
            WriteShape(state, shape(map, svg::StrokePaint(*pen, map.ToPage.LengthFactor())), pen->GetColor());
        }
        return Status::Ok;
    }

    template <class Shape>
    Status Fill(const CSurfaceState& state, const SolidBrush* brush, bool valid, const Shape& shape) {
        if (brush == nullptr || !valid) {
            return Status::InvalidParameter;
        }
        const svg::PageMap map = Map(state);
        if (svg::CanMap(map.ToPage) && brush->FillColor.A() != 0) {
            WriteShape(state, shape(map, svg::Paint{svg::FillAttributes(brush->FillColor)}),
                       brush->FillColor);
        }
        return Status::Ok;
    }

    std::string TextLine(const svg::PageMap& map, PlacedLine line, const Font& font,
                         const std::string& fill) {
        line.Text = line.Text.substr(0, svg::kMaxLineCharacters);
        return TextAsOutlines ? svg::OutlineElement(map, line, font, fill)
                              : svg::TextElement(map.ToPage, line, font, Families.For(font.Family), fill);
    }

    SizeF Page;
    bool TextAsOutlines;
    svg::SvgDocument Document;
    svg::SvgGroups Groups;
    svg::SvgFamilies Families;
    std::string LastShape; ///< the last element written, if it was a shape
    std::uint64_t LastClip = 0;
};

CSvgEngine::CSvgEngine(SizeF millimetres, const SvgOptions& options)
    : CTrackingEngine(kMillimetresPerInch, kMillimetresPerInch),
      m_drawing(std::make_unique<Drawing>(PageOf(millimetres), options)) {}

CSvgEngine::~CSvgEngine() = default;

std::string CSvgEngine::Text() const {
    return m_drawing->Document.Text();
}

Status CSvgEngine::DrawRectangle(const Pen* pen, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    return m_drawing->Stroke(State(), pen, IsFinite(rect),
                             [&](const svg::PageMap& map, const svg::Paint& stroke) {
                                 return svg::StrokedBox(map, rect, stroke);
                             });
}

Status CSvgEngine::DrawLines(const Pen* pen, const PointF* points, std::int32_t count) {
    return m_drawing->Stroke(State(), pen, AreUsable(points, count),
                             [&](const svg::PageMap& map, const svg::Paint& stroke) {
                                 return svg::PolylineElement(map, SpanOf(points, count), stroke);
                             });
}

Status CSvgEngine::DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) {
    const PointF from{x1, y1};
    const PointF to{x2, y2};
    return m_drawing->Stroke(State(), pen, AreFinite(x1, y1, x2, y2),
                             [&](const svg::PageMap& map, const svg::Paint& stroke) {
                                 return svg::LineElement(map, from, to, stroke);
                             });
}

Status CSvgEngine::DrawArc(const Pen* pen, float x, float y, float width, float height, float startAngle,
                           float sweepAngle) {
    const RectF rect{x, y, width, height};
    return m_drawing->Stroke(State(), pen, IsFiniteArc(rect, startAngle, sweepAngle),
                             [&](const svg::PageMap& map, const svg::Paint& stroke) {
                                 return svg::PathElement(map, ArcOf(rect, startAngle, sweepAngle), stroke);
                             });
}

Status CSvgEngine::DrawEllipse(const Pen* pen, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    return m_drawing->Stroke(State(), pen, IsFinite(rect),
                             [&](const svg::PageMap& map, const svg::Paint& stroke) {
                                 return HasExtent(rect) ? svg::EllipseElement(map, rect, stroke) : "";
                             });
}

Status CSvgEngine::DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) {
    return m_drawing->Stroke(State(), pen, IsFiniteArc(rect, startAngle, sweepAngle),
                             [&](const svg::PageMap& map, const svg::Paint& stroke) {
                                 return svg::PathElement(map, PieOf(rect, startAngle, sweepAngle), stroke);
                             });
}

Status CSvgEngine::DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) {
    return m_drawing->Stroke(State(), pen, AreUsable(points, count),
                             [&](const svg::PageMap& map, const svg::Paint& stroke) {
                                 return svg::PolygonElement(map, SpanOf(points, count), stroke);
                             });
}

Status CSvgEngine::DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) {
    return m_drawing->Stroke(State(), pen, AreUsable(points, count),
                             [&](const svg::PageMap& map, const svg::Paint& stroke) {
                                 return svg::PathElement(map, CurveOf(SpanOf(points, count)), stroke);
                             });
}

Status CSvgEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font, const RectF& layout,
                              const StringFormat* format, const SolidBrush* brush) {
    if (text == nullptr || font == nullptr || brush == nullptr || !IsDrawable(*font) || !IsFinite(layout)) {
        return Status::InvalidParameter;
    }
    const svg::PageMap map = m_drawing->Map(State());
    if (!svg::CanMap(map.ToPage) || brush->FillColor.A() == 0) {
        return Status::Ok;
    }
    const std::string fill = svg::FillAttributes(brush->FillColor);
    const StringFormat plain;
    for (const PlacedLine& line :
         PlaceLines(TextOf(text, length), *font, layout, format == nullptr ? plain : *format)) {
        m_drawing->Write(State(), m_drawing->TextLine(map, line, *font, fill));
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
    const svg::PageMap map = m_drawing->Map(State());
    if (!svg::CanMap(map.ToPage)) {
        return Status::Ok;
    }
    if (abort != nullptr && abort(callbackData)) {
        return Status::Aborted;
    }
    const svg::DrawnImage drawn = svg::DrawImagePart(map, *image, destination, *source, attributes);
    if (drawn.ClipData.empty()) {
        m_drawing->Write(State(), drawn.Element);
        return Status::Ok;
    }
    const std::string clip = svg::ClipAttribute(drawn.ClipData, m_drawing->Document.Definitions());
    m_drawing->Write(State(), svg::SvgElement("g").Raw(clip).Around(drawn.Element));
    return Status::Ok;
}

Status CSvgEngine::FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    return m_drawing->Fill(
        State(), brush, IsFinite(rect),
        [&](const svg::PageMap& map, const svg::Paint& fill) { return svg::FilledBox(map, rect, fill); });
}

Status CSvgEngine::FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    return m_drawing->Fill(State(), brush, IsFinite(rect),
                           [&](const svg::PageMap& map, const svg::Paint& fill) {
                               return HasExtent(rect) ? svg::EllipseElement(map, rect, fill) : "";
                           });
}

Status CSvgEngine::FillPie(const SolidBrush* brush, const RectF& rect, float startAngle, float sweepAngle) {
    return m_drawing->Fill(State(), brush, IsFiniteArc(rect, startAngle, sweepAngle),
                           [&](const svg::PageMap& map, const svg::Paint& fill) {
                               return svg::PathElement(map, PieOf(rect, startAngle, sweepAngle), fill);
                           });
}

Status CSvgEngine::FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) {
    return m_drawing->Fill(State(), brush, AreUsable(points, count),
                           [&](const svg::PageMap& map, const svg::Paint& fill) {
                               return count < 3 ? "" : svg::PolygonElement(map, SpanOf(points, count), fill);
                           });
}

Status CSvgEngine::FillPath(const SolidBrush* brush, const GraphicsPath* path) {
    return m_drawing->Fill(
        State(), brush, path != nullptr && IsFinite(*path),
        [&](const svg::PageMap& map, const svg::Paint& fill) { return svg::PathElement(map, *path, fill); });
}

std::int32_t CSvgEngine::GradientFill(const RectL& bounds, const PointF& origin,
                                      const GradientVertex* vertices, std::uint32_t vertexCount,
                                      const void* mesh, std::uint32_t meshCount, GradientMode mode) {
    if (vertices == nullptr || mesh == nullptr || !AreFinite(origin.X, origin.Y) ||
        mode > GradientMode::Triangle) {
        return 0;
    }
    const svg::PageMap map = m_drawing->Map(State());
    if (!svg::CanMap(map.ToPage)) {
        return 1;
    }
    const GradientArea area{bounds, origin, {vertices, vertexCount}};
    svg::SvgDefinitions& definitions = m_drawing->Document.Definitions();
    const auto elements =
        mode == GradientMode::Triangle
            ? svg::GradientTriangles(map, area, {static_cast<const GradientTriangle*>(mesh), meshCount},
                                     definitions)
            : svg::GradientRects(map, area, {static_cast<const GradientRect*>(mesh), meshCount},
                                 mode == GradientMode::RectV, definitions);
    m_drawing->Write(State(), elements.value_or(""));
    return elements ? 1 : 0;
}

std::uint32_t CSvgEngine::BeginContainer() {
    const std::size_t clipsOutside = State().ClipCount();
    const std::uint32_t container = CTrackingEngine::BeginContainer();
    m_drawing->Groups.Begin(container, clipsOutside);
    return container;
}

Status CSvgEngine::EndContainer(std::uint32_t container) {
    const Status status = CTrackingEngine::EndContainer(container);
    if (status == Status::Ok) {
        m_drawing->Groups.End(container);
    }
    return status;
}

} // namespace penlode
