#include "penlode/recording/RecordingEngine.h"

#include "penlode/Units.h"
#include "penlode/engine/EngineArguments.h"
#include "penlode/engine/GradientVertices.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace penlode {
namespace {

using Value = RecordedCall::Value;

Value ToValue(std::uint32_t value) {
    return value;
}

Value ToValue(float value) {
    return value;
}

Value ToValue(CombineMode value) {
    return value;
}

Value ToValue(MatrixOrder value) {
    return value;
}

Value ToValue(Unit value) {
    return value;
}

Value ToValue(SmoothingMode value) {
    return value;
}

Value ToValue(const PointF& value) {
    return value;
}

Value ToValue(const RectF& value) {
    return value;
}

Value ToValue(std::wstring_view value) {
    return std::wstring(value);
}

template <class T> Value ToValue(const std::vector<T>& value) {
    return value;
}

template <class T> Value ToValue(const T* pointer) {
    return pointer == nullptr ? Value{} : Value{*pointer};
}

/// A list of points as operations get it.
struct PointList {
    const PointF* Points;
    std::int32_t Count;
};

Value ToValue(const PointList& list) {
    if (list.Points == nullptr) {
        return {};
    }
    return std::vector<PointF>(list.Points, list.Points + std::max(list.Count, 0));
}

bool IsValid(float value) {
    return std::isfinite(value);
}

bool IsValid(const PointF& point) {
    return AreFinite(point.X, point.Y);
}

bool IsValid(const RectF& rect) {
    return IsFinite(rect);
}

bool IsValid(const PointList& list) {
    return AreUsable(list.Points, list.Count);
}

/// A text that is null has no place in memory, unlike one that is empty.
bool IsValid(std::wstring_view text) {
    return text.data() != nullptr;
}

bool IsValid(const Pen* pen) {
    return IsUsable(pen);
}

bool IsValid(const SolidBrush* brush) {
    return brush != nullptr;
}

bool IsValid(const Font* font) {
    return font != nullptr && IsDrawable(*font);
}

bool IsValid(const GraphicsPath* path) {
    return path != nullptr && IsFinite(*path);
}

bool IsValid(const Image* image) {
    return image != nullptr && image->IsDrawable();
}

bool IsValid(Unit sourceUnit) {
    return sourceUnit > Unit::World && sourceUnit <= Unit::Millimeter;
}

/// May be missing.
bool IsValid(const StringFormat*) {
    return true;
}

bool IsValid(const ImageAttributes*) {
    return true;
}

/// Vertices of a gradient as they are recorded: moved to where they are filled, and their colours.
struct Vertices {
    std::vector<PointF> Points;
    std::vector<Color> Colors;
};

Vertices VerticesOf(std::span<const GradientVertex> vertices, PointF origin) {
    Vertices recorded;
    for (const GradientVertex& v : vertices) {
        recorded.Points.push_back(origin + PointF{static_cast<float>(v.X), static_cast<float>(v.Y)});
        recorded.Colors.push_back(Color::FromArgb(v.Alpha >> 8U, v.Red >> 8U, v.Green >> 8U, v.Blue >> 8U));
    }
    return recorded;
}

/// A gradient's mesh: its vertices' indices in order, and whether they are all there.
struct Mesh {
    std::vector<std::uint32_t> Indices;
    bool IsSound = false;
};

Mesh MeshOf(std::span<const GradientRect> rects, std::size_t vertexCount) {
    Mesh mesh{{}, AreVerticesThere(rects, vertexCount)};
    for (const GradientRect& r : rects) {
        mesh.Indices.insert(mesh.Indices.end(), {r.UpperLeft, r.LowerRight});
    }
    return mesh;
}

Mesh MeshOf(std::span<const GradientTriangle> triangles, std::size_t vertexCount) {
    Mesh mesh{{}, AreVerticesThere(triangles, vertexCount)};
    for (const GradientTriangle& t : triangles) {
        mesh.Indices.insert(mesh.Indices.end(), {t.Vertex1, t.Vertex2, t.Vertex3});
    }
    return mesh;
}

/// An unknown mode says nothing of what the entries are.
Mesh MeshOf(const void* mesh, std::uint32_t count, GradientMode mode, std::size_t vertexCount) {
    if (mesh == nullptr || mode > GradientMode::Triangle) {
        return {};
    }
    return mode == GradientMode::Triangle
               ? MeshOf(std::span(static_cast<const GradientTriangle*>(mesh), count), vertexCount)
               : MeshOf(std::span(static_cast<const GradientRect*>(mesh), count), vertexCount);
}

} // namespace

