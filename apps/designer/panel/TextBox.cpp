#include "panel/TextBox.h"

namespace designer {
namespace {

constexpr int kLines = 3;

} // namespace

TextBox::TextBox(const QString& key, QWidget* parent) : QPlainTextEdit(parent), m_key(key) {
    setTabChangesFocus(true);
    const int frame = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    setFixedHeight(kLines * fontMetrics().lineSpacing() + frame);
    connect(this, &QPlainTextEdit::textChanged, this, &TextBox::TellText);
}

/// The signal comes for formats and for what an input method composes as well.
void TextBox::TellText() {
    const QString text = toPlainText();
    if (text != m_told) {
        m_told = text;
        Q_EMIT Typed(text, QStringLiteral("%1-%2").arg(m_key).arg(m_visit));
    }
}

void TextBox::TakeShown(const QString& shown) {
    if (shown != m_told) {
        m_told = shown;
        setPlainText(shown);
    }
}

void TextBox::focusInEvent(QFocusEvent* event) {
    ++m_visit;
    QPlainTextEdit::focusInEvent(event);
}

} // namespace designer
