#include "editing/qt/Swatch.h"

#include "editing/qt/QtValues.h"

#include <QPainter>
#include <QPalette>

namespace millichart {

void PaintSwatch(QWidget& widget, const QRect& box, std::uint32_t colorRef) {
    QPainter painter(&widget);
    QColor frame = widget.palette().color(QPalette::WindowText);
    frame.setAlphaF(0.5F);
    if (!widget.isEnabled()) {
        painter.setOpacity(0.4);
    }
    painter.fillRect(box, ToQColor(colorRef));
    painter.setPen(frame);
    painter.drawRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5));
}

void DescribeColor(QWidget& widget, std::uint32_t colorRef) {
    widget.setAccessibleDescription(ToQColor(colorRef).name());
}

} // namespace millichart
