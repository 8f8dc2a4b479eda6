#include "penlode/engine/TrackingEngine.h"

#include "penlode/engine/CallArguments.h"
#include "penlode/engine/Drawings.h"
#include "penlode/engine/EngineArguments.h"
#include "penlode/engine/LineThinning.h"
#include "penlode/engine/Outline.h"
#include "penlode/engine/SurfaceState.h"
#include "penlode/text/StringUtil.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <array>

namespace penlode {
namespace {

std::size_t LinesThatFit(std::size_t lines, float height, float lineHeight) {
    if (height <= 0.0F || lineHeight <= 0.0F) {
        return lines;
    }
    return static_cast<std::size_t>(
        std::min(static_cast<double>(lines), std::floor(height / lineHeight + 1e-3)));
}

/// Characters of the first lines, with the line breaks that end them.
std::size_t CharactersIn(std::wstring_view text, const std::vector<std::wstring_view>& lines,
                         std::size_t count) {
    return count == lines.size() ? text.size() : static_cast<std::size_t>(lines[count].data() - text.data());
}

struct FiniteCheck {
    bool operator()(const Outline::Nothing&) const { return true; }

    bool operator()(const Outline::Line& line) const { return IsFinite(line.From) && IsFinite(line.To); }

    bool operator()(const Outline::Path& path) const { return IsFinite(*path.Whole); }

    template <class Shape> bool operator()(const Shape& shape) const {
        if constexpr (requires { shape.Points; }) {
            return AreFinite(shape.Points);
        } else if constexpr (requires { shape.SweepAngle; }) {
            return IsFinite(shape.Box) && AreFinite(shape.StartAngle, shape.SweepAngle);
        } else {
            return IsFinite(shape.Box);
        }
    }
};

bool IsFinite(const Outline& outline) {
    return std::visit(FiniteCheck{}, outline.Shape);
}

/// What has no extent where it needs one is nothing. A pen draws a box without width or height as a line.
struct ExtentCheck {
    bool Fills;

    bool operator()(const Outline::Rectangle& rectangle) const {
        const RectF& box = rectangle.Box;
        return Fills ? HasExtent(box) : box.Width >= 0.0F && box.Height >= 0.0F;
    }

    bool operator()(const Outline::Polygon& polygon) const { return !Fills || polygon.Points.size() >= 3; }

    template <class Shape> bool operator()(const Shape& shape) const {
        if constexpr (requires { shape.Box; }) {
            return HasExtent(shape.Box);
        } else {
            return true;
        }
    }
};

/// Is a run of so many points that they are thinned?
bool IsLong(const DataLine& line, std::size_t first) {
    if (first > line.Size() || line.Size() - first < kMinDataLinePoints) {
        return false;
    }
    std::array<PointF, DataLine::kBlock> points;
    for (std::size_t done = 0, count = 4; done < kMinDataLinePoints; done += count, count *= 2) {
        count = std::min({count, points.size(), kMinDataLinePoints - done});
        const std::span block = std::span(points).first(count);
        line.Place(first + done, block);
        if (!AreFinite(std::span<const PointF>(block))) {
            return false;
        }
    }
    return true;
}

Outline WhatShows(const Outline& outline, bool fills) {
    return std::visit(ExtentCheck{fills}, outline.Shape) ? outline : Outline{Outline::Nothing{}};
}

} // namespace

CTrackingEngine::CTrackingEngine(double dpiX, double dpiY, std::vector<RecordedCall>* calls)
    : m_state(std::make_unique<CSurfaceState>(dpiX, dpiY)), m_calls(calls) {}

CTrackingEngine::~CTrackingEngine() = default;

template <class... Arguments>
void CTrackingEngine::Record(const char* operation, const Arguments&... arguments) {
    if (m_calls != nullptr) {
        m_calls->push_back({operation, {ArgumentOf(arguments)...}});
    }
}

Status CTrackingEngine::Stroke(const Pen* pen, const Outline& outline) {
    return IsUsable(pen) && IsFinite(outline) ? StrokeOutline(WhatShows(outline, false), *pen)
                                              : Status::InvalidParameter;
}

Status CTrackingEngine::Fill(const SolidBrush* brush, const Outline& outline) {
    return brush != nullptr && IsFinite(outline) ? FillOutline(WhatShows(outline, true), *brush)
                                                 : Status::InvalidParameter;
}

Status CTrackingEngine::DrawRectangle(const Pen* pen, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    Record("DrawRectangle", pen, rect);
    return Stroke(pen, {Outline::Rectangle{rect}});
}

Status CTrackingEngine::DrawLines(const Pen* pen, const PointF* points, std::int32_t count) {
    Record("DrawLines", pen, PointList{points, count});
    if (!IsUsable(pen) || !AreThere(points, count)) {
        return Status::InvalidParameter;
    }
    const std::span<const PointF> list = SpanOf(points, count);
    if (list.size() < kMinDataLinePoints) {
        return Stroke(pen, {Outline::Polyline{list}});
    }
    const ListLine line(list);
    DataRun run{line};
    const Status answer = Stroke(*pen, run);
    return run.IsSound() ? answer : Status::InvalidParameter;
}

/// The surface may not have looked at the points, as nothing of them can be seen.
Status CTrackingEngine::Stroke(const Pen& pen, DataRun& run) {
    const Status answer = StrokeDataLine(run, pen);
    if (!run.End) {
        run.End = FindGap(run.Line, run.First);
    }
    return answer;
}

Status CTrackingEngine::DrawDataLine(const Pen* pen, const DataLine& line, std::size_t first,
                                     std::size_t& end) {
    if (m_calls == nullptr && IsUsable(pen) && IsLong(line, first)) {
        DataRun run{line, first, true};
        const Status answer = Stroke(*pen, run);
        end = *run.End;
        return answer;
    }
    if (!IsUsable(pen)) {
        end = FindGap(line, first);
        return Status::InvalidParameter;
    }
    end = DrawAsList(*this, *pen, line, first);
    return Status::Ok;
}

Status CTrackingEngine::DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) {
    const PointF from{x1, y1};
    const PointF to{x2, y2};
    Record("DrawLine", pen, std::pair("from", from), std::pair("to", to));
    return Stroke(pen, {Outline::Line{from, to}});
}

