#include "panel/PaletteIcon.h"

#include "foundation/Palette.h"

#include <QPainter>
#include <QPixmap>

namespace designer {
namespace {

using millichart::Hatch;

constexpr int kSwatches = 6;

Qt::BrushStyle StyleOf(Hatch hatch) {
    switch (hatch) {
    case Hatch::Rising:
    case Hatch::Dense:
        return Qt::BDiagPattern;
    case Hatch::Falling:
        return Qt::FDiagPattern;
    case Hatch::Horizontal:
        return Qt::HorPattern;
    case Hatch::Vertical:
        return Qt::VerPattern;
    case Hatch::Crossed:
        return Qt::CrossPattern;
    case Hatch::DiagonalCrossed:
        return Qt::DiagCrossPattern;
    case Hatch::None:
        break;
    }
    return Qt::NoBrush;
}

} // namespace

QIcon PaletteIcon(std::int32_t palette, QSize size, double pixelRatio) {
    millichart::ChartOptions options;
    options.Palette = palette;
    if (!millichart::HasPalette(options)) {
        return {};
    }
    QPixmap picture(size * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    const double width = (size.width() - 1.0) / kSwatches;
    for (int i = 0; i < kSwatches; ++i) {
        const millichart::Fill fill = millichart::PaletteFill(options, static_cast<std::size_t>(i));
        const QColor color = QColor::fromRgb(fill.Color.Argb);
        const QRectF box(i * width + 0.5, 0.5, width, size.height() - 1.0);
        painter.fillRect(box, color);
        painter.setBrush(QBrush(color.lightness() < 128 ? Qt::white : Qt::black, StyleOf(fill.Hatch)));
        painter.drawRect(box);
    }
    return QIcon(picture);
}

} // namespace designer
