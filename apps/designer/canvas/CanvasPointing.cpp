#include "canvas/CanvasAccess.h"
#include "canvas/CanvasState.h"
#include "canvas/ReadingOrder.h"
#include "canvas/Ruler.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <cmath>

namespace designer {

using millichart::ChartPart;
using millichart::PartKind;
using millichart::PlacedPart;

namespace {

OutlinedPart Outlined(const millichart::LaidOutChart& chart, const PlacedPart& part) {
    return {part, OutlineOf(chart, part), MobilityOf(chart, part.Part)};
}

std::optional<ChartPart> PartOf(const std::optional<OutlinedPart>& part) {
    return part ? std::optional(part->Placed.Part) : std::nullopt;
}

} // namespace

std::optional<PlacedPart> ChartCanvas::PartAt(QPointF inViewport) const {
    const auto shown = Shown();
    if (!shown) {
        return std::nullopt;
    }
    // A hand is not steadier on a page that is drawn small.
    constexpr double kReachPixels = 4.0;
    const double ratio = devicePixelRatioF();
    const double reach = kReachPixels * ratio / m_state->Page.View().PixelsPerMillimetre();
    const penlode::PointF place =
        m_state->Page.View().ToPage(penlode::PointD{inViewport.x() * ratio, inViewport.y() * ratio});
    return shown->Chart.HitTest(place, std::min(static_cast<float>(reach), 4.0F));
}

void ChartCanvas::Hover(std::optional<PlacedPart> part) {
    const auto before = PartOf(m_state->Hovered);
    m_state->Hovered = part ? std::optional(Outlined(Shown()->Chart, *part)) : std::nullopt;
    if (before != PartOf(m_state->Hovered)) {
        QToolTip::hideText();
        viewport()->update();
        Q_EMIT Hovered(PartOf(m_state->Hovered));
    }
}

std::optional<ChartPart> ChartCanvas::Selected() const {
    return PartOf(m_state->Selected);
}

void ChartCanvas::SelectPlaced(std::optional<PlacedPart> part) {
    const auto before = Selected();
    m_state->Selected = part ? std::optional(Outlined(Shown()->Chart, *part)) : std::nullopt;
    viewport()->update();
    if (before != Selected()) {
        m_state->SecondClick.stop();
        viewport()->setAttribute(Qt::WA_InputMethodEnabled, part && HasEditableText(part->Part));
        setAttribute(Qt::WA_InputMethodEnabled, part && HasEditableText(part->Part));
        if (part) {
            TellSelectedPart(*this, part->Part);
        }
        Q_EMIT SelectionChanged(Selected());
    }
}

void ChartCanvas::Select(std::optional<ChartPart> part) {
    const std::size_t place = part ? PlaceOf(Parts(), *part) : Parts().size();
    if (place == Parts().size()) {
        SelectPlaced(std::nullopt);
        return;
    }
    const PlacedPart placed = Parts()[place];
    m_state->Page.Change([&placed](PageView& view) { view.Reveal(placed.Box); });
    SelectPlaced(placed);
}

void ChartCanvas::SelectNext(int direction) {
    const std::size_t count = Parts().size();
    if (count == 0) {
        return;
    }
    const auto selected = Selected();
    const std::size_t place = selected ? PlaceOf(Parts(), *selected) : count;
    if (direction > 0) {
        Select(Parts()[place >= count - 1 ? 0 : place + 1].Part);
    } else {
        Select(Parts()[place == 0 || place == count ? count - 1 : place - 1].Part);
    }
}

void ChartCanvas::ShowTip(const QPoint& inViewport, const QPoint& onScreen) {
    const auto part = PartAt(inViewport);
    if (!part || m_state->Dragged) {
        QToolTip::hideText();
        return;
    }
    const PartFacts facts = FactsOf(*Shown()->Document, Shown()->Chart, part->Part);
    QStringList lines;
    for (const std::string& fact : {facts.Name, facts.Value, facts.Share}) {
        if (!fact.empty()) {
            lines << QString::fromUtf8(fact).trimmed();
        }
    }
    QToolTip::showText(onScreen, lines.join(u'\n'), viewport(), ToViewport(part->Box).adjusted(-4, -4, 4, 4));
}

void ChartCanvas::ShowCursor() {
    if (m_state->PanFrom) {
        viewport()->setCursor(Qt::ClosedHandCursor);
    } else if (m_state->IsSpaceDown) {
        viewport()->setCursor(Qt::OpenHandCursor);
    } else if (m_state->Hovered && m_state->Hovered->How != Mobility::None) {
        viewport()->setCursor(Qt::SizeAllCursor);
    } else {
        viewport()->unsetCursor();
    }
}

void ChartCanvas::mousePressEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    const bool isPan =
        event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_state->IsSpaceDown);
    if (isPan) {
        BeginPan(at.toPoint());
        return;
    }
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) {
        return;
    }
    EndDrag(false);
    const auto part = PartAt(at);
    const bool wasSelected = part && Selected() == part->Part;
    SelectPlaced(part);
    if (!part || event->button() != Qt::LeftButton) {
        return;
    }
    BeginDrag(*part, at);
    m_state->IsSecondClick = wasSelected && HasEditableText(part->Part);
}

