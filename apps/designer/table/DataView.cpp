#include "table/DataView.h"

#include "table/CellDelegate.h"
#include "table/EdgeOfData.h"
#include "table/TableHeader.h"
#include "table/TableMenus.h"
#include "table/TableModel.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace designer {
namespace {

constexpr int kSampledRows = 100;

QPoint CellOf(const QModelIndex& index) {
    return {std::max(index.column(), 0), std::max(index.row(), 0)};
}

/// A step to one of four sides; none for another key.
QPoint ArrowOf(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    default:
        return {};
    }
}

} // namespace

DataView::DataView(QWidget* parent)
    : QTableView(parent), m_model(new TableModel(this)), m_delegate(new CellDelegate(this)),
      m_columnHeader(new TableHeader(Qt::Horizontal, this)),
      m_rowHeader(new TableHeader(Qt::Vertical, this)) {
    setAccessibleName(tr("数据表"));
    setAccessibleDescription(tr("图表的数据：第一列是名称或时间，其余各列是数"));
    setHorizontalHeader(m_columnHeader);
    setVerticalHeader(m_rowHeader);
    setModel(m_model);
    setItemDelegate(m_delegate);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setCornerButtonEnabled(true);
    m_rowHeader->setSectionResizeMode(QHeaderView::Fixed);
    m_rowHeader->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
    m_columnHeader->setMinimumSectionSize(fontMetrics().averageCharWidth() * 4);
    connect(m_delegate, &CellDelegate::ChangeWanted, this, &DataView::ChangeWanted);
    connect(m_delegate, &CellDelegate::Left, this, &DataView::Step);
    SetUpHeader(*m_columnHeader);
    SetUpHeader(*m_rowHeader);
    setCurrentIndex(m_model->index(0, 0));
}

void DataView::SetUpHeader(TableHeader& header) {
    connect(&header, &TableHeader::ChangeWanted, this, &DataView::ChangeWanted);
    connect(&header, &TableHeader::HeadingWanted, this, &DataView::EditHeading);
    connect(&header, &TableHeader::HeadingEntered, this, [this](int column) { GoTo({column, 0}, false); });
    connect(&header, &TableHeader::MenuWanted, this,
            [this, &header](int section, QPoint onScreen) { OpenHeaderMenu(header, section, onScreen); });
    connect(&header, &TableHeader::MoveWanted, this, [this, &header](int before) {
        const bool isColumns = header.orientation() == Qt::Horizontal;
        const CellRange range = SelectedBounds();
        if (isColumns) {
            MoveColumnsTo({range.Column, range.Columns}, static_cast<std::size_t>(before), {});
        } else {
            MoveRowsTo({range.Row, range.Rows}, static_cast<std::size_t>(before), {});
        }
    });
}

void DataView::Show(const DataTable& table) {
    Show(std::make_shared<const DataTable>(table));
}

void DataView::Show(std::shared_ptr<const DataTable> table) {
    const int columns = std::exchange(m_wasShown, true) ? m_model->columnCount() : 0;
    m_model->Show(std::move(table));
    if (m_model->columnCount() > columns) {
        FitColumns(std::max(columns - 1, 0));
    }
    WidenCurrentColumn();
    m_columnHeader->TakeShown();
    SumUpSoon();
}

/// By the first rows; no column gets so wide that it hides the others.
void DataView::FitColumns(int first) {
    const int unit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int rows = std::min(m_model->rowCount(), kSampledRows);
    for (int column = first; column < m_model->columnCount(); ++column) {
        int width = m_columnHeader->sectionSizeHint(column);
        for (int row = 0; row < rows; ++row) {
            const QString text = m_model->index(row, column).data().toString();
            width = std::max(width, fontMetrics().horizontalAdvance(text) + 2 * unit);
        }
        const bool isNext = column == m_model->columnCount() - 1;
        setColumnWidth(column, std::clamp(width, isNext ? 6 * unit : 10 * unit, 30 * unit));
    }
}

