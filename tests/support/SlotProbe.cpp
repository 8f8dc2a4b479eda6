#include "support/SlotProbe.h"

#include <type_traits>

using namespace penlode;

namespace {

const char* const kSlots[] = {
    "DrawRectangle",
    "DrawLines",
    "DrawLine",
    "DrawArc",
    "DrawEllipse",
    "DrawPie",
    "DrawPolygon",
    "DrawCurve",
    "DrawString (point, format)",
    "DrawString (point)",
    "DrawString (box)",
    "DrawImage (part)",
    "DrawImage (whole)",
    "ResetClip",
    "GetClip",
    "SetClip (path)",
    "SetClip (constant region)",
    "SetClip (box)",
    "FillRectangle",
    "FillEllipse",
    "FillPie",
    "FillPolygon",
    "FillPath",
    "MeasureString (box)",
    "MeasureString (point)",
    "MeasureString (point, format)",
    "SetTransform",
    "GetTransform",
    "TransformPoints",
    "TranslateTransform",
    "RotateTransform",
    "ScaleTransform",
    "ResetTransform",
    "GetPageScale",
    "GetPageUnit",
    "SetPageScale",
    "SetPageUnit",
    "BeginContainer",
    "EndContainer",
    "SetSmoothingMode",
    "GetSmoothingMode",
    "GradientFill",
    "MeasureScriptText",
    "DrawScriptText",
    "SetClip (region)",
};

bool IsRefusal(Status status) {
    return status != Status::Ok;
}

bool IsRefusal(std::int32_t done) {
    return done == 0;
}

template <class Answer> bool IsRefusal(const Answer&) {
    return false;
}

} // namespace

std::set<std::string> AllSlots() {
    return {std::begin(kSlots), std::end(kSlots)};
}

template <class Operation> auto SlotProbe::Use(const char* slot, const Operation& operation) {
    using Answer = decltype(operation());
    m_used.insert(slot);
    if (slot == m_leftOut) {
        return Answer();
    }
    if constexpr (std::is_void_v<Answer>) {
        operation();
    } else {
        const Answer answer = operation();
        if (IsRefusal(answer)) {
            m_refused.insert(slot);
        }
        return answer;
    }
}

Status SlotProbe::DrawRectangle(const Pen* pen, float x, float y, float width, float height) {
    return Use("DrawRectangle", [&] { return m_engine.DrawRectangle(pen, x, y, width, height); });
}

Status SlotProbe::DrawLines(const Pen* pen, const PointF* points, std::int32_t count) {
    return Use("DrawLines", [&] { return m_engine.DrawLines(pen, points, count); });
}

Status SlotProbe::DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) {
    return Use("DrawLine", [&] { return m_engine.DrawLine(pen, x1, y1, x2, y2); });
}

Status SlotProbe::DrawArc(const Pen* pen, float x, float y, float width, float height, float startAngle,
                          float sweepAngle) {
    return Use("DrawArc", [&] { return m_engine.DrawArc(pen, x, y, width, height, startAngle, sweepAngle); });
}

Status SlotProbe::DrawEllipse(const Pen* pen, float x, float y, float width, float height) {
    return Use("DrawEllipse", [&] { return m_engine.DrawEllipse(pen, x, y, width, height); });
}

Status SlotProbe::DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) {
    return Use("DrawPie", [&] { return m_engine.DrawPie(pen, rect, startAngle, sweepAngle); });
}

Status SlotProbe::DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) {
    return Use("DrawPolygon", [&] { return m_engine.DrawPolygon(pen, points, count); });
}

Status SlotProbe::DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) {
    return Use("DrawCurve", [&] { return m_engine.DrawCurve(pen, points, count); });
}

Status SlotProbe::DrawString(const wchar_t* text, std::int32_t length, const Font* font, const PointF& origin,
                             const StringFormat* format, const SolidBrush* brush) {
    return Use("DrawString (point, format)",
               [&] { return m_engine.DrawString(text, length, font, origin, format, brush); });
}

Status SlotProbe::DrawString(const wchar_t* text, std::int32_t length, const Font* font, const PointF& origin,
                             const SolidBrush* brush) {
    return Use("DrawString (point)", [&] { return m_engine.DrawString(text, length, font, origin, brush); });
}

Status SlotProbe::DrawString(const wchar_t* text, std::int32_t length, const Font* font, const RectF& layout,
                             const StringFormat* format, const SolidBrush* brush) {
    return Use("DrawString (box)",
               [&] { return m_engine.DrawString(text, length, font, layout, format, brush); });
}

Status SlotProbe::DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                            float sourceWidth, float sourceHeight, Unit sourceUnit,
                            const ImageAttributes* attributes, DrawImageAbort abort, void* callbackData) {
    return Use("DrawImage (part)", [&] {
        return m_engine.DrawImage(image, destination, sourceX, sourceY, sourceWidth, sourceHeight, sourceUnit,
                                  attributes, abort, callbackData);
    });
}

Status SlotProbe::DrawImage(const Image* image, const RectF& destination) {
    return Use("DrawImage (whole)", [&] { return m_engine.DrawImage(image, destination); });
}

Status SlotProbe::ResetClip() {
    return Use("ResetClip", [&] { return m_engine.ResetClip(); });
}

Status SlotProbe::GetClip(Region* region) {
    return Use("GetClip", [&] { return m_engine.GetClip(region); });
}

Status SlotProbe::SetClip(const GraphicsPath* path, CombineMode mode) {
    return Use("SetClip (path)", [&] { return m_engine.SetClip(path, mode); });
}

