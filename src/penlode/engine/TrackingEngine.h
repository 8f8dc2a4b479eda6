#pragma once

#include "penlode/IGraphicsEngine.h"
#include "penlode/engine/SurfaceState.h"

namespace penlode {

/// What is the same in every engine: the bookkeeping of transform, units, clips, containers and smoothing,
/// the answers to queries, and the operations that come down to another one. An engine derives from it and
/// adds what its platform draws.
class PENLODE_API CTrackingEngine : public IGraphicsEngine {
public:
    using IGraphicsEngine::DrawImage;
    using IGraphicsEngine::DrawString;

    Status DrawString(const wchar_t* text, std::int32_t length, const Font* font, const PointF& origin,
                      const StringFormat* format, const SolidBrush* brush) override;
    Status DrawString(const wchar_t* text, std::int32_t length, const Font* font, const PointF& origin,
                      const SolidBrush* brush) override;
    Status DrawImage(const Image* image, const RectF& destination) override;
    Status ResetClip() override;
    Status GetClip(Region* region) override;
    Status SetClip(const GraphicsPath* path, CombineMode mode) override;
    Status SetClip(const Region* region, CombineMode mode) override;
    Status SetClip(const RectF& rect, CombineMode mode) override;
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
    SizeF MeasureScriptText(const wchar_t* text, const Font* font) override;
    void DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                        const SolidBrush* brush) override;
    Status SetClip(Region* region, CombineMode mode) override;

protected:
    CTrackingEngine(double dpiX, double dpiY) : m_state(dpiX, dpiY) {}

    const CSurfaceState& State() const { return m_state; }

private:
    CSurfaceState m_state;
};

} // namespace penlode
