#pragma once

#include "penlode/IGraphicsEngine.h"

#include <set>
#include <string>
#include <utility>

/// Every operation of the surface, one name an overload.
std::set<std::string> AllSlots();

/// Hands every call to another engine and notes which operations were used and which refused. One operation
/// may be left out: it then does nothing and answers zeros, as a stub would.
class SlotProbe final : public penlode::IGraphicsEngine {
public:
    explicit SlotProbe(penlode::IGraphicsEngine& engine, std::string leftOut = {})
        : m_engine(engine), m_leftOut(std::move(leftOut)) {}

    const std::set<std::string>& Used() const { return m_used; }

    const std::set<std::string>& Refused() const { return m_refused; }

    penlode::Status DrawRectangle(const penlode::Pen* pen, float x, float y, float width,
                                  float height) override;
    penlode::Status DrawLines(const penlode::Pen* pen, const penlode::PointF* points,
                              std::int32_t count) override;
    penlode::Status DrawLine(const penlode::Pen* pen, float x1, float y1, float x2, float y2) override;
    penlode::Status DrawArc(const penlode::Pen* pen, float x, float y, float width, float height,
                            float startAngle, float sweepAngle) override;
    penlode::Status DrawEllipse(const penlode::Pen* pen, float x, float y, float width,
                                float height) override;
    penlode::Status DrawPie(const penlode::Pen* pen, const penlode::RectF& rect, float startAngle,
                            float sweepAngle) override;
    penlode::Status DrawPolygon(const penlode::Pen* pen, const penlode::PointF* points,
                                std::int32_t count) override;
    penlode::Status DrawCurve(const penlode::Pen* pen, const penlode::PointF* points,
                              std::int32_t count) override;
    penlode::Status DrawString(const wchar_t* text, std::int32_t length, const penlode::Font* font,
                               const penlode::PointF& origin, const penlode::StringFormat* format,
                               const penlode::SolidBrush* brush) override;
    penlode::Status DrawString(const wchar_t* text, std::int32_t length, const penlode::Font* font,
                               const penlode::PointF& origin, const penlode::SolidBrush* brush) override;
    penlode::Status DrawString(const wchar_t* text, std::int32_t length, const penlode::Font* font,
                               const penlode::RectF& layout, const penlode::StringFormat* format,
                               const penlode::SolidBrush* brush) override;
    penlode::Status DrawImage(const penlode::Image* image, const penlode::RectF& destination, float sourceX,
                              float sourceY, float sourceWidth, float sourceHeight, penlode::Unit sourceUnit,
                              const penlode::ImageAttributes* attributes, penlode::DrawImageAbort abort,
                              void* callbackData) override;
    penlode::Status DrawImage(const penlode::Image* image, const penlode::RectF& destination) override;
    penlode::Status ResetClip() override;
    penlode::Status GetClip(penlode::Region* region) override;
    penlode::Status SetClip(const penlode::GraphicsPath* path, penlode::CombineMode mode) override;
    penlode::Status SetClip(const penlode::Region* region, penlode::CombineMode mode) override;
    penlode::Status SetClip(const penlode::RectF& rect, penlode::CombineMode mode) override;
    penlode::Status FillRectangle(const penlode::SolidBrush* brush, float x, float y, float width,
                                  float height) override;
    penlode::Status FillEllipse(const penlode::SolidBrush* brush, float x, float y, float width,
                                float height) override;
    penlode::Status FillPie(const penlode::SolidBrush* brush, const penlode::RectF& rect, float startAngle,
                            float sweepAngle) override;
    penlode::Status FillPolygon(const penlode::SolidBrush* brush, const penlode::PointF* points,
                                std::int32_t count) override;
    penlode::Status FillPath(const penlode::SolidBrush* brush, const penlode::GraphicsPath* path) override;
    penlode::Status MeasureString(const wchar_t* text, std::int32_t length, const penlode::Font* font,
                                  const penlode::RectF& layout, const penlode::StringFormat* format,
                                  penlode::RectF* bounds, std::int32_t* charactersFitted,
                                  std::int32_t* linesFilled) override;
    penlode::Status MeasureString(const wchar_t* text, std::int32_t length, const penlode::Font* font,
                                  const penlode::PointF& origin, penlode::RectF* bounds) override;
    penlode::Status MeasureString(const wchar_t* text, std::int32_t length, const penlode::Font* font,
                                  const penlode::PointF& origin, const penlode::StringFormat* format,
                                  penlode::RectF* bounds) override;
    penlode::Status SetTransform(const penlode::Matrix* matrix) override;
    penlode::Status GetTransform(penlode::Matrix* matrix) override;
    penlode::Status TransformPoints(penlode::CoordinateSpace destination, penlode::CoordinateSpace source,
                                    penlode::PointF* points, std::int32_t count) override;
    penlode::Status TranslateTransform(float dx, float dy, penlode::MatrixOrder order) override;
    penlode::Status RotateTransform(float degrees, penlode::MatrixOrder order) override;
    penlode::Status ScaleTransform(float sx, float sy, penlode::MatrixOrder order) override;
    penlode::Status ResetTransform() override;
    float GetPageScale() override;
    penlode::Unit GetPageUnit() override;
    penlode::Status SetPageScale(float scale) override;
    penlode::Status SetPageUnit(penlode::Unit unit) override;
    std::uint32_t BeginContainer() override;
    penlode::Status EndContainer(std::uint32_t container) override;
    penlode::Status SetSmoothingMode(penlode::SmoothingMode mode) override;
    penlode::SmoothingMode GetSmoothingMode() override;
    std::int32_t GradientFill(const penlode::RectL& bounds, const penlode::PointF& origin,
                              const penlode::GradientVertex* vertices, std::uint32_t vertexCount,
                              const void* mesh, std::uint32_t meshCount, penlode::GradientMode mode) override;
    penlode::SizeF MeasureScriptText(const wchar_t* text, const penlode::Font* font) override;
    void DrawScriptText(const wchar_t* text, const penlode::Font* font, float x, float y,
                        const penlode::SolidBrush* brush) override;
    penlode::Status SetClip(penlode::Region* region, penlode::CombineMode mode) override;

private:
    /// Calls `operation` on the engine, unless it is the one left out.
    template <class Operation> auto Use(const char* slot, const Operation& operation);

    penlode::IGraphicsEngine& m_engine;
    std::string m_leftOut;
    std::set<std::string> m_used;
    std::set<std::string> m_refused;
};
