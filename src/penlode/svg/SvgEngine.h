#pragma once

#include "penlode/engine/TrackingEngine.h"
#include "penlode/svg/SvgOptions.h"

#include <memory>
#include <string>

namespace penlode {

/// The surface as an SVG document: its page in millimetres, texts that can be selected and searched, the same
/// bytes for the same calls in every locale.
///
///     CSvgEngine engine({80, 60}, {.Title = "Sales"});
///     chart.Draw(&engine);
///     file << engine.Text();
///
/// A fresh surface counts in millimetres at scale 1, from its top-left corner; its device unit is the
/// millimetre. Numbers are written to a thousandth of one; of long polylines, what 600 dots per inch can
/// show. No line is thinner than 0.05 mm. A container's
/// drawings stand in a group of their own.
///
/// A text takes up its measured width whatever face the reader has. Under a transform that is not a turn or
/// an equal scale, texts and pictures are distorted with it; a pen's width is not, and grows with the square
/// root of the area.
///
/// Smoothing is left to the viewer: the mode is kept, and changes nothing. A rectangle of negative width or
/// height draws nothing, and so does a fill without width or height. Lines of text beyond 8192 characters end
/// there. A shape that reaches a hundred metres away is written as what lies near the page.
class PENLODE_API CSvgEngine final : public CTrackingEngine {
public:
    using CTrackingEngine::DrawImage;
    using CTrackingEngine::DrawString;

    /// A page of that many millimetres. A side that is not finite or not above 0 counts as 0, and a viewer
    /// shows nothing; one of more than a kilometre counts as a kilometre.
    explicit CSvgEngine(SizeF millimetres, const SvgOptions& options = {});
    ~CSvgEngine() override;

    /// The whole document, UTF-8, as far as it has been drawn.
    std::string Text() const;

    Status DrawRectangle(const Pen* pen, float x, float y, float width, float height) override;
    Status DrawLines(const Pen* pen, const PointF* points, std::int32_t count) override;
    Status DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) override;
    Status DrawArc(const Pen* pen, float x, float y, float width, float height, float startAngle,
                   float sweepAngle) override;
    Status DrawEllipse(const Pen* pen, float x, float y, float width, float height) override;
    Status DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) override;
    Status DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) override;
    Status DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) override;
    Status DrawString(const wchar_t* text, std::int32_t length, const Font* font, const RectF& layout,
                      const StringFormat* format, const SolidBrush* brush) override;
    Status DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                     float sourceWidth, float sourceHeight, Unit sourceUnit,
                     const ImageAttributes* attributes, DrawImageAbort abort, void* callbackData) override;
    Status FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) override;
    Status FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) override;
    Status FillPie(const SolidBrush* brush, const RectF& rect, float startAngle, float sweepAngle) override;
    Status FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) override;
    Status FillPath(const SolidBrush* brush, const GraphicsPath* path) override;
    std::int32_t GradientFill(const RectL& bounds, const PointF& origin, const GradientVertex* vertices,
                              std::uint32_t vertexCount, const void* mesh, std::uint32_t meshCount,
                              GradientMode mode) override;
    std::uint32_t BeginContainer() override;
    Status EndContainer(std::uint32_t container) override;

private:
    struct Drawing;

    std::unique_ptr<Drawing> m_drawing;
};

} // namespace penlode
