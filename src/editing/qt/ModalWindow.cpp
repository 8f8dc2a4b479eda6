#include "editing/qt/ModalWindow.h"

#include "editing/qt/DialogUnits.h"
#include "editing/qt/QtValues.h"

#include <QWindow>

namespace millichart {
namespace {

constexpr int kFrame = 16; // ms

} // namespace

ModalWindow::ModalWindow(QWidget* owner, std::string_view title) : m_owner(owner) {
    setWindowTitle(ToQString(title));
    setFont(DialogFont());
    // The host's application does not end with the last window of ours.
    setAttribute(Qt::WA_QuitOnClose, false);
    m_changes.setSingleShot(true);
    m_changes.setInterval(kFrame);
    connect(&m_changes, &QTimer::timeout, this, [this] { Guard([this] { OnChanged(); }); });
}

bool ModalWindow::Run() {
    if (m_owner != nullptr) {
        adjustPosition(m_owner);
        winId(); // makes the window handle
        windowHandle()->setTransientParent(m_owner->window()->windowHandle());
    }
    return exec() == Accepted;
}

void ModalWindow::MarkChanged() {
    if (isVisible() && !m_changes.isActive()) {
        m_changes.start();
    }
}

void ModalWindow::accept() {
    Guard([this] {
        if (OnOK()) {
            QDialog::accept();
        }
    });
}

void ModalWindow::done(int result) {
    m_changes.stop();
    QDialog::done(result);
}

} // namespace millichart
