#include "editing/qt/Stepper.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace millichart {

Stepper::Stepper(QLineEdit* edit, QWidget* parent) : QWidget(parent), m_edit(edit) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    AddArrow(Qt::UpArrow, 1);
    AddArrow(Qt::DownArrow, -1);
    m_edit->installEventFilter(this);
}

void Stepper::AddArrow(Qt::ArrowType arrow, int delta) {
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    connect(button, &QToolButton::clicked, this, [this, delta] {
        m_edit->setFocus(Qt::MouseFocusReason);
        OnStep(delta);
    });
    layout()->addWidget(button);
}

bool Stepper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            OnStep(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace millichart