void ChartCanvas::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    const penlode::PointF place = ToPage(at.toPoint());
    m_state->Top->Mark(place.X);
    m_state->Left->Mark(place.Y);
    if (m_state->PanFrom) {
        const double ratio = devicePixelRatioF();
        const QPoint by = at.toPoint() - *m_state->PanFrom;
        m_state->PanFrom = at.toPoint();
        m_state->HasPanned = true;
        m_state->Page.Change([&](PageView& view) {
            view.ScrollBy(static_cast<int>(std::lround(-by.x() * ratio)),
                          static_cast<int>(std::lround(-by.y() * ratio)));
        });
    } else if (m_state->Dragged && (event->buttons() & Qt::LeftButton) != 0) {
        DragTo(at, (event->modifiers() & Qt::ShiftModifier) != 0);
    } else {
        Hover(PartAt(at));
        ShowCursor();
    }
}

void ChartCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (m_state->PanFrom) {
        m_state->PanFrom.reset();
        ShowCursor();
        return;
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const bool isClick = m_state->Dragged && !m_state->Dragged->IsMoving;
    EndDrag(true);
    if (isClick && m_state->IsSecondClick) {
        m_state->SecondClick.start(QApplication::doubleClickInterval());
    }
}

void ChartCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_state->SecondClick.stop();
    m_state->IsSecondClick = false;
    EndDrag(false);
    const auto part = PartAt(event->position());
    SelectPlaced(part);
    if (part && part->Part.Kind == PartKind::LegendSample) {
        Q_EMIT ColorWanted(part->Part);
    } else {
        Q_EMIT Opened(part ? std::optional(part->Part) : std::nullopt);
    }
}

/// By the key, at the part that is selected.
void ChartCanvas::contextMenuEvent(QContextMenuEvent* event) {
    const auto selected = Selected();
    if (event->reason() != QContextMenuEvent::Mouse && selected) {
        Q_EMIT MenuWanted(selected, ToViewport(m_state->Selected->Placed.Box).center());
        return;
    }
    const auto part = PartAt(event->pos());
    SelectPlaced(part);
    Q_EMIT MenuWanted(part ? std::optional(part->Part) : std::nullopt, event->pos());
}

void ChartCanvas::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    // A notch is one step; a touchpad's small movements add up to as much.
    constexpr double kNotch = 120.0;
    const int turned = event->angleDelta().y();
    if (turned % static_cast<int>(kNotch) == 0) {
        ZoomAt(NextZoom(Zoom(), turned), event->position());
    } else {
        ZoomAt(Zoom() * std::pow(1.25, turned / kNotch), event->position());
    }
    event->accept();
}

void ChartCanvas::BeginPan(QPoint at) {
    m_state->PanFrom = at;
    ShowCursor();
}

} // namespace designer
