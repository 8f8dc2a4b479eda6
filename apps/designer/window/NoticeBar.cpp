#include "window/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace designer {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent), m_layout(new QHBoxLayout(this)), m_text(new QLabel(this)) {
    setObjectName(QStringLiteral("notice"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setWordWrap(true);
    m_layout->addWidget(m_text, 1);
    hide();
}

void NoticeBar::Tell(const QString& text, const std::vector<Answer>& answers) {
    for (QWidget* const button : m_buttons) {
        button->deleteLater();
    }
    m_buttons.clear();
    m_text->setText(text);
    setAccessibleName(text);
    for (const Answer& answer : answers) {
        auto* const button = new QPushButton(answer.Text, this);
        connect(button, &QPushButton::clicked, this, [this, act = answer.Act] {
            hide();
            act();
        });
        m_layout->addWidget(button);
        m_buttons.push_back(button);
    }
    show();
}

} // namespace designer