/// So that what is being typed is seen.
void DataView::WidenCurrentColumn() {
    const QModelIndex current = currentIndex();
    const int unit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int width = fontMetrics().horizontalAdvance(current.data().toString()) + 3 * unit;
    if (current.isValid() && width > columnWidth(current.column())) {
        setColumnWidth(current.column(), std::min(width, 40 * unit));
    }
}

bool DataView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const QPointer<CellEditor> before = m_delegate->OpenEditor();
    const bool isOpen = QTableView::edit(index, trigger, event);
    CellEditor* const editor = m_delegate->OpenEditor();
    if (isOpen && editor != nullptr && editor != before) {
        editor->SetTypedOver(trigger == AnyKeyPressed);
    }
    return isOpen;
}

/// Qt opens an editor for a composition; a sign that the input method gives at once would be lost.
void DataView::inputMethodEvent(QInputMethodEvent* event) {
    const bool isAtOnce = event->preeditString().isEmpty() && !event->commitString().isEmpty();
    if (isAtOnce && m_delegate->OpenEditor() == nullptr) {
        edit(currentIndex(), AnyKeyPressed, nullptr);
        if (CellEditor* const editor = m_delegate->OpenEditor()) {
            editor->selectAll();
            QCoreApplication::sendEvent(editor, event);
        }
        return;
    }
    QTableView::inputMethodEvent(event);
}

void DataView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!m_isStepping) {
        m_tabStart.reset();
    }
    if (current.isValid()) {
        Q_EMIT CurrentCellChanged(static_cast<std::size_t>(current.row()),
                                  static_cast<std::size_t>(current.column()));
    }
}

void DataView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    SumUpSoon();
}

void DataView::SumUpSoon() {
    if (!std::exchange(m_isSumDue, true)) {
        QTimer::singleShot(0, this, [this] {
            m_isSumDue = false;
            Q_EMIT SelectionSummed(SumUp(m_model->Table(), SelectedRanges()));
        });
    }
}

void DataView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    m_columnHeader->TakeShown();
}

/// Keys that a window's menu may have too are the table's while it has the focus.
bool DataView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const bool isOwn = key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Cut) ||
                           key.matches(QKeySequence::Paste) || key.matches(QKeySequence::Delete) ||
                           key.matches(QKeySequence::SelectAll) || key.key() == Qt::Key_F2 ||
                           (key.key() == Qt::Key_D && key.modifiers() == Qt::ControlModifier) ||
                           (!ArrowOf(key).isNull() && key.modifiers() == Qt::AltModifier);
        if (isOwn) {
            event->accept();
            return true;
        }
    }
    return QTableView::event(event);
}

void DataView::keyPressEvent(QKeyEvent* event) {
    if (AnswerCommand(*event) || AnswerMove(*event)) {
        event->accept();
        return;
    }
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (isTab) {
        event->ignore(); // at the table's corner it goes on to the next control
        return;
    }
    QTableView::keyPressEvent(event);
}

bool DataView::AnswerCommand(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Copy)) {
        Copy();
    } else if (key.matches(QKeySequence::Cut)) {
        Cut();
    } else if (key.matches(QKeySequence::Paste)) {
        Paste();
    } else if (key.matches(QKeySequence::Delete)) {
        Clear();
    } else if (key.key() == Qt::Key_D && key.modifiers() == Qt::ControlModifier) {
        FillDown();
    } else if (key.key() == Qt::Key_F2 && (key.modifiers() == Qt::ShiftModifier ||
                                           m_columnHeader->IsWholeSelected(currentIndex().column()))) {
        EditHeading(currentIndex().column());
    } else {
        return false;
    }
    return true;
}