Status CTrackingEngine::DrawArc(const Pen* pen, float x, float y, float width, float height, float startAngle,
                                float sweepAngle) {
    const RectF rect{x, y, width, height};
    Record("DrawArc", pen, rect, std::pair("start", startAngle), std::pair("sweep", sweepAngle));
    return Stroke(pen, {Outline::Arc{rect, startAngle, sweepAngle}});
}

Status CTrackingEngine::DrawEllipse(const Pen* pen, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    Record("DrawEllipse", pen, rect);
    return Stroke(pen, {Outline::Ellipse{rect}});
}

Status CTrackingEngine::DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) {
    Record("DrawPie", pen, rect, std::pair("start", startAngle), std::pair("sweep", sweepAngle));
    return Stroke(pen, {Outline::Pie{rect, startAngle, sweepAngle}});
}

Status CTrackingEngine::DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) {
    Record("DrawPolygon", pen, PointList{points, count});
    return AreThere(points, count) ? Stroke(pen, {Outline::Polygon{SpanOf(points, count)}})
                                   : Status::InvalidParameter;
}

Status CTrackingEngine::DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) {
    Record("DrawCurve", pen, PointList{points, count});
    return AreThere(points, count) ? Stroke(pen, {Outline::Curve{SpanOf(points, count)}})
                                   : Status::InvalidParameter;
}

Status CTrackingEngine::FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    Record("FillRectangle", brush, rect);
    return Fill(brush, {Outline::Rectangle{rect}});
}

Status CTrackingEngine::FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) {
    const RectF rect{x, y, width, height};
    Record("FillEllipse", brush, rect);
    return Fill(brush, {Outline::Ellipse{rect}});
}

Status CTrackingEngine::FillPie(const SolidBrush* brush, const RectF& rect, float startAngle,
                                float sweepAngle) {
    Record("FillPie", brush, rect, std::pair("start", startAngle), std::pair("sweep", sweepAngle));
    return Fill(brush, {Outline::Pie{rect, startAngle, sweepAngle}});
}

Status CTrackingEngine::FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) {
    Record("FillPolygon", brush, PointList{points, count});
    return AreThere(points, count) ? Fill(brush, {Outline::Polygon{SpanOf(points, count)}})
                                   : Status::InvalidParameter;
}

Status CTrackingEngine::FillPath(const SolidBrush* brush, const GraphicsPath* path) {
    Record("FillPath", brush, path);
    return path != nullptr ? Fill(brush, {Outline::Path{path}}) : Status::InvalidParameter;
}

Status CTrackingEngine::PaintString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const RectF& layout, const StringFormat* format,
                                    const SolidBrush* brush) {
    if (text == nullptr || font == nullptr || brush == nullptr || !IsDrawable(*font) || !IsFinite(layout)) {
        return Status::InvalidParameter;
    }
    return PaintText(
        {TextOf(text, length), font, layout, format == nullptr ? StringFormat{} : *format, brush->FillColor});
}

