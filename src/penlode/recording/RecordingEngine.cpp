#include "penlode/recording/RecordingEngine.h"

#include "penlode/Units.h"
#include "penlode/engine/Drawings.h"
#include "penlode/engine/Finite.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <utility>

namespace penlode {
namespace {

using Value = RecordedCall::Value;

template <class T> Value ValueOf(const T* pointer) {
    return pointer == nullptr ? Value{} : Value{*pointer};
}

Value ListOf(const PointF* points, std::int32_t count) {
    return points == nullptr ? Value{} : std::vector<PointF>(points, points + std::max(count, 0));
}

std::wstring StringOf(const wchar_t* text, std::int32_t length) {
    return std::wstring(TextOf(text, length));
}

RectF BoxOf(const RectL& r) {
    return {static_cast<float>(r.Left), static_cast<float>(r.Top),
            static_cast<float>(r.Right) - static_cast<float>(r.Left),
            static_cast<float>(r.Bottom) - static_cast<float>(r.Top)};
}

/// The vertices, moved to where they are filled.
std::vector<PointF> PointsOf(const GradientMesh& mesh) {
    std::vector<PointF> points;
    for (const GradientVertex& v : mesh.Vertices) {
        points.push_back(mesh.Origin + PointF{static_cast<float>(v.X), static_cast<float>(v.Y)});
    }
    return points;
}

std::vector<Color> ColorsOf(const GradientMesh& mesh) {
    std::vector<Color> colors;
    for (const GradientVertex& v : mesh.Vertices) {
        colors.push_back(Color::FromArgb(v.Alpha >> 8U, v.Red >> 8U, v.Green >> 8U, v.Blue >> 8U));
    }
    return colors;
}

std::vector<std::uint32_t> IndicesOf(const GradientMesh& mesh) {
    std::vector<std::uint32_t> indices;
    for (const GradientRect& r : mesh.Rects) {
        indices.insert(indices.end(), {r.UpperLeft, r.LowerRight});
    }
    for (const GradientTriangle& t : mesh.Triangles) {
        indices.insert(indices.end(), {t.Vertex1, t.Vertex2, t.Vertex3});
    }
    return indices;
}

} // namespace

CRecordingEngine::CRecordingEngine() : CTrackingEngine(kMillimetresPerInch, kMillimetresPerInch) {}

std::string CRecordingEngine::Text(int decimals) const {
    std::string text;
    for (const RecordedCall& call : m_calls) {
        text += ToText(call, decimals) + "\n";
    }
    return text;
}

void CRecordingEngine::Record(const char* operation, std::vector<RecordedCall::Argument> arguments) {
    m_calls.push_back({operation, std::move(arguments)});
}

// What is recorded is checked, and nothing more.

Status CRecordingEngine::StrokeOutline(const Outline&, const Pen&) {
    return Status::Ok;
}

Status CRecordingEngine::FillOutline(const Outline&, const SolidBrush&) {
    return Status::Ok;
}

Status CRecordingEngine::StrokeDataLine(std::span<const PointF> points, const Pen&) {
    return AreFinite(points) ? Status::Ok : Status::InvalidParameter;
}

Status CRecordingEngine::PaintText(const TextRun&) {
    return Status::Ok;
}

Status CRecordingEngine::PaintImage(const ImagePart&) {
    return Status::Ok;
}

Status CRecordingEngine::PaintGradient(const GradientMesh&) {
    return Status::Ok;
}

Status CRecordingEngine::DrawRectangle(const Pen* pen, float x, float y, float width, float height) {
    Record("DrawRectangle", {{"pen", ValueOf(pen)}, {"rect", RectF{x, y, width, height}}});
    return CTrackingEngine::DrawRectangle(pen, x, y, width, height);
}

Status CRecordingEngine::DrawLines(const Pen* pen, const PointF* points, std::int32_t count) {
    Record("DrawLines", {{"pen", ValueOf(pen)}, {"points", ListOf(points, count)}});
    return CTrackingEngine::DrawLines(pen, points, count);
}

Status CRecordingEngine::DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) {
    Record("DrawLine", {{"pen", ValueOf(pen)}, {"from", PointF{x1, y1}}, {"to", PointF{x2, y2}}});
    return CTrackingEngine::DrawLine(pen, x1, y1, x2, y2);
}