bool DataView::AnswerMove(const QKeyEvent& key) {
    const QPoint arrow = ArrowOf(key);
    const bool isShift = key.modifiers().testFlag(Qt::ShiftModifier);
    if (!arrow.isNull() && key.modifiers().testFlag(Qt::AltModifier)) {
        m_heldKey = key.isAutoRepeat() ? m_heldKey : NewMergeKey();
        arrow.y() != 0 ? MoveRows(arrow.y(), m_heldKey) : MoveColumns(arrow.x(), m_heldKey);
    } else if (!arrow.isNull() && key.modifiers().testFlag(Qt::ControlModifier)) {
        GoTo(EdgeOfData(m_model->Table(), CellOf(currentIndex()), arrow), isShift);
    } else if (key.key() == Qt::Key_End && key.modifiers().testFlag(Qt::ControlModifier)) {
        GoTo({m_model->columnCount() - 2, std::max(m_model->rowCount() - 2, 0)}, isShift);
    } else if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
        Step({0, isShift ? -1 : 1}, true);
    } else if (key.key() == Qt::Key_Tab && CanStepOn(1)) {
        Step({1, 0}, false);
    } else if (key.key() == Qt::Key_Backtab && CanStepOn(-1)) {
        Step({-1, 0}, false);
    } else {
        return false;
    }
    return true;
}

bool DataView::CanStepOn(int columns) const {
    const QPoint at = CellOf(currentIndex());
    return columns > 0 ? at != QPoint(m_model->columnCount() - 1, m_model->rowCount() - 1) : at != QPoint();
}

/// From the last column Tab goes on in the next row.
void DataView::Step(QPoint by, bool isEnter) {
    const QPoint at = CellOf(currentIndex());
    QPoint to = at + by;
    if (to.x() >= m_model->columnCount() || to.x() < 0) {
        to = {by.x() > 0 ? 0 : m_model->columnCount() - 1, at.y() + by.x()};
    }
    std::optional<int> tabStart;
    if (by.x() != 0) {
        tabStart = m_tabStart.value_or(at.x());
    } else if (isEnter && m_tabStart) {
        to.setX(*m_tabStart);
    }
    m_isStepping = true;
    GoTo({to.x(), std::clamp(to.y(), 0, m_model->rowCount() - 1)}, false);
    m_isStepping = false;
    m_tabStart = tabStart;
}

void DataView::GoTo(QPoint cell, bool isExtending) {
    const QModelIndex to = model()->index(cell.y(), cell.x());
    if (!isExtending) {
        selectionModel()->setCurrentIndex(to, QItemSelectionModel::ClearAndSelect);
        return;
    }
    const QPoint at = CellOf(currentIndex());
    const QRect bounds = [this, at] {
        const CellRange range = SelectedBounds();
        return QRect(static_cast<int>(range.Column), static_cast<int>(range.Row),
                     static_cast<int>(range.Columns), static_cast<int>(range.Rows))
            .united(QRect(at, QSize(1, 1)));
    }();
    // The end of the selection that is not at the current cell stays where it is.
    const QPoint fixed(at.x() == bounds.right() ? bounds.left() : bounds.right(),
                       at.y() == bounds.bottom() ? bounds.top() : bounds.bottom());
    selectionModel()->select(QItemSelection(model()->index(fixed.y(), fixed.x()), to),
                             QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(to, QItemSelectionModel::NoUpdate);
}

void DataView::EditHeading(int column) {
    if (column < 0 || column >= m_model->columnCount()) {
        return;
    }
    scrollTo(model()->index(std::max(rowAt(0), 0), column));
    m_columnHeader->EditHeading(column);
}

void DataView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    AddCellActions(menu, *this);
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    menu.exec(isByKey ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                      : event->globalPos());
}

void DataView::OpenHeaderMenu(const TableHeader& header, int section, QPoint onScreen) {
    QMenu menu(this);
    const auto at = static_cast<std::size_t>(section);
    if (header.orientation() == Qt::Horizontal) {
        if (!header.IsWholeSelected(section)) {
            SelectColumns({at, 1});
        }
        AddColumnActions(menu, *this, section);
    } else {
        if (!header.IsWholeSelected(section)) {
            SelectRows({at, 1});
        }
        AddRowActions(menu, *this);
    }
    menu.exec(onScreen);
}

} // namespace designer
