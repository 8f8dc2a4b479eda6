#include "table/TableHeader.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace designer {
namespace {

constexpr int kFirstMovableColumn = 1; // the heads stay

} // namespace

TableHeader::TableHeader(Qt::Orientation orientation, QWidget* parent) : QHeaderView(orientation, parent) {
    setSectionsClickable(true);
    setHighlightSections(true);
    setDefaultAlignment(Qt::AlignCenter);
    const bool isColumns = orientation == Qt::Horizontal;
    setAccessibleName(isColumns ? tr("列标题") : tr("行号"));
    if (isColumns) {
        connect(this, &QHeaderView::sectionDoubleClicked, this, &TableHeader::EditHeading);
        connect(this, &QHeaderView::sectionResized, this, &TableHeader::PlaceEditor);
    }
}

int TableHeader::Along(QPoint at) const {
    return orientation() == Qt::Horizontal ? at.x() : at.y();
}

bool TableHeader::IsWholeSelected(int section) const {
    if (selectionModel() == nullptr) {
        return false;
    }
    const bool isColumns = orientation() == Qt::Horizontal;
    const int last = (isColumns ? model()->rowCount() : model()->columnCount()) - 1;
    const QItemSelection selection = selectionModel()->selection();
    return std::any_of(selection.begin(), selection.end(), [=](const QItemSelectionRange& range) {
        return isColumns ? range.left() <= section && section <= range.right() && range.top() == 0 &&
                               range.bottom() == last
                         : range.top() <= section && section <= range.bottom() && range.left() == 0 &&
                               range.right() == last;
    });
}

/// The section whose near edge is closest.
int TableHeader::BoundaryAt(int along) const {
    const int last = count() - 1; // the empty one at the end
    const int section = logicalIndexAt(along);
    const int first = orientation() == Qt::Horizontal ? kFirstMovableColumn : 0;
    if (section < 0) {
        return along < 0 ? first : last;
    }
    const bool isNearFarEdge = along > sectionViewportPosition(section) + sectionSize(section) / 2;
    return std::clamp(section + (isNearFarEdge ? 1 : 0), first, last);
}

void TableHeader::mousePressEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const int section = logicalIndexAt(at);
    const bool isOnHandle = cursor().shape() == Qt::SplitHCursor || cursor().shape() == Qt::SplitVCursor;
    const bool isMovable = section >= (orientation() == Qt::Horizontal ? kFirstMovableColumn : 0);
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier && !isOnHandle &&
        isMovable && section < count() - 1 && IsWholeSelected(section)) {
        m_pressed = section;
        m_pressedAt = at;
        return;
    }
    QHeaderView::mousePressEvent(event);
}

void TableHeader::mouseMoveEvent(QMouseEvent* event) {
    if (m_pressed < 0) {
        QHeaderView::mouseMoveEvent(event);
        return;
    }
    const QPoint at = event->position().toPoint();
    if (m_drop || (at - m_pressedAt).manhattanLength() >= QApplication::startDragDistance()) {
        m_drop = BoundaryAt(Along(at));
        viewport()->update();
    }
}

void TableHeader::mouseReleaseEvent(QMouseEvent* event) {
    if (m_pressed < 0) {
        QHeaderView::mouseReleaseEvent(event);
        return;
    }
    const int pressed = std::exchange(m_pressed, -1);
    const std::optional<int> drop = std::exchange(m_drop, std::nullopt);
    viewport()->update();
    if (drop) {
        Q_EMIT MoveWanted(*drop);
    } else {
        Q_EMIT sectionPressed(pressed); // selects it alone
    }
}

void TableHeader::contextMenuEvent(QContextMenuEvent* event) {
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const int section = isByKey ? currentIndex().column() : logicalIndexAt(event->pos());
    if (section >= 0) {
        Q_EMIT MenuWanted(section, event->globalPos());
    }
}

void TableHeader::paintEvent(QPaintEvent* event) {
    QHeaderView::paintEvent(event);
    if (!m_drop) {
        return;
    }
    const int at = std::max(sectionViewportPosition(*m_drop), 1);
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
    if (orientation() == Qt::Horizontal) {
        painter.drawLine(at, 0, at, height());
    } else {
        painter.drawLine(0, at, width(), at);
    }
}

void TableHeader::EditHeading(int section) {
    if (orientation() != Qt::Horizontal || section < 0 || section >= count()) {
        return;
    }
    CloseEditor();
    m_edited = section;
    const auto rows = static_cast<std::size_t>(model()->rowCount() - 1);
    const auto columns = static_cast<std::size_t>(model()->columnCount() - 1);
    m_editor = new CellEditor({std::nullopt, static_cast<std::size_t>(section)},
                              model()->headerData(section, orientation(), Qt::EditRole).toString(), rows,
                              columns, viewport());
    m_editor->setAlignment(Qt::AlignCenter);
    m_editor->setAccessibleName(tr("第 %1 列的标题").arg(section + 1));
    m_editor->installEventFilter(this);
    connect(m_editor, &CellEditor::ChangeWanted, this, &TableHeader::ChangeWanted);
    PlaceEditor();
    m_editor->selectAll();
    m_editor->show();
    m_editor->setFocus();
}

void TableHeader::PlaceEditor() {
    if (m_editor != nullptr) {
        m_editor->setGeometry(sectionViewportPosition(m_edited), 0, sectionSize(m_edited), height());
    }
}

void TableHeader::TakeShown() {
    if (m_editor != nullptr) {
        m_editor->TakeShown(model()->headerData(m_edited, orientation(), Qt::EditRole).toString());
        PlaceEditor();
    }
}

/// Closing takes the focus away, which would close it once more.
void TableHeader::CloseEditor() {
    const QPointer<CellEditor> editor = std::exchange(m_editor, nullptr);
    if (editor != nullptr) {
        editor->removeEventFilter(this);
        if (editor->hasFocus()) {
            parentWidget()->setFocus();
        }
        editor->hide();
        editor->deleteLater();
    }
}

/// Is it a key that ends editing?
bool TableHeader::LeaveEditor(int key) {
    const int section = m_edited;
    switch (key) {
    case Qt::Key_Escape:
        m_editor->Revert();
        CloseEditor();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        CloseEditor();
        Q_EMIT HeadingEntered(section);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        CloseEditor();
        Q_EMIT HeadingWanted(section + (key == Qt::Key_Tab ? 1 : -1));
        return true;
    default:
        return false;
    }
}

bool TableHeader::eventFilter(QObject* object, QEvent* event) {
    if (m_editor == nullptr || object != m_editor) {
        return QHeaderView::eventFilter(object, event);
    }
    if (event->type() == QEvent::KeyPress && !m_editor->IsComposing()) {
        return LeaveEditor(static_cast<QKeyEvent*>(event)->key());
    }
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
    }
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason) {
        CloseEditor();
    }
    return false;
}

} // namespace designer
