#include "penlode/recording/RecordingEngine.h"

#include "penlode/TextPlacement.h"
#include "penlode/Units.h"

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

Value ToValue(const std::vector<PointF>& value) {
    return value;
}

template <class T> Value ToValue(const T* pointer) {
    return pointer == nullptr ? Value{} : Value{*pointer};
}

std::vector<PointF> PointList(const PointF* points, std::int32_t count) {
    return points == nullptr || count <= 0 ? std::vector<PointF>{}
                                           : std::vector<PointF>(points, points + count);
}

/// Vertices of a gradient, moved to where they are filled.
std::vector<PointF> VertexList(const GradientVertex* vertices, std::uint32_t count, PointF origin) {
    std::vector<PointF> points;
    for (const GradientVertex& vertex : std::span(vertices, vertices == nullptr ? 0 : count)) {
        points.push_back(origin + PointF{static_cast<float>(vertex.X), static_cast<float>(vertex.Y)});
    }
    return points;
}

} // namespace

template <class... Arguments>
Status CRecordingEngine::Record(const char* operation, const Arguments&... arguments) {
    const bool complete = (... && [](const auto& argument) {
        if constexpr (std::is_pointer_v<std::decay_t<decltype(argument)>>) {
            return argument != nullptr;
        } else {
            return true;
        }
    }(arguments));
    m_calls.push_back({operation, {ToValue(arguments)...}});
    return complete ? Status::Ok : Status::InvalidParameter;
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
    return Record("DrawRectangle", pen, RectF{x, y, width, height});
}

Status CRecordingEngine::DrawLines(const Pen* pen, const PointF* points, std::int32_t count) {
    return Record("DrawLines", pen, PointList(points, count));
}

Status CRecordingEngine::DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) {
    return Record("DrawLine", pen, PointF{x1, y1}, PointF{x2, y2});
}

Status CRecordingEngine::DrawArc(const Pen* pen, float x, float y, float width, float height,
                                 float startAngle, float sweepAngle) {
    return Record("DrawArc", pen, RectF{x, y, width, height}, startAngle, sweepAngle);
}

Status CRecordingEngine::DrawEllipse(const Pen* pen, float x, float y, float width, float height) {
    return Record("DrawEllipse", pen, RectF{x, y, width, height});
}

Status CRecordingEngine::DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) {
    return Record("DrawPie", pen, rect, startAngle, sweepAngle);
}

Status CRecordingEngine::DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) {
    return Record("DrawPolygon", pen, PointList(points, count));
}

Status CRecordingEngine::DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) {
    return Record("DrawCurve", pen, PointList(points, count));
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const PointF& origin, const StringFormat* format,
                                    const SolidBrush* brush) {
    return Record("DrawString", TextOf(text, length), font, origin, format, brush);
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const PointF& origin, const SolidBrush* brush) {
    return Record("DrawString", TextOf(text, length), font, origin, brush);
}

Status CRecordingEngine::DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                                    const RectF& layout, const StringFormat* format,
                                    const SolidBrush* brush) {
    return Record("DrawString", TextOf(text, length), font, layout, format, brush);
}

Status CRecordingEngine::DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                                   float sourceWidth, float sourceHeight, Unit sourceUnit,
                                   const ImageAttributes*, DrawImageAbort, void*) {
    return Record("DrawImage", image, destination, RectF{sourceX, sourceY, sourceWidth, sourceHeight},
                  sourceUnit);
}

Status CRecordingEngine::DrawImage(const Image* image, const RectF& destination) {
    return Record("DrawImage", image, destination);
}

Status CRecordingEngine::ResetClip() {
    CTrackingEngine::ResetClip();
    return Record("ResetClip");
}

Status CRecordingEngine::SetClip(const GraphicsPath* path, CombineMode mode) {
    CTrackingEngine::SetClip(path, mode);
    return Record("SetClip", path, mode);
}

Status CRecordingEngine::SetClip(const Region* region, CombineMode mode) {
    CTrackingEngine::SetClip(region, mode);
    return Record("SetClip", region, mode);
}

Status CRecordingEngine::SetClip(const RectF& rect, CombineMode mode) {
    CTrackingEngine::SetClip(rect, mode);
    return Record("SetClip", rect, mode);
}

Status CRecordingEngine::FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) {
    return Record("FillRectangle", brush, RectF{x, y, width, height});
}

Status CRecordingEngine::FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) {
    return Record("FillEllipse", brush, RectF{x, y, width, height});
}

Status CRecordingEngine::FillPie(const SolidBrush* brush, const RectF& rect, float startAngle,
                                 float sweepAngle) {
    return Record("FillPie", brush, rect, startAngle, sweepAngle);
}

Status CRecordingEngine::FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) {
    return Record("FillPolygon", brush, PointList(points, count));
}

Status CRecordingEngine::FillPath(const SolidBrush* brush, const GraphicsPath* path) {
    return Record("FillPath", brush, path);
}

Status CRecordingEngine::SetTransform(const Matrix* matrix) {
    CTrackingEngine::SetTransform(matrix);
    return Record("SetTransform", matrix);
}

Status CRecordingEngine::TranslateTransform(float dx, float dy, MatrixOrder order) {
    CTrackingEngine::TranslateTransform(dx, dy, order);
    return Record("TranslateTransform", dx, dy, order);
}

Status CRecordingEngine::RotateTransform(float degrees, MatrixOrder order) {
    CTrackingEngine::RotateTransform(degrees, order);
    return Record("RotateTransform", degrees, order);
}

Status CRecordingEngine::ScaleTransform(float sx, float sy, MatrixOrder order) {
    CTrackingEngine::ScaleTransform(sx, sy, order);
    return Record("ScaleTransform", sx, sy, order);
}

Status CRecordingEngine::ResetTransform() {
    CTrackingEngine::ResetTransform();
    return Record("ResetTransform");
}

Status CRecordingEngine::SetPageScale(float scale) {
    CTrackingEngine::SetPageScale(scale);
    return Record("SetPageScale", scale);
}

Status CRecordingEngine::SetPageUnit(Unit unit) {
    CTrackingEngine::SetPageUnit(unit);
    return Record("SetPageUnit", unit);
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
    CTrackingEngine::SetSmoothingMode(mode);
    return Record("SetSmoothingMode", mode);
}

std::int32_t CRecordingEngine::GradientFill(const RectL& bounds, const PointF& origin,
                                            const GradientVertex* vertices, std::uint32_t vertexCount,
                                            const void* mesh, std::uint32_t meshCount, GradientMode mode) {
    const RectF box{static_cast<float>(bounds.Left), static_cast<float>(bounds.Top),
                    static_cast<float>(bounds.Right) - static_cast<float>(bounds.Left),
                    static_cast<float>(bounds.Bottom) - static_cast<float>(bounds.Top)};
    Record("GradientFill", box, VertexList(vertices, vertexCount, origin), meshCount,
           static_cast<std::uint32_t>(mode));
    return vertices != nullptr && mesh != nullptr ? 1 : 0;
}

void CRecordingEngine::DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                                      const SolidBrush* brush) {
    Record("DrawScriptText", TextOf(text, -1), font, PointF{x, y}, brush);
}

} // namespace penlode