Status CRecordingEngine::DrawArc(const Pen* pen, float x, float y, float width, float height,
                                 float startAngle, float sweepAngle) {
    Record("DrawArc", {{"pen", ValueOf(pen)},
                       {"rect", RectF{x, y, width, height}},
                       {"start", startAngle},
                       {"sweep", sweepAngle}});
    return CTrackingEngine::DrawArc(pen, x, y, width, height, startAngle, sweepAngle);
}

Status CRecordingEngine::DrawEllipse(const Pen* pen, float x, float y, float width, float height) {
    Record("DrawEllipse", {{"pen", ValueOf(pen)}, {"rect", RectF{x, y, width, height}}});
    return CTrackingEngine::DrawEllipse(pen, x, y, width, height);
}

Status CRecordingEngine::DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) {
    Record("DrawPie", {{"pen", ValueOf(pen)}, {"rect", rect}, {"start", startAngle}, {"sweep", sweepAngle}});
    return CTrackingEngine::DrawPie(pen, rect, startAngle, sweepAngle);
}

Status CRecordingEngine::DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) {
    Record("DrawPolygon", {{"pen", ValueOf(pen)}, {"points", ListOf(points, count)}});
    return CTrackingEngine::DrawPolygon(pen, points, count);
}

Status CRecordingEngine::DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) {
    Record("DrawCurve", {{"pen", ValueOf(pen)}, {"points", ListOf(points, count)}});
    return CTrackingEngine::DrawCurve(pen, points, count);
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const PointF& origin, const StringFormat* format,
                                    const SolidBrush* brush) {
    Record("DrawString", {{"text", StringOf(text, length)},
                          {"font", ValueOf(font)},
                          {"point", origin},
                          {"align", ValueOf(format)},
                          {"brush", ValueOf(brush)}});
    return CTrackingEngine::DrawString(text, length, font, origin, format, brush);
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const PointF& origin, const SolidBrush* brush) {
    Record("DrawString", {{"text", StringOf(text, length)},
                          {"font", ValueOf(font)},
                          {"point", origin},
                          {"brush", ValueOf(brush)}});
    return CTrackingEngine::DrawString(text, length, font, origin, brush);
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const RectF& layout, const StringFormat* format,
                                    const SolidBrush* brush) {
    Record("DrawString", {{"text", StringOf(text, length)},
                          {"font", ValueOf(font)},
                          {"rect", layout},
                          {"align", ValueOf(format)},
                          {"brush", ValueOf(brush)}});
    return CTrackingEngine::DrawString(text, length, font, layout, format, brush);
}

Status CRecordingEngine::DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                                   float sourceWidth, float sourceHeight, Unit sourceUnit,
                                   const ImageAttributes* attributes, DrawImageAbort abort,
                                   void* callbackData) {
    Record("DrawImage", {{"image", ValueOf(image)},
                         {"rect", destination},
                         {"source", RectF{sourceX, sourceY, sourceWidth, sourceHeight}},
                         {"unit", sourceUnit},
                         {"colorMatrix", ValueOf(attributes)}});
    return CTrackingEngine::DrawImage(image, destination, sourceX, sourceY, sourceWidth, sourceHeight,
                                      sourceUnit, attributes, abort, callbackData);
}

Status CRecordingEngine::DrawImage(const Image* image, const RectF& destination) {
    Record("DrawImage", {{"image", ValueOf(image)}, {"rect", destination}});
    return CTrackingEngine::DrawImage(image, destination);
}

Status CRecordingEngine::ResetClip() {
    Record("ResetClip");
    return CTrackingEngine::ResetClip();
}

Status CRecordingEngine::SetClip(const GraphicsPath* path, CombineMode mode) {
    Record("SetClip", {{"path", ValueOf(path)}, {"mode", mode}});
    return CTrackingEngine::SetClip(path, mode);
}

Status CRecordingEngine::SetClip(const Region* region, CombineMode mode) {
    Record("SetClip", {{"region", ValueOf(region)}, {"mode", mode}});
    return CTrackingEngine::SetClip(region, mode);
}

Status CRecordingEngine::SetClip(const RectF& rect, CombineMode mode) {
    Record("SetClip", {{"rect", rect}, {"mode", mode}});
    return CTrackingEngine::SetClip(rect, mode);
}

Status CRecordingEngine::FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) {
    Record("FillRectangle", {{"brush", ValueOf(brush)}, {"rect", RectF{x, y, width, height}}});
    return CTrackingEngine::FillRectangle(brush, x, y, width, height);
}

