#pragma once

#include "canvas/CanvasColors.h"
#include "canvas/CanvasState.h"

#include <QPainter>

namespace designer {

/// What a canvas shows, in the screen's own pixels: the painter's origin is the window's, and it does not
/// scale.
class PagePainter {
public:
    PagePainter(QPainter& painter, const CanvasColors& colors, double ratio)
        : m_painter(painter), m_colors(colors), m_ratio(ratio) {}

    /// The desk and the sheet with the latest picture, drawn or stretched.
    void PaintPage(const PageView& view, const Picture* picture);
    /// What the mouse is over.
    void PaintHover(const PageView& view, const OutlinedPart& part);
    /// With handles if it can be moved.
    void PaintSelection(const PageView& view, const OutlinedPart& part, bool isMovable, bool hasFocus);
    /// Where a part came from and where it would be put now, with its picture if it goes along.
    void PaintDrag(const PageView& view, const Drag& drag, const Picture* picture);
    void PaintFocus(const PageView& view);

private:
    void PaintShadow(const QRectF& sheet);
    void PaintHandles(const QRectF& box);
    void Stroke(const QPainterPath& path, double width, const QColor& color,
                Qt::PenStyle style = Qt::SolidLine);

    QPainter& m_painter;
    const CanvasColors& m_colors;
    double m_ratio; ///< of the screen's pixels to the toolkit's
};

} // namespace designer