Status CTrackingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const RectF& layout, const StringFormat* format, const SolidBrush* brush) {
    Record("DrawString", TextOf(text, length), font, layout, format, brush);
    return PaintString(text, length, font, layout, format, brush);
}

Status CTrackingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const PointF& origin, const StringFormat* format,
                                   const SolidBrush* brush) {
    Record("DrawString", TextOf(text, length), font, origin, format, brush);
    return PaintString(text, length, font, {origin.X, origin.Y, 0.0F, 0.0F}, format, brush);
}

Status CTrackingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                   const PointF& origin, const SolidBrush* brush) {
    Record("DrawString", TextOf(text, length), font, origin, brush);
    return PaintString(text, length, font, {origin.X, origin.Y, 0.0F, 0.0F}, nullptr, brush);
}

void CTrackingEngine::DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                                     const SolidBrush* brush) {
    Record("DrawScriptText", TextOf(text, -1), font, PointF{x, y}, brush);
    PaintString(text, -1, font, {x, y, 0.0F, 0.0F}, nullptr, brush);
}

Status CTrackingEngine::PaintPart(const ImagePart& part, Unit sourceUnit) {
    if (part.Picture == nullptr || !part.Picture->IsDrawable() || !IsFinite(part.Destination)) {
        return Status::InvalidParameter;
    }
    const std::optional<RectF> pixels = SourceInPixels(*part.Picture, part.Source, sourceUnit);
    if (!pixels || !IsFinite(*pixels)) {
        return Status::InvalidParameter;
    }
    ImagePart inPixels = part;
    inPixels.Source = *pixels;
    return PaintImage(inPixels);
}

Status CTrackingEngine::DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                                  float sourceWidth, float sourceHeight, Unit sourceUnit,
                                  const ImageAttributes* attributes, DrawImageAbort abort,
                                  void* callbackData) {
    const RectF source{sourceX, sourceY, sourceWidth, sourceHeight};
    Record("DrawImage", image, destination, std::pair("source", source), sourceUnit, attributes);
    return PaintPart({image, source, destination, attributes, abort, callbackData}, sourceUnit);
}

Status CTrackingEngine::DrawImage(const Image* image, const RectF& destination) {
    Record("DrawImage", image, destination);
    if (image == nullptr) {
        return Status::InvalidParameter;
    }
    const RectF whole{0.0F, 0.0F, static_cast<float>(image->Width), static_cast<float>(image->Height)};
    return PaintPart({image, whole, destination}, Unit::Pixel);
}

std::int32_t CTrackingEngine::GradientFill(const RectL& bounds, const PointF& origin,
                                           const GradientVertex* vertices, std::uint32_t vertexCount,
                                           const void* mesh, std::uint32_t meshCount, GradientMode mode) {
    const GradientMesh whole = MeshOf(bounds, origin, vertices, vertexCount, mesh, meshCount, mode);
    if (m_calls != nullptr) {
        Record("GradientFill", RectOf(bounds), PointsOf(whole), ColorsOf(whole), IndicesOf(whole),
               std::pair("mode", static_cast<std::uint32_t>(mode)));
    }
    const bool sound = vertices != nullptr && mesh != nullptr && mode <= GradientMode::Triangle &&
                       IsFinite(origin) && AreVerticesThere(whole);
    return sound && PaintGradient(whole) == Status::Ok ? 1 : 0;
}

Status CTrackingEngine::ResetClip() {
    Record("ResetClip");
    m_state->ResetClip();
    return Status::Ok;
}

Status CTrackingEngine::GetClip(Region* region) {
    if (region == nullptr || !m_state->WorldToDevice().IsInvertible()) {
        return Status::InvalidParameter;
    }
    *region = m_state->WorldClip();
    return Status::Ok;
}

