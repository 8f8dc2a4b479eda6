#include "canvas/TextEditor.h"

#include "penlode/text/FontFace.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>
#include <cmath>

namespace designer {
namespace {

constexpr int kBorder = 2; // the frame, and as much air

QFont ScreenFont(const penlode::Font& font, double pixels) {
    QFont result(QString::fromStdWString(penlode::ResolvedFamily(font.Family)));
    constexpr int kLeast = 11; // on a page that is drawn small a person still reads what he types
    result.setPixelSize(std::max(kLeast, static_cast<int>(std::lround(font.Size * pixels))));
    result.setBold(font.Has(penlode::FontStyle::Bold));
    result.setItalic(font.Has(penlode::FontStyle::Italic));
    result.setUnderline(font.Has(penlode::FontStyle::Underline));
    result.setStrikeOut(font.Has(penlode::FontStyle::Strikeout));
    return result;
}

} // namespace

TextEditor::TextEditor(EditedText edited, const QColor& accent, QWidget* parent)
    : QPlainTextEdit(parent), m_edited(std::move(edited)), m_frame(accent) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
    // White as the page on any desk.
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::white);
    colors.setColor(QPalette::Text, m_edited.Color);
    colors.setColor(QPalette::Highlight, accent);
    colors.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colors);
    document()->setDocumentMargin(1);
    QTextOption option(Qt::AlignHCenter);
    document()->setDefaultTextOption(option);
    setPlainText(m_edited.Text);
    selectAll();
    connect(this, &QPlainTextEdit::textChanged, this, &TextEditor::Grow);
}

void TextEditor::Follow(double pixels, const Placing& place) {
    setFont(ScreenFont(m_edited.Font, pixels));
    m_least = place(m_edited.Box);
    Grow();
}

/// As large as the old text at least, and about its middle; the viewport's edge ends it.
void TextEditor::Grow() {
    const QFontMetricsF metrics(font());
    double wide = 0.0;
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        wide = std::max(wide, metrics.horizontalAdvance(block.text() + block.layout()->preeditAreaText()));
        ++lines;
    }
    const double margins = 2.0 * (document()->documentMargin() + kBorder);
    const double em = metrics.height();
    const QSize size(static_cast<int>(std::ceil(std::max<double>(m_least.width(), wide + em) + margins)),
                     static_cast<int>(std::ceil(std::max<double>(m_least.height(), lines * em) + margins)));
    QRect box(QPoint(), size.boundedTo(parentWidget()->size()));
    box.moveCenter(m_least.center());
    box.moveLeft(std::clamp(box.left(), 0, parentWidget()->width() - box.width()));
    box.moveTop(std::clamp(box.top(), 0, parentWidget()->height() - box.height()));
    // A shorter text stands in the middle of the box.
    const int air = static_cast<int>((box.height() - margins - lines * em) / 2.0);
    setViewportMargins(kBorder, kBorder + std::max(air, 0), kBorder, kBorder);
    setGeometry(box);
}

/// The frame and the air round the text, which are the page's white.
bool TextEditor::event(QEvent* event) {
    if (event->type() != QEvent::Paint) {
        return QPlainTextEdit::event(event);
    }
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(m_frame);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    return true;
}

void TextEditor::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        Finish(false);
    } else if (isEnter && event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::ShiftModifier)) {
        if (m_edited.HasLines) {
            insertPlainText(QStringLiteral("\n"));
        }
    } else if (isEnter) {
        Finish(true);
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
}

void TextEditor::inputMethodEvent(QInputMethodEvent* event) {
    QPlainTextEdit::inputMethodEvent(event);
    Grow();
}

void TextEditor::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) { // its own menu
        Finish(true);
    }
}

void TextEditor::Finish(bool isKept) {
    if (m_isFinished) {
        return;
    }
    if (isKept && hasFocus()) {
        QGuiApplication::inputMethod()->commit(); // what is still being composed
    }
    m_isFinished = true;
    Q_EMIT Finished(isKept, toPlainText());
    deleteLater();
}

} // namespace designer
