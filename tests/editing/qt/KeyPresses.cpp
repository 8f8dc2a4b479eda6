#include "editing/qt/KeyPresses.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

namespace {

const char* g_keys = "";

int KeyOf(char character) {
    switch (character) {
    case '\t':
        return Qt::Key_Tab;
    case '\n':
        return Qt::Key_Return;
    case '\033':
        return Qt::Key_Escape;
    default:
        return character;
    }
}

/// Waits for a dialog and its focus; without a window manager it must be given the keyboard.
void PressNext() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != nullptr && !dialog->isActiveWindow()) {
        dialog->activateWindow();
    } else if (dialog != nullptr && *g_keys != '\0' && QApplication::focusWidget() != nullptr) {
        const char key = *g_keys++;
        QCoreApplication::postEvent(QApplication::focusWidget(),
                                    new QKeyEvent(QEvent::KeyPress, KeyOf(key), Qt::NoModifier, QChar(key)));
    }
}

/// Runs in the application's constructor, whoever calls that.
void Begin() {
    auto* timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, PressNext);
    timer->start(5);
}

Q_COREAPP_STARTUP_FUNCTION(Begin)

} // namespace

void PressKeys(const char* keys) {
    g_keys = keys;
}
