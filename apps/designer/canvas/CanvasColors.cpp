#include "canvas/CanvasColors.h"

namespace designer {

CanvasColors ColorsOf(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    // A highlight that is pale, as some themes have it, would not be seen on the white page.
    QColor accent = palette.color(QPalette::Highlight);
    if (accent.lightness() > 150) {
        accent = accent.darker(150);
    }
    QColor ink = palette.color(QPalette::WindowText);
    ink.setAlpha(150);
    if (window.lightness() < 128) {
        return {window.darker(135),
                QColor(0, 0, 0, 160),
                QColor(0, 0, 0, 60),
                window,
                window.lighter(135),
                window.darker(160),
                ink,
                accent};
    }
    return {window.darker(112),
            QColor(0, 0, 0, 50),
            QColor(0, 0, 0, 26),
            window,
            QColor(Qt::white),
            window.darker(125),
            ink,
            accent};
}

} // namespace designer
