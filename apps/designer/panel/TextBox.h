#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace designer {

/// As TextLine, for a text of several lines.
class TextBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit TextBox(const QString& key, QWidget* parent = nullptr);

    void TakeShown(const QString& text);

Q_SIGNALS:
    void Typed(QString text, QString merge);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void TellText();

    QString m_key;
    QString m_told;
    int m_visit = 0;
};

} // namespace designer
