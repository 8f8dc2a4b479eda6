#pragma once

#include "penlode/Font.h"
#include "penlode/Geometry.h"

#include <QPlainTextEdit>
#include <functional>

namespace designer {

/// A text of the page as a person edits it.
struct EditedText {
    QString Text;
    penlode::RectF Box; ///< that it fills now, in mm of the page
    penlode::Font Font;
    QColor Color;
    bool HasLines = false; ///< Ctrl+Enter breaks a line
};

/// An editor in the place of a text, as large as it is on the screen, that grows with it. Enter and whatever
/// takes the keyboard away keep the text, Escape does not; either way the editor goes by itself.
class TextEditor : public QPlainTextEdit {
    Q_OBJECT

public:
    TextEditor(EditedText edited, const QColor& accent, QWidget* parent);

    using Placing = std::function<QRect(const penlode::RectF& onPage)>;

    /// Another zoom, or another part of the page. `pixels` are those of the toolkit, a millimetre.
    void Follow(double pixels, const Placing& place);

Q_SIGNALS:
    /// Once; `isKept` is false after Escape.
    void Finished(bool isKept, const QString& text);

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Finish(bool isKept);
    void Grow();

    EditedText m_edited;
    QColor m_frame;
    QRect m_least; ///< of the text as it was
    bool m_isFinished = false;
};

} // namespace designer
