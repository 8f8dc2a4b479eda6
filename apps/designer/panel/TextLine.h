#pragma once

#include <QLineEdit>
#include <QString>

namespace designer {

/// A line for a text of the document, told at each change; those of one visit have the same `merge`.
class TextLine : public QLineEdit {
    Q_OBJECT

public:
    /// `key` tells the text from others.
    explicit TextLine(const QString& key, QWidget* parent = nullptr);

    /// Does not disturb who is typing that very text.
    void TakeShown(const QString& text);

Q_SIGNALS:
    void Typed(QString text, QString merge);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    QString m_key;
    int m_visit = 0;
};

} // namespace designer
