#include "table/CellEditor.h"

#include <QInputMethodEvent>
#include <QPainter>
#include <utility>

namespace designer {
namespace {

/// Rows and columns that came into being by typing are taken away again.
void CutTo(DataTable& table, std::size_t rows, std::size_t columns) {
    if (table.RowCount() > rows) {
        table.RemoveRows(rows, table.RowCount() - rows);
    }
    if (table.ColumnCount() > columns) {
        table.RemoveColumns(columns, table.ColumnCount() - columns);
    }
}

TableChange Typing(const TypingPlace& place, const QString& text) {
    return place.Row ? TableChange::TypeText(*place.Row, place.Column, text)
                     : TableChange::TypeHeading(place.Column, text);
}

} // namespace

CellEditor::CellEditor(TypingPlace place, const QString& original, std::size_t rows, std::size_t columns,
                       QWidget* parent)
    : QLineEdit(original, parent), m_place(place), m_original(original), m_rows(rows), m_columns(columns),
      m_told(original), m_shown(original) {
    setFrame(false);
    setAutoFillBackground(true);
    connect(this, &QLineEdit::textEdited, this, &CellEditor::TellText);
}

void CellEditor::Tell(const TableChange& change) {
    m_isTelling = true;
    m_wasTold = true;
    Q_EMIT ChangeWanted(change.Name, change.Apply, m_merge);
    m_isTelling = false;
}

void CellEditor::TellText() {
    if (m_isComposing || text() == m_told) {
        return;
    }
    m_told = text();
    m_shown = m_told;
    Tell(Typing(m_place, m_told));
}

void CellEditor::Revert() {
    if (!m_wasTold) {
        return;
    }
    TableChange change = Typing(m_place, m_original);
    change.Apply = [back = std::move(change.Apply), rows = m_rows, columns = m_columns](DataTable& table) {
        back(table);
        CutTo(table, rows, columns);
    };
    Tell(change);
    m_wasTold = false;
}

void CellEditor::TakeShown(const QString& shown) {
    const bool isOthers = !m_isTelling && shown != m_shown;
    m_shown = shown;
    if (isOthers) {
        m_told = shown;
        setText(shown);
    }
}

void CellEditor::SetTypedOver(bool isTypedOver) {
    m_isTypedOver = isTypedOver;
    if (!isTypedOver) {
        end(false);
    }
}

void CellEditor::inputMethodEvent(QInputMethodEvent* event) {
    m_isComposing = !event->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(event);
    TellText();
}

void CellEditor::mousePressEvent(QMouseEvent* event) {
    m_isTypedOver = false;
    QLineEdit::mousePressEvent(event);
}

void CellEditor::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace designer