template <class... Arguments>
void CRecordingEngine::Record(const char* operation, const Arguments&... arguments) {
    m_calls.push_back({operation, {ToValue(arguments)...}});
}

template <class... Arguments>
Status CRecordingEngine::RecordDrawing(const char* operation, const Arguments&... arguments) {
    Record(operation, arguments...);
    return (... && IsValid(arguments)) ? Status::Ok : Status::InvalidParameter;
}

CRecordingEngine::CRecordingEngine() : CTrackingEngine(kMillimetresPerInch, kMillimetresPerInch) {}

std::string CRecordingEngine::Text(int decimals) const {
    std::string text;
    for (const RecordedCall& call : m_calls) {
        text += ToText(call, decimals) + "\n";
    }
    return text;
}

Status CRecordingEngine::DrawRectangle(const Pen* pen, float x, float y, float width, float height) {
    return RecordDrawing("DrawRectangle", pen, RectF{x, y, width, height});
}

Status CRecordingEngine::DrawLines(const Pen* pen, const PointF* points, std::int32_t count) {
    return RecordDrawing("DrawLines", pen, PointList{points, count});
}

Status CRecordingEngine::DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) {
    return RecordDrawing("DrawLine", pen, PointF{x1, y1}, PointF{x2, y2});
}

Status CRecordingEngine::DrawArc(const Pen* pen, float x, float y, float width, float height,
                                 float startAngle, float sweepAngle) {
    return RecordDrawing("DrawArc", pen, RectF{x, y, width, height}, startAngle, sweepAngle);
}

Status CRecordingEngine::DrawEllipse(const Pen* pen, float x, float y, float width, float height) {
    return RecordDrawing("DrawEllipse", pen, RectF{x, y, width, height});
}

Status CRecordingEngine::DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) {
    return RecordDrawing("DrawPie", pen, rect, startAngle, sweepAngle);
}

Status CRecordingEngine::DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) {
    return RecordDrawing("DrawPolygon", pen, PointList{points, count});
}

Status CRecordingEngine::DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) {
    return RecordDrawing("DrawCurve", pen, PointList{points, count});
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const PointF& origin, const StringFormat* format,
                                    const SolidBrush* brush) {
    return RecordDrawing("DrawString", TextOf(text, length), font, origin, format, brush);
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const PointF& origin, const SolidBrush* brush) {
    return RecordDrawing("DrawString", TextOf(text, length), font, origin, brush);
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const RectF& layout, const StringFormat* format,
                                    const SolidBrush* brush) {
    return RecordDrawing("DrawString", TextOf(text, length), font, layout, format, brush);
}

Status CRecordingEngine::DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                                   float sourceWidth, float sourceHeight, Unit sourceUnit,
                                   const ImageAttributes* attributes, DrawImageAbort, void*) {
    return RecordDrawing("DrawImage", image, destination, RectF{sourceX, sourceY, sourceWidth, sourceHeight},
                         sourceUnit, attributes);
}

Status CRecordingEngine::DrawImage(const Image* image, const RectF& destination) {
    return RecordDrawing("DrawImage", image, destination);
}

Status CRecordingEngine::ResetClip() {
    Record("ResetClip");
    return CTrackingEngine::ResetClip();
}

Status CRecordingEngine::SetClip(const GraphicsPath* path, CombineMode mode) {
    Record("SetClip", path, mode);
    return CTrackingEngine::SetClip(path, mode);
}

