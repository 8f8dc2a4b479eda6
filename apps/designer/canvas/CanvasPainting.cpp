#include "canvas/CanvasColors.h"
#include "canvas/CanvasState.h"
#include "canvas/PagePainter.h"
#include "canvas/Ruler.h"
#include "canvas/TextEditor.h"

#include <QPaintEvent>
#include <cmath>

namespace designer {

void ChartCanvas::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    QPainter painter(viewport());
    // The window may begin between two pixels where a unit of the toolkit has no whole number of them.
    const QPointF origin = painter.deviceTransform().map(QPointF(0.0, 0.0));
    painter.scale(1.0 / ratio, 1.0 / ratio);
    painter.translate(std::round(origin.x()) - origin.x(), std::round(origin.y()) - origin.y());

    const CanvasColors colors = ColorsOf(palette());
    const PageView& view = m_state->Page.View();
    const Picture* picture = m_state->Page.LastPicture();
    PagePainter page(painter, colors, ratio);
    page.PaintPage(view, picture);
    if (view.Dpi() != m_state->ScreenDpi * ratio) {
        QMetaObject::invokeMethod(this, &ChartCanvas::FollowScreen, Qt::QueuedConnection);
    }
    const auto& drag = m_state->Dragged;
    if (drag && drag->IsMoving) {
        page.PaintDrag(view, *drag, picture);
    } else {
        const auto& selected = m_state->Selected;
        const auto& hovered = m_state->Hovered;
        if (hovered && !(selected && selected->Placed.Part == hovered->Placed.Part)) {
            page.PaintHover(view, *hovered);
        }
        if (selected && !m_state->Editor) {
            page.PaintSelection(view, *selected, selected->How != Mobility::None, hasFocus());
        }
    }
    if (hasFocus()) {
        page.PaintFocus(view);
    }
}

} // namespace designer