Status SlotProbe::SetClip(const Region* region, CombineMode mode) {
    return Use("SetClip (constant region)", [&] { return m_engine.SetClip(region, mode); });
}

Status SlotProbe::SetClip(const RectF& rect, CombineMode mode) {
    return Use("SetClip (box)", [&] { return m_engine.SetClip(rect, mode); });
}

Status SlotProbe::FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) {
    return Use("FillRectangle", [&] { return m_engine.FillRectangle(brush, x, y, width, height); });
}

Status SlotProbe::FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) {
    return Use("FillEllipse", [&] { return m_engine.FillEllipse(brush, x, y, width, height); });
}

Status SlotProbe::FillPie(const SolidBrush* brush, const RectF& rect, float startAngle, float sweepAngle) {
    return Use("FillPie", [&] { return m_engine.FillPie(brush, rect, startAngle, sweepAngle); });
}

Status SlotProbe::FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) {
    return Use("FillPolygon", [&] { return m_engine.FillPolygon(brush, points, count); });
}

Status SlotProbe::FillPath(const SolidBrush* brush, const GraphicsPath* path) {
    return Use("FillPath", [&] { return m_engine.FillPath(brush, path); });
}

Status SlotProbe::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                const RectF& layout, const StringFormat* format, RectF* bounds,
                                std::int32_t* charactersFitted, std::int32_t* linesFilled) {
    return Use("MeasureString (box)", [&] {
        return m_engine.MeasureString(text, length, font, layout, format, bounds, charactersFitted,
                                      linesFilled);
    });
}

Status SlotProbe::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                const PointF& origin, RectF* bounds) {
    return Use("MeasureString (point)",
               [&] { return m_engine.MeasureString(text, length, font, origin, bounds); });
}

Status SlotProbe::MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                const PointF& origin, const StringFormat* format, RectF* bounds) {
    return Use("MeasureString (point, format)",
               [&] { return m_engine.MeasureString(text, length, font, origin, format, bounds); });
}

Status SlotProbe::SetTransform(const Matrix* matrix) {
    return Use("SetTransform", [&] { return m_engine.SetTransform(matrix); });
}

Status SlotProbe::GetTransform(Matrix* matrix) {
    return Use("GetTransform", [&] { return m_engine.GetTransform(matrix); });
}

Status SlotProbe::TransformPoints(CoordinateSpace destination, CoordinateSpace source, PointF* points,
                                  std::int32_t count) {
    return Use("TransformPoints",
               [&] { return m_engine.TransformPoints(destination, source, points, count); });
}

Status SlotProbe::TranslateTransform(float dx, float dy, MatrixOrder order) {
    return Use("TranslateTransform", [&] { return m_engine.TranslateTransform(dx, dy, order); });
}

Status SlotProbe::RotateTransform(float degrees, MatrixOrder order) {
    return Use("RotateTransform", [&] { return m_engine.RotateTransform(degrees, order); });
}

Status SlotProbe::ScaleTransform(float sx, float sy, MatrixOrder order) {
    return Use("ScaleTransform", [&] { return m_engine.ScaleTransform(sx, sy, order); });
}

Status SlotProbe::ResetTransform() {
    return Use("ResetTransform", [&] { return m_engine.ResetTransform(); });
}

float SlotProbe::GetPageScale() {
    return Use("GetPageScale", [&] { return m_engine.GetPageScale(); });
}

Unit SlotProbe::GetPageUnit() {
    return Use("GetPageUnit", [&] { return m_engine.GetPageUnit(); });
}

Status SlotProbe::SetPageScale(float scale) {
    return Use("SetPageScale", [&] { return m_engine.SetPageScale(scale); });
}

Status SlotProbe::SetPageUnit(Unit unit) {
    return Use("SetPageUnit", [&] { return m_engine.SetPageUnit(unit); });
}

std::uint32_t SlotProbe::BeginContainer() {
    return Use("BeginContainer", [&] { return m_engine.BeginContainer(); });
}

Status SlotProbe::EndContainer(std::uint32_t container) {
    return Use("EndContainer", [&] { return m_engine.EndContainer(container); });
}

Status SlotProbe::SetSmoothingMode(SmoothingMode mode) {
    return Use("SetSmoothingMode", [&] { return m_engine.SetSmoothingMode(mode); });
}

SmoothingMode SlotProbe::GetSmoothingMode() {
    return Use("GetSmoothingMode", [&] { return m_engine.GetSmoothingMode(); });
}

std::int32_t SlotProbe::GradientFill(const RectL& bounds, const PointF& origin,
                                     const GradientVertex* vertices, std::uint32_t vertexCount,
                                     const void* mesh, std::uint32_t meshCount, GradientMode mode) {
    return Use("GradientFill", [&] {
        return m_engine.GradientFill(bounds, origin, vertices, vertexCount, mesh, meshCount, mode);
    });
}

SizeF SlotProbe::MeasureScriptText(const wchar_t* text, const Font* font) {
    return Use("MeasureScriptText", [&] { return m_engine.MeasureScriptText(text, font); });
}

void SlotProbe::DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                               const SolidBrush* brush) {
    return Use("DrawScriptText", [&] { return m_engine.DrawScriptText(text, font, x, y, brush); });
}

Status SlotProbe::SetClip(Region* region, CombineMode mode) {
    return Use("SetClip (region)", [&] { return m_engine.SetClip(region, mode); });
}