Status CRecordingEngine::SetClip(const Region* region, CombineMode mode) {
    Record("SetClip", region, mode);
    return CTrackingEngine::SetClip(region, mode);
}

Status CRecordingEngine::SetClip(const RectF& rect, CombineMode mode) {
    Record("SetClip", rect, mode);
    return CTrackingEngine::SetClip(rect, mode);
}

Status CRecordingEngine::FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) {
    return RecordDrawing("FillRectangle", brush, RectF{x, y, width, height});
}

Status CRecordingEngine::FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) {
    return RecordDrawing("FillEllipse", brush, RectF{x, y, width, height});
}

Status CRecordingEngine::FillPie(const SolidBrush* brush, const RectF& rect, float startAngle,
                                 float sweepAngle) {
    return RecordDrawing("FillPie", brush, rect, startAngle, sweepAngle);
}

Status CRecordingEngine::FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) {
    return RecordDrawing("FillPolygon", brush, PointList{points, count});
}

Status CRecordingEngine::FillPath(const SolidBrush* brush, const GraphicsPath* path) {
    return RecordDrawing("FillPath", brush, path);
}

Status CRecordingEngine::SetTransform(const Matrix* matrix) {
    Record("SetTransform", matrix);
    return CTrackingEngine::SetTransform(matrix);
}

Status CRecordingEngine::TranslateTransform(float dx, float dy, MatrixOrder order) {
    Record("TranslateTransform", dx, dy, order);
    return CTrackingEngine::TranslateTransform(dx, dy, order);
}

Status CRecordingEngine::RotateTransform(float degrees, MatrixOrder order) {
    Record("RotateTransform", degrees, order);
    return CTrackingEngine::RotateTransform(degrees, order);
}

Status CRecordingEngine::ScaleTransform(float sx, float sy, MatrixOrder order) {
    Record("ScaleTransform", sx, sy, order);
    return CTrackingEngine::ScaleTransform(sx, sy, order);
}

Status CRecordingEngine::ResetTransform() {
    Record("ResetTransform");
    return CTrackingEngine::ResetTransform();
}

Status CRecordingEngine::SetPageScale(float scale) {
    Record("SetPageScale", scale);
    return CTrackingEngine::SetPageScale(scale);
}

Status CRecordingEngine::SetPageUnit(Unit unit) {
    Record("SetPageUnit", unit);
    return CTrackingEngine::SetPageUnit(unit);
}

std::uint32_t CRecordingEngine::BeginContainer() {
    const std::uint32_t container = CTrackingEngine::BeginContainer();
    Record("BeginContainer", container);
    return container;
}

Status CRecordingEngine::EndContainer(std::uint32_t container) {
    Record("EndContainer", container);
    return CTrackingEngine::EndContainer(container);
}

Status CRecordingEngine::SetSmoothingMode(SmoothingMode mode) {
    Record("SetSmoothingMode", mode);
    return CTrackingEngine::SetSmoothingMode(mode);
}

std::int32_t CRecordingEngine::GradientFill(const RectL& bounds, const PointF& origin,
                                            const GradientVertex* vertices, std::uint32_t vertexCount,
                                            const void* mesh, std::uint32_t meshCount, GradientMode mode) {
    const RectF box{static_cast<float>(bounds.Left), static_cast<float>(bounds.Top),
                    static_cast<float>(bounds.Right) - static_cast<float>(bounds.Left),
                    static_cast<float>(bounds.Bottom) - static_cast<float>(bounds.Top)};
    const std::uint32_t count = vertices == nullptr ? 0 : vertexCount;
    const Vertices corners = VerticesOf({vertices, count}, origin);
    const Mesh entries = MeshOf(mesh, meshCount, mode, count);
    Record("GradientFill", box, corners.Points, corners.Colors, entries.Indices,
           static_cast<std::uint32_t>(mode));
    return vertices != nullptr && entries.IsSound && IsValid(origin) ? 1 : 0;
}

void CRecordingEngine::DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                                      const SolidBrush* brush) {
    Record("DrawScriptText", TextOf(text, -1), font, PointF{x, y}, brush);
}

} // namespace penlode
