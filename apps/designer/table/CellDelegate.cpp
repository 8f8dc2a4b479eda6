#include "table/CellDelegate.h"

#include "table/TableModel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <optional>

namespace designer {
namespace {

QColor Mixed(const QColor& base, const QColor& over, double share) {
    const auto mix = [share](float a, float b) { return a + static_cast<float>(share) * (b - a); };
    return QColor::fromRgbF(mix(base.redF(), over.redF()), mix(base.greenF(), over.greenF()),
                            mix(base.blueF(), over.blueF()));
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor MarkColor(const QPalette& palette) {
    return IsDark(palette) ? QColor(0xff, 0x6b, 0x6b) : QColor(0xc8, 0x1e, 0x1e);
}

QColor Ground(const QPalette& palette, const QModelIndex& index) {
    const QColor base = palette.color(QPalette::Base);
    if (index.data(TableModel::OddRole).toBool()) {
        return Mixed(base, MarkColor(palette), IsDark(palette) ? 0.28 : 0.14);
    }
    if (index.data(TableModel::UnusedRole).toBool()) {
        return Mixed(base, palette.color(QPalette::Text), 0.09);
    }
    return index.data(TableModel::HeadRole).toBool() ? Mixed(base, palette.color(QPalette::Highlight), 0.07)
                                                     : base;
}

QPainterPath Wave(double left, double right, double y) {
    constexpr double kStep = 2.0;
    QPainterPath wave(QPointF(left, y));
    bool isUp = true;
    for (double x = left + kStep; x < right + kStep; x += kStep) {
        wave.lineTo(x, isUp ? y - kStep : y);
        isUp = !isUp;
    }
    return wave;
}

/// A corner, and a wave under the text: not by colour alone.
void DrawMark(QPainter& painter, const QStyleOptionViewItem& option) {
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    const QColor color =
        isSelected ? option.palette.color(QPalette::HighlightedText) : MarkColor(option.palette);
    const QRectF cell = option.rect;
    const double size = cell.height() * 0.28;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(cell);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(
        QPolygonF({cell.topRight(), {cell.right() - size, cell.top()}, {cell.right(), cell.top() + size}}));
    const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
    const QRectF box = style.subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget);
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
    const double left = box.left() + margin;
    const double width = std::min(option.fontMetrics.horizontalAdvance(option.text) * 1.0, box.width());
    const double y = cell.bottom() - 1.0; // below the tallest signs too
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 1.0));
    painter.drawPath(Wave(left, left + width, y));
    painter.restore();
}

/// Columns and rows that a key goes on from an editor; nothing for a key of the editor's own.
std::optional<QPoint> StepOf(const QKeyEvent& key, bool isTypedOver) {
    const bool isBack = key.modifiers().testFlag(Qt::ShiftModifier);
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QPoint(0, isBack ? -1 : 1);
    case Qt::Key_Tab:
        return QPoint(1, 0);
    case Qt::Key_Backtab:
        return QPoint(-1, 0);
    case Qt::Key_Up:
        return QPoint(0, -1);
    case Qt::Key_Down:
        return QPoint(0, 1);
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (isTypedOver && key.modifiers() == Qt::NoModifier) {
            return QPoint(key.key() == Qt::Key_Left ? -1 : 1, 0);
        }
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace

void CellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->backgroundBrush = Ground(option->palette, index);
    option->textElideMode = Qt::ElideRight;
    if (index.data(TableModel::UnusedRole).toBool()) {
        option->palette.setColor(QPalette::Text, Mixed(option->palette.color(QPalette::Text),
                                                       option->palette.color(QPalette::Base), 0.4));
    }
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (index.data(TableModel::OddRole).toBool()) {
        QStyleOptionViewItem filled = option;
        initStyleOption(&filled, index);
        DrawMark(*painter, filled);
    }
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
    const QAbstractItemModel& model = *index.model();
    const TypingPlace place{static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())};
    m_editor = new CellEditor(place, index.data(Qt::EditRole).toString(),
                              static_cast<std::size_t>(model.rowCount() - 1),
                              static_cast<std::size_t>(model.columnCount() - 1), parent);
    m_editor->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
    const QString column = model.headerData(index.column(), Qt::Horizontal).toString();
    m_editor->setAccessibleName(tr("第 %1 行，%2").arg(index.row() + 1).arg(column));
    connect(m_editor, &CellEditor::ChangeWanted, this, &CellDelegate::ChangeWanted);
    return m_editor;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    if (auto* cell = qobject_cast<CellEditor*>(editor)) {
        cell->TakeShown(index.data(Qt::EditRole).toString());
    }
}

void CellDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

bool CellDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<CellEditor*>(object);
    if (editor == nullptr || event->type() != QEvent::KeyPress || editor->IsComposing()) {
        return QStyledItemDelegate::eventFilter(object, event);
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() == Qt::Key_Escape) {
        editor->Revert();
        Q_EMIT closeEditor(editor, NoHint);
        return true;
    }
    const std::optional<QPoint> step = StepOf(key, editor->IsTypedOver());
    if (step) {
        Q_EMIT closeEditor(editor, NoHint);
        Q_EMIT Left(*step, key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
        return true;
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

} // namespace designer
