#pragma once

#include <QColor>
#include <QPalette>

namespace designer {

/// Of what stands round the page and over it; the page itself is white on any desk.
struct CanvasColors {
    QColor Desk;
    QColor SheetEdge;
    QColor Shadow; ///< at its darkest
    QColor Ruler;
    QColor RulerOnSheet;
    QColor RulerEdge;
    QColor RulerInk;
    QColor Accent; ///< of selection; can be seen on white
};

CanvasColors ColorsOf(const QPalette& palette);

} // namespace designer
