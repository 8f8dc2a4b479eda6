#include "canvas/PagePainter.h"

namespace designer {
namespace {

QRectF AsRect(const PixelRect& rect) {
    return {QPointF(rect.Left, rect.Top), QPointF(rect.Right, rect.Bottom)};
}

/// On whole pixels, so that an upright line of one pixel is sharp.
QRectF BoxInWindow(const PageView& view, const penlode::RectF& onPage) {
    return AsRect(view.ToWindow(onPage)).normalized().adjusted(0.5, 0.5, -0.5, -0.5);
}

QPainterPath InWindow(const PageView& view, const OutlinedPart& part, double air) {
    const millichart::PlacedPart& placed = part.Placed;
    if (part.Outline.Path.elementCount() <= 5 && part.Placed.Part.Kind != millichart::PartKind::Slice &&
        !part.Outline.IsLine) {
        QPainterPath box;
        box.addRoundedRect(BoxInWindow(view, placed.Box).adjusted(-air, -air, air, air), air, air);
        return box;
    }
    const double scale = view.PixelsPerMillimetre();
    return QTransform(scale, 0.0, 0.0, scale, -view.Scroll().X, -view.Scroll().Y).map(part.Outline.Path);
}

QColor Faded(QColor color, int alpha) {
    color.setAlpha(alpha);
    return color;
}

} // namespace

void PagePainter::PaintPage(const PageView& view, const Picture* picture) {
    const QRectF sheet = AsRect(view.ToWindow(view.Sheet()));
    m_painter.fillRect(QRectF(0.0, 0.0, view.VisibleArea().Width() + 1, view.VisibleArea().Height() + 1),
                       m_colors.Desk);
    if (view.Sheet().Width <= 0.0F) {
        return;
    }
    PaintShadow(sheet);
    m_painter.fillRect(sheet, Qt::white);
    if (picture == nullptr) {
        return;
    }
    const double stretch = view.PixelsPerMillimetre() / picture->PixelsPerMillimetre;
    const QPointF scroll(view.Scroll().X, view.Scroll().Y);
    const QRectF area = AsRect(picture->Area);
    if (stretch == 1.0) {
        m_painter.drawImage(area.topLeft() - scroll, picture->Pixels);
        return;
    }
    m_painter.save();
    m_painter.setClipRect(sheet);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter.drawImage(QRectF(area.topLeft() * stretch - scroll, area.size() * stretch), picture->Pixels);
    m_painter.restore();
}

/// Soft below, hardly there above, as light falls on a desk.
void PagePainter::PaintShadow(const QRectF& sheet) {
    constexpr int kSteps = 5;
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
    for (int step = kSteps; step > 0; --step) {
        const double reach = step * m_ratio;
        m_painter.setBrush(Faded(m_colors.Shadow, m_colors.Shadow.alpha() / kSteps + 1));
        m_painter.drawRoundedRect(sheet.adjusted(-reach, -reach, reach, reach).translated(0.0, m_ratio),
                                  reach, reach);
    }
    m_painter.restore();
    m_painter.setPen(QPen(m_colors.SheetEdge, 1.0));
    m_painter.drawRect(sheet.adjusted(-0.5, -0.5, 0.5, 0.5));
}

void PagePainter::Stroke(const QPainterPath& path, double width, const QColor& color, Qt::PenStyle style) {
    QPen pen(color, width * m_ratio, style);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::FlatCap);
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.strokePath(path, pen);
}

void PagePainter::PaintHover(const PageView& view, const OutlinedPart& part) {
    const QPainterPath path = InWindow(view, part, 2.0 * m_ratio);
    if (part.Outline.IsLine) {
        Stroke(path, 5.0, Faded(m_colors.Accent, 70));
        return;
    }
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.fillPath(path, Faded(m_colors.Accent, 26));
    Stroke(path, 1.0, Faded(m_colors.Accent, 150));
}

void PagePainter::PaintSelection(const PageView& view, const OutlinedPart& part, bool isMovable,
                                 bool hasFocus) {
    const QPainterPath path = InWindow(view, part, 3.0 * m_ratio);
    const QColor color = hasFocus ? m_colors.Accent : Faded(m_colors.Accent, 150);
    if (part.Outline.IsLine) {
        Stroke(path, 8.0, Faded(m_colors.Accent, 90));
        return;
    }
    Stroke(path, 3.5, Faded(Qt::white, 200)); // tells it from what is dark or as blue
    Stroke(path, 1.5, color);
    if (isMovable) {
        PaintHandles(path.boundingRect());
    }
}

void PagePainter::PaintHandles(const QRectF& box) {
    const double half = 3.0 * m_ratio;
    m_painter.setPen(QPen(m_colors.Accent, m_ratio));
    m_painter.setBrush(Qt::white);
    for (const QPointF& corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()}) {
        m_painter.drawRect(QRectF(corner.x() - half, corner.y() - half, 2.0 * half, 2.0 * half));
    }
}

void PagePainter::PaintDrag(const PageView& view, const Drag& drag, const Picture* picture) {
    QPainterPath from;
    from.addRect(BoxInWindow(view, drag.Box));
    Stroke(from, 1.0, Faded(m_colors.Accent, 120), Qt::DashLine);
    const QRectF place = BoxInWindow(view, drag.Place);
    if (picture != nullptr && picture->PixelsPerMillimetre == view.PixelsPerMillimetre()) {
        const QRectF taken =
            BoxInWindow(view, drag.Box)
                .translated(view.Scroll().X - picture->Area.Left, view.Scroll().Y - picture->Area.Top);
        m_painter.setOpacity(0.8);
        m_painter.drawImage(place, picture->Pixels, taken);
        m_painter.setOpacity(1.0);
    }
    QPainterPath to;
    to.addRect(place.adjusted(-m_ratio, -m_ratio, m_ratio, m_ratio));
    m_painter.fillPath(to, Faded(m_colors.Accent, 20));
    Stroke(to, 1.5, m_colors.Accent);
}

void PagePainter::PaintFocus(const PageView& view) {
    const PixelRect window = view.VisibleArea();
    QPainterPath frame;
    frame.addRect(
        QRectF(0.0, 0.0, window.Width(), window.Height()).adjusted(m_ratio, m_ratio, -m_ratio, -m_ratio));
    Stroke(frame, 2.0, Faded(m_colors.Accent, 170));
}

} // namespace designer
