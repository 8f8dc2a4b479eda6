#pragma once

#include "penlode/engine/TrackingEngine.h"

#include <string>
#include <variant>
#include <vector>

namespace penlode {

/// One call that an engine got: the operation's name and its arguments in order, each with a name of its own
/// in the call. A null pointer is a monostate.
struct RecordedCall {
    using Value =
        std::variant<std::monostate, std::int32_t, std::uint32_t, float, PointF, RectF, std::vector<PointF>,
                     std::wstring, Pen, SolidBrush, Font, StringFormat, GraphicsPath, Region, Matrix, Image,
                     CombineMode, MatrixOrder, Unit, SmoothingMode, std::vector<Color>,
                     std::vector<std::uint32_t>, ImageAttributes>;

    struct Argument {
        const char* Name; ///< "pen", "rect", "start"
        Value Held;
    };

    std::string Operation;
    std::vector<Argument> Arguments;
};

/// The call on one line: `DrawPie #FF000000/0.1 (45 45 10 10) 180 108`. Numbers are rounded to `decimals`
/// places; texts are UTF-8, with line breaks, quotes and backslashes escaped.
PENLODE_API std::string ToText(const RecordedCall& call, int decimals = 2);

/// An engine that draws nothing and writes down every call that changes or draws something, in order; queries
/// (Get..., Measure..., TransformPoints) are answered and leave no line. Bad arguments are written down too,
/// and answered as by the engines that draw. Its device unit is the millimetre.
class PENLODE_API CRecordingEngine final : public CTrackingEngine {
public:
    CRecordingEngine();

    const std::vector<RecordedCall>& Calls() const { return m_calls; }

    void Clear() { m_calls.clear(); }

    /// All calls, one a line, each line ended by "\n".
    std::string Text(int decimals = 2) const;

    Status DrawRectangle(const Pen* pen, float x, float y, float width, float height) override;
    Status DrawLines(const Pen* pen, const PointF* points, std::int32_t count) override;
    Status DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) override;
    Status DrawArc(const Pen* pen, float x, float y, float width, float height, float startAngle,
                   float sweepAngle) override;
    Status DrawEllipse(const Pen* pen, float x, float y, float width, float height) override;
    Status DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) override;
    Status DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) override;
    Status DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) override;
    Status DrawString(const wchar_t* text, std::int32_t length, const Font* font, const PointF& origin,
                      const StringFormat* format, const SolidBrush* brush) override;
    Status DrawString(const wchar_t* text, std::int32_t length, const Font* font, const PointF& origin,
                      const SolidBrush* brush) override;
    Status DrawString(const wchar_t* text, std::int32_t length, const Font* font, const RectF& layout,
                      const StringFormat* format, const SolidBrush* brush) override;
    Status DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                     float sourceWidth, float sourceHeight, Unit sourceUnit,
                     const ImageAttributes* attributes, DrawImageAbort abort, void* callbackData) override;
    Status DrawImage(const Image* image, const RectF& destination) override;
    Status ResetClip() override;
    Status SetClip(const GraphicsPath* path, CombineMode mode) override;
    Status SetClip(const Region* region, CombineMode mode) override;
    Status SetClip(const RectF& rect, CombineMode mode) override;
    Status FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) override;
    Status FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) override;
    Status FillPie(const SolidBrush* brush, const RectF& rect, float startAngle, float sweepAngle) override;
    Status FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) override;
    Status FillPath(const SolidBrush* brush, const GraphicsPath* path) override;
    Status SetTransform(const Matrix* matrix) override;
    Status TranslateTransform(float dx, float dy, MatrixOrder order) override;
    Status RotateTransform(float degrees, MatrixOrder order) override;
    Status ScaleTransform(float sx, float sy, MatrixOrder order) override;
    Status ResetTransform() override;
    Status SetPageScale(float scale) override;
    Status SetPageUnit(Unit unit) override;
    std::uint32_t BeginContainer() override;
    Status EndContainer(std::uint32_t container) override;
    Status SetSmoothingMode(SmoothingMode mode) override;
    std::int32_t GradientFill(const RectL& bounds, const PointF& origin, const GradientVertex* vertices,
                              std::uint32_t vertexCount, const void* mesh, std::uint32_t meshCount,
                              GradientMode mode) override;
    void DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                        const SolidBrush* brush) override;

private:
    Status StrokeOutline(const Outline& outline, const Pen& pen) override;
    Status FillOutline(const Outline& outline, const SolidBrush& brush) override;
    Status StrokeDataLine(std::span<const PointF> points, const Pen& pen) override;
    Status PaintText(const TextRun& text) override;
    Status PaintImage(const ImagePart& part) override;
    Status PaintGradient(const GradientMesh& mesh) override;

    void Record(const char* operation, std::vector<RecordedCall::Argument> arguments = {});

    std::vector<RecordedCall> m_calls;
};

} // namespace penlode
