#pragma once

#include <QFrame>
#include <functional>

class QHBoxLayout;
class QLabel;

namespace designer {

/// A line above the chart with something to know and buttons for what may be done about it; gone once one is
/// pressed.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    struct Answer {
        QString Text;
        std::function<void()> Act;
    };

    /// In the place of what stood there.
    void Tell(const QString& text, const std::vector<Answer>& answers);

private:
    QHBoxLayout* m_layout;
    QLabel* m_text;
    std::vector<QWidget*> m_buttons;
};

} // namespace designer
