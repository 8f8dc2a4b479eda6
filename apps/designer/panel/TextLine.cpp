#include "panel/TextLine.h"

namespace designer {

TextLine::TextLine(const QString& key, QWidget* parent) : QLineEdit(parent), m_key(key) {
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        Q_EMIT Typed(text, QStringLiteral("%1-%2").arg(m_key).arg(m_visit));
    });
}

void TextLine::TakeShown(const QString& shown) {
    if (shown != text()) {
        setText(shown);
        setCursorPosition(0);
    }
}

void TextLine::focusInEvent(QFocusEvent* event) {
    ++m_visit;
    QLineEdit::focusInEvent(event);
}

} // namespace designer
