#include "canvas/CanvasState.h"
#include "canvas/ReadingOrder.h"
#include "canvas/TextEditor.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace designer {

using millichart::ChartPart;
using millichart::PartKind;

namespace {

/// Of arrow keys; nothing for others.
penlode::PointF DirectionOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return {-1.0F, 0.0F};
    case Qt::Key_Right:
        return {1.0F, 0.0F};
    case Qt::Key_Up:
        return {0.0F, -1.0F};
    case Qt::Key_Down:
        return {0.0F, 1.0F};
    default:
        return {};
    }
}

/// Is it a character that a person types, and no command?
bool IsTyped(const QKeyEvent& event) {
    const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (event.modifiers() & commands) == 0 && !event.text().isEmpty() && event.text().at(0).isPrint() &&
           event.key() != Qt::Key_Space;
}

} // namespace

void ChartCanvas::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat()) {
            m_state->IsSpaceDown = true;
            m_state->HasPanned = false;
            ShowCursor();
        }
        return;
    }
    m_state->SecondClick.stop();
    if (!PressOnPart(*event) && !PressOnView(*event)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

/// Space alone asks for a colour; held while the mouse drags, it moves the page.
void ChartCanvas::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || event->isAutoRepeat()) {
        QAbstractScrollArea::keyReleaseEvent(event);
        return;
    }
    const bool isAlone = m_state->IsSpaceDown && !m_state->HasPanned && !m_state->PanFrom;
    m_state->IsSpaceDown = false;
    ShowCursor();
    if (isAlone && m_state->Selected) {
        Q_EMIT ColorWanted(m_state->Selected->Placed.Part);
    }
}

bool ChartCanvas::PressOnPart(const QKeyEvent& event) {
    const auto selected = Selected();
    if (event.key() == Qt::Key_Escape && m_state->Dragged) {
        EndDrag(false);
        return true;
    }
    if (!selected) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Escape:
        SelectPlaced(std::nullopt);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return Nudge(static_cast<Qt::Key>(event.key()), (event.modifiers() & Qt::ShiftModifier) != 0);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT Opened(selected);
        return true;
    case Qt::Key_F2:
        return EditText(*selected);
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        Q_EMIT ResetWanted(*selected);
        return true;
    default:
        return IsTyped(event) && TypeInto(event.text());
    }
}

bool ChartCanvas::PressOnView(const QKeyEvent& event) {
    if ((event.modifiers() & Qt::ControlModifier) == 0) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        ZoomIn();
        return true;
    case Qt::Key_Minus:
        ZoomOut();
        return true;
    case Qt::Key_0:
        FitPage();
        return true;
    case Qt::Key_1:
        SetZoom(1.0);
        return true;
    default:
        return false;
    }
}

/// A tenth of a millimetre, or a whole one; a docked part to the next place in that direction, if it has one.
bool ChartCanvas::Nudge(Qt::Key key, bool isFar) {
    const OutlinedPart& part = *m_state->Selected;
    const penlode::PointF direction = DirectionOf(key);
    const auto times = [&direction](float length) {
        return penlode::PointF{direction.X * length, direction.Y * length};
    };
    if (part.How == Mobility::None) {
        return false;
    }
    const ChartPart moved = part.Placed.Part;
    if (part.How == Mobility::Free) {
        Q_EMIT Moved(moved, times(isFar ? 1.0F : 0.1F), true);
        return true;
    }
    constexpr float kStep = 5.0F;
    constexpr float kFarthest = 1000.0F;
    const millichart::LaidOutChart& chart = Shown()->Chart;
    const auto present = DockedPlace(chart, moved, {});
    float length = kStep;
    while (length < kFarthest && DockedPlace(chart, moved, times(length)) == present) {
        length += kStep;
    }
    if (length < kFarthest) {
        Q_EMIT Moved(moved, times(length), true);
    }
    return true;
}

/// Past the last part, or before the first, the focus goes on to the next widget.
bool ChartCanvas::focusNextPrevChild(bool next) {
    const auto& parts = Parts();
    const auto selected = Selected();
    const std::size_t place = selected ? PlaceOf(parts, *selected) : parts.size();
    const bool isAtEnd = selected && (next ? place + 1 >= parts.size() : place == 0);
    if (!hasFocus() || parts.empty() || isAtEnd) {
        return QAbstractScrollArea::focusNextPrevChild(next);
    }
    SelectNext(next ? 1 : -1);
    return true;
}

void ChartCanvas::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void ChartCanvas::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    m_state->IsSpaceDown = false;
    m_state->SecondClick.stop();
    viewport()->update();
}

/// What an input method made goes into the text of the part that is selected, as typed keys do.
void ChartCanvas::inputMethodEvent(QInputMethodEvent* event) {
    if (event->commitString().isEmpty() || !TypeInto(event->commitString())) {
        QAbstractScrollArea::inputMethodEvent(event);
    }
}

QVariant ChartCanvas::inputMethodQuery(Qt::InputMethodQuery query) const {
    const auto selected = Selected();
    switch (query) {
    case Qt::ImEnabled:
        return selected && HasEditableText(*selected);
    case Qt::ImCursorRectangle:
        return selected ? ToViewport(m_state->Selected->Placed.Box).translated(viewport()->pos()) : QRect();
    default:
        return QAbstractScrollArea::inputMethodQuery(query);
    }
}

} // namespace designer
