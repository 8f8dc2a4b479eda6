#include "editing/qt/User.h"

#include "editing/qt/EditingCall.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>

namespace millichart::test {
namespace {

constexpr int kTick = 5; // ms
constexpr int kMaxTicks = 2000;

/// A window gets the keyboard a little after it shows; an open list has it in its window's place. Without a
/// screen there is no window manager to give it back when a window on it was closed.
bool HasKeyboard(QWidget& front) {
    const bool has = front.isActiveWindow() || QApplication::activePopupWidget() != nullptr;
    if (!has) {
        front.activateWindow();
    }
    return has;
}

} // namespace

User::User() {
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    EXPECT_TRUE(EditingCall().CanShow()); // makes the application, without which no timer runs
    Watch();
}

User::~User() {
    *m_isThere = false;
    EXPECT_TRUE(m_steps.empty()) << "never seen: " << m_steps.front().Title.toStdString();
}

void User::In(const char* title, std::function<void()> act) {
    In(
        title, [] { return true; }, std::move(act));
}

void User::In(const char* title, std::function<bool()> isReady, std::function<void()> act) {
    m_steps.push_back({QString::fromUtf8(title), std::move(isReady), std::move(act)});
}

void User::Answer(const char* title, const char* message, int button) {
    const auto isBox = [] { return dynamic_cast<QMessageBox*>(&Front()) != nullptr; };
    In(title, isBox, [message, button] {
        auto& box = dynamic_cast<QMessageBox&>(Front());
        EXPECT_EQ(box.text().toStdString(), message);
        QTest::mouseClick(box.button(static_cast<QMessageBox::StandardButton>(button)), Qt::LeftButton);
    });
}

void User::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &Front(), key, modifiers);
}

/// As an input method does, by which any text comes.
void User::Type(const char* text) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(QApplication::focusWidget(), &event);
}

void User::EnterColor(const char* color) {
    for (QLineEdit* edit : Front().findChildren<QLineEdit*>()) {
        if (edit->text().startsWith(QLatin1Char('#'))) {
            edit->setText(QString::fromUtf8(color));
            Q_EMIT edit->textEdited(edit->text());
        }
    }
    Find<QPushButton>("确定").click();
}

QDialog& User::Front() {
    return dynamic_cast<QDialog&>(*QApplication::activeModalWidget());
}

QString User::FocusName() {
    const QWidget* focus = QApplication::focusWidget();
    return focus != nullptr ? NameOf(*focus) : QString();
}

/// What a screen reader reads out: a button that was given no name of its own has its text's.
QString User::NameOf(const QWidget& widget) {
    const auto* button = dynamic_cast<const QAbstractButton*>(&widget);
    const QString name = widget.accessibleName();
    return name.isEmpty() && button != nullptr ? button->text().remove('&') : name;
}

QWidget& User::Named(const char* name, const std::function<bool(QWidget*)>& isKind) {
    for (QWidget* widget : Front().findChildren<QWidget*>()) {
        if (isKind(widget) && NameOf(*widget) == QString::fromUtf8(name)) {
            return *widget;
        }
    }
    throw std::runtime_error(std::string("no control ") + name);
}

/// A timer does not fire within its own event, in which a nested window may run: each tick is a new one.
void User::Watch() {
    QTimer::singleShot(kTick, qApp, [this, isThere = m_isThere] {
        if (*isThere) {
            Watch();
            Tick();
        }
    });
}

void User::Tick() {
    QWidget* front = QApplication::activeModalWidget();
    if (front == nullptr || !front->isVisible()) {
        return;
    }
    if (++m_ticks > kMaxTicks) {
        GiveUp();
    } else if (!m_steps.empty() && front->windowTitle() == m_steps.front().Title && HasKeyboard(*front) &&
               m_steps.front().IsReady()) {
        const auto act = std::move(m_steps.front().Act);
        m_steps.pop_front();
        m_ticks = 0;
        try {
            act();
        } catch (const std::exception& failure) {
            ADD_FAILURE() << failure.what();
        }
    }
}

void User::GiveUp() {
    ADD_FAILURE() << "still in front: " << Front().windowTitle().toStdString();
    Front().done(QDialog::Rejected);
}

} // namespace millichart::test