Status CRecordingEngine::FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) {
    Record("FillEllipse", {{"brush", ValueOf(brush)}, {"rect", RectF{x, y, width, height}}});
    return CTrackingEngine::FillEllipse(brush, x, y, width, height);
}

Status CRecordingEngine::FillPie(const SolidBrush* brush, const RectF& rect, float startAngle,
                                 float sweepAngle) {
    Record("FillPie",
           {{"brush", ValueOf(brush)}, {"rect", rect}, {"start", startAngle}, {"sweep", sweepAngle}});
    return CTrackingEngine::FillPie(brush, rect, startAngle, sweepAngle);
}

Status CRecordingEngine::FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) {
    Record("FillPolygon", {{"brush", ValueOf(brush)}, {"points", ListOf(points, count)}});
    return CTrackingEngine::FillPolygon(brush, points, count);
}

Status CRecordingEngine::FillPath(const SolidBrush* brush, const GraphicsPath* path) {
    Record("FillPath", {{"brush", ValueOf(brush)}, {"path", ValueOf(path)}});
    return CTrackingEngine::FillPath(brush, path);
}

Status CRecordingEngine::SetTransform(const Matrix* matrix) {
    Record("SetTransform", {{"matrix", ValueOf(matrix)}});
    return CTrackingEngine::SetTransform(matrix);
}

Status CRecordingEngine::TranslateTransform(float dx, float dy, MatrixOrder order) {
    Record("TranslateTransform", {{"dx", dx}, {"dy", dy}, {"order", order}});
    return CTrackingEngine::TranslateTransform(dx, dy, order);
}

Status CRecordingEngine::RotateTransform(float degrees, MatrixOrder order) {
    Record("RotateTransform", {{"degrees", degrees}, {"order", order}});
    return CTrackingEngine::RotateTransform(degrees, order);
}

Status CRecordingEngine::ScaleTransform(float sx, float sy, MatrixOrder order) {
    Record("ScaleTransform", {{"sx", sx}, {"sy", sy}, {"order", order}});
    return CTrackingEngine::ScaleTransform(sx, sy, order);
}

Status CRecordingEngine::ResetTransform() {
    Record("ResetTransform");
    return CTrackingEngine::ResetTransform();
}

Status CRecordingEngine::SetPageScale(float scale) {
    Record("SetPageScale", {{"scale", scale}});
    return CTrackingEngine::SetPageScale(scale);
}

Status CRecordingEngine::SetPageUnit(Unit unit) {
    Record("SetPageUnit", {{"unit", unit}});
    return CTrackingEngine::SetPageUnit(unit);
}

std::uint32_t CRecordingEngine::BeginContainer() {
    const std::uint32_t container = CTrackingEngine::BeginContainer();
    Record("BeginContainer", {{"container", container}});
    return container;
}

Status CRecordingEngine::EndContainer(std::uint32_t container) {
    Record("EndContainer", {{"container", container}});
    return CTrackingEngine::EndContainer(container);
}

Status CRecordingEngine::SetSmoothingMode(SmoothingMode mode) {
    Record("SetSmoothingMode", {{"smoothing", mode}});
    return CTrackingEngine::SetSmoothingMode(mode);
}

std::int32_t CRecordingEngine::GradientFill(const RectL& bounds, const PointF& origin,
                                            const GradientVertex* vertices, std::uint32_t vertexCount,
                                            const void* mesh, std::uint32_t meshCount, GradientMode mode) {
    const GradientMesh whole = MeshOf(bounds, origin, vertices, vertexCount, mesh, meshCount, mode);
    Record("GradientFill", {{"rect", BoxOf(bounds)},
                            {"points", PointsOf(whole)},
                            {"colors", ColorsOf(whole)},
                            {"mesh", IndicesOf(whole)},
                            {"mode", static_cast<std::uint32_t>(mode)}});
    return CTrackingEngine::GradientFill(bounds, origin, vertices, vertexCount, mesh, meshCount, mode);
}

void CRecordingEngine::DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                                      const SolidBrush* brush) {
    Record("DrawScriptText", {{"text", StringOf(text, -1)},
                              {"font", ValueOf(font)},
                              {"point", PointF{x, y}},
                              {"brush", ValueOf(brush)}});
    CTrackingEngine::DrawScriptText(text, font, x, y, brush);
}

} // namespace penlode
