#pragma once

#include "penlode/DataLine.h"
#include "penlode/IGraphicsEngine.h"

#include <memory>
#include <span>
#include <vector>

namespace penlode {

class CSurfaceState;
struct DataRun;
struct GradientMesh;
struct ImagePart;
struct Outline;
struct RecordedCall;
struct TextRun;

/// The whole interface for the library's own engines: it keeps transform, units, clips, containers and
/// smoothing, answers queries, refuses unsound arguments, and brings all that draws down to the six
/// operations that an engine adds. What these are given is not installed: a surface of a host's own derives
/// from IGraphicsEngine.
class PENLODE_API CTrackingEngine : public IGraphicsEngine, public IDataLineSurface {
public:
    ~CTrackingEngine() override;

    CTrackingEngine(const CTrackingEngine&) = delete;
    CTrackingEngine& operator=(const CTrackingEngine&) = delete;

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
    Status GetClip(Region* region) override;
    Status SetClip(const GraphicsPath* path, CombineMode mode) override;
    Status SetClip(const Region* region, CombineMode mode) override;
    Status SetClip(const RectF& rect, CombineMode mode) override;
    Status FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) override;
    Status FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) override;
    Status FillPie(const SolidBrush* brush, const RectF& rect, float startAngle, float sweepAngle) override;
    Status FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) override;
    Status FillPath(const SolidBrush* brush, const GraphicsPath* path) override;
    Status MeasureString(const wchar_t* text, std::int32_t length, const Font* font, const RectF& layout,
                         const StringFormat* format, RectF* bounds, std::int32_t* charactersFitted,
                         std::int32_t* linesFilled) override;
    Status MeasureString(const wchar_t* text, std::int32_t length, const Font* font, const PointF& origin,
                         RectF* bounds) override;
    Status MeasureString(const wchar_t* text, std::int32_t length, const Font* font, const PointF& origin,
                         const StringFormat* format, RectF* bounds) override;
    Status SetTransform(const Matrix* matrix) override;
    Status GetTransform(Matrix* matrix) override;
    Status TransformPoints(CoordinateSpace destination, CoordinateSpace source, PointF* points,
                           std::int32_t count) override;
    Status TranslateTransform(float dx, float dy, MatrixOrder order) override;
    Status RotateTransform(float degrees, MatrixOrder order) override;
    Status ScaleTransform(float sx, float sy, MatrixOrder order) override;
    Status ResetTransform() override;
    float GetPageScale() override;
    Unit GetPageUnit() override;
    Status SetPageScale(float scale) override;
    Status SetPageUnit(Unit unit) override;
    std::uint32_t BeginContainer() override;
    Status EndContainer(std::uint32_t container) override;
    Status SetSmoothingMode(SmoothingMode mode) override;
    SmoothingMode GetSmoothingMode() override;
    std::int32_t GradientFill(const RectL& bounds, const PointF& origin, const GradientVertex* vertices,
                              std::uint32_t vertexCount, const void* mesh, std::uint32_t meshCount,
                              GradientMode mode) override;
    SizeF MeasureScriptText(const wchar_t* text, const Font* font) override;
    void DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                        const SolidBrush* brush) override;
    Status SetClip(Region* region, CombineMode mode) override;
    Status DrawDataLine(const Pen* pen, const DataLine& line, std::size_t first, std::size_t& end) override;

protected:
    /// Each call that changes or draws something is added to `calls` as it came, if there are any.
    CTrackingEngine(double dpiX, double dpiY, std::vector<RecordedCall>* calls = nullptr);

    const CSurfaceState& State() const { return *m_state; }

private:
    virtual Status StrokeOutline(const Outline& outline, const Pen& pen) = 0;
    virtual Status FillOutline(const Outline& outline, const SolidBrush& brush) = 0;
    /// A run of so many points that nobody has looked at them yet. They are gone through once; or not at all,
    /// if nothing can be drawn.
    virtual Status StrokeDataLine(DataRun& run, const Pen& pen) = 0;
    virtual Status PaintText(const TextRun& text) = 0;
    virtual Status PaintImage(const ImagePart& part) = 0;
    virtual Status PaintGradient(const GradientMesh& mesh) = 0;

    template <class... Arguments> void Record(const char* operation, const Arguments&... arguments);

    Status Stroke(const Pen* pen, const Outline& outline);
    Status Stroke(const Pen& pen, DataRun& run);
    Status Fill(const SolidBrush* brush, const Outline& outline);
    Status PaintString(const wchar_t* text, std::int32_t length, const Font* font, const RectF& layout,
                       const StringFormat* format, const SolidBrush* brush);
    /// The part's source is in `sourceUnit`.
    Status PaintPart(const ImagePart& part, Unit sourceUnit);

    std::unique_ptr<CSurfaceState> m_state;
    std::vector<RecordedCall>* m_calls;
};

} // namespace penlode