Status CTrackingEngine::SetClip(const GraphicsPath* path, CombineMode mode) {
    Record("SetClip", path, mode);
    if (path == nullptr || !IsFinite(*path) || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    return m_state->CombineClip(Region::Shape{*path}, mode);
}

Status CTrackingEngine::SetClip(const Region* region, CombineMode mode) {
    Record("SetClip", region, mode);
    if (region == nullptr || !IsFinite(*region) || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    return m_state->CombineClip(*region, mode);
}

Status CTrackingEngine::SetClip(const RectF& rect, CombineMode mode) {
    Record("SetClip", rect, mode);
    if (!IsFinite(rect) || !IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    return m_state->CombineClip(Region::Shape{rect}, mode);
}

Status CTrackingEngine::SetClip(Region* region, CombineMode mode) {
    return SetClip(static_cast<const Region*>(region), mode);
}

Status CTrackingEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const RectF& layout, const StringFormat* format, RectF* bounds,
                                      std::int32_t* charactersFitted, std::int32_t* linesFilled) {
    if (text == nullptr || font == nullptr || !IsFinite(layout)) {
        return Status::InvalidParameter;
    }
    const std::wstring_view whole = TextOf(text, length);
    if (bounds != nullptr) {
        *bounds = TextBounds(whole, *font, layout, format == nullptr ? StringFormat{} : *format);
    }
    const std::vector<std::wstring_view> lines = SplitLines(whole);
    const std::size_t fitting =
        LinesThatFit(lines.size(), layout.Height, CStringUtil::MeasureFont(*font).LineHeight);
    if (charactersFitted != nullptr) {
        *charactersFitted = static_cast<std::int32_t>(CharactersIn(whole, lines, fitting));
    }
    if (linesFilled != nullptr) {
        *linesFilled = static_cast<std::int32_t>(whole.empty() ? 0 : fitting);
    }
    return Status::Ok;
}

Status CTrackingEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const PointF& origin, RectF* bounds) {
    return MeasureString(text, length, font, origin, nullptr, bounds);
}

Status CTrackingEngine::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                      const PointF& origin, const StringFormat* format, RectF* bounds) {
    return MeasureString(text, length, font, RectF{origin.X, origin.Y, 0.0F, 0.0F}, format, bounds, nullptr,
                         nullptr);
}

Status CTrackingEngine::SetTransform(const Matrix* matrix) {
    Record("SetTransform", matrix);
    return m_state->SetTransform(matrix);
}

Status CTrackingEngine::GetTransform(Matrix* matrix) {
    return m_state->GetTransform(matrix);
}

Status CTrackingEngine::TransformPoints(CoordinateSpace destination, CoordinateSpace source, PointF* points,
                                        std::int32_t count) {
    return m_state->TransformPoints(destination, source, points, count);
}

Status CTrackingEngine::TranslateTransform(float dx, float dy, MatrixOrder order) {
    Record("TranslateTransform", std::pair("dx", dx), std::pair("dy", dy), order);
    return m_state->Transform(Matrix::Translation(dx, dy), order);
}

Status CTrackingEngine::RotateTransform(float degrees, MatrixOrder order) {
    Record("RotateTransform", std::pair("degrees", degrees), order);
    return m_state->Transform(Matrix::Rotation(degrees), order);
}

Status CTrackingEngine::ScaleTransform(float sx, float sy, MatrixOrder order) {
    Record("ScaleTransform", std::pair("sx", sx), std::pair("sy", sy), order);
    return m_state->Transform(Matrix::Scale(sx, sy), order);
}

Status CTrackingEngine::ResetTransform() {
    Record("ResetTransform");
    m_state->ResetTransform();
    return Status::Ok;
}

float CTrackingEngine::GetPageScale() {
    return m_state->GetPageScale();
}

Unit CTrackingEngine::GetPageUnit() {
    return m_state->GetPageUnit();
}

Status CTrackingEngine::SetPageScale(float scale) {
    Record("SetPageScale", std::pair("scale", scale));
    return m_state->SetPageScale(scale);
}

Status CTrackingEngine::SetPageUnit(Unit unit) {
    Record("SetPageUnit", unit);
    return m_state->SetPageUnit(unit);
}

std::uint32_t CTrackingEngine::BeginContainer() {
    const std::uint32_t container = m_state->BeginContainer();
    Record("BeginContainer", std::pair("container", container));
    return container;
}

Status CTrackingEngine::EndContainer(std::uint32_t container) {
    Record("EndContainer", std::pair("container", container));
    return m_state->EndContainer(container);
}

Status CTrackingEngine::SetSmoothingMode(SmoothingMode mode) {
    Record("SetSmoothingMode", mode);
    if (!IsKnown(mode)) {
        return Status::InvalidParameter;
    }
    m_state->SetSmoothingMode(mode);
    return Status::Ok;
}

SmoothingMode CTrackingEngine::GetSmoothingMode() {
    return m_state->GetSmoothingMode();
}

SizeF CTrackingEngine::MeasureScriptText(const wchar_t* text, const Font* font) {
    return CStringUtil::MeasureWideString(TextOf(text, -1), font);
}

} // namespace penlode
