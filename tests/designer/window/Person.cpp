#include "designer/window/Person.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>

namespace designer::test {
namespace {

constexpr int kPatience = 20000; // ms
constexpr int kMoment = 20;

/// "另存为(&A)…" is "另存为".
QString Bare(QString text) {
    text.remove(QChar(u'…'));
    if (const qsizetype mnemonic = text.indexOf(QStringLiteral("(&")); mnemonic >= 0) {
        text.remove(mnemonic, 4);
    }
    return text.remove('&').trimmed();
}

QAction* ActionNamed(const QList<QAction*>& actions, const QString& name) {
    const auto found = std::find_if(actions.begin(), actions.end(), [&](const QAction* action) {
        return Bare(action->text()) == name || Bare(action->text()).startsWith(name + ' ');
    });
    return found == actions.end() ? nullptr : *found;
}

} // namespace

void Settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

bool WaitUntil(const std::function<bool()>& isDone) {
    QElapsedTimer waited;
    waited.start();
    while (!isDone() && waited.elapsed() < kPatience) {
        QTest::qWait(1);
    }
    return isDone();
}

void Click(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(&widget, Qt::LeftButton, modifiers, at);
    Settle();
}

void DoubleClick(QWidget& widget, QPoint at) {
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, at);
    Settle();
}

void Drag(QWidget& widget, QPoint from, QPoint to) {
    constexpr int kSteps = 6;
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    for (int i = 1; i <= kSteps; ++i) {
        const QPoint at = from + (to - from) * i / kSteps;
        QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &move);
        Settle();
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
    Settle();
}

void Hover(QWidget& widget, QPoint at) {
    QTest::mouseMove(&widget, at);
    Settle();
}

void Press(int key, Qt::KeyboardModifiers modifiers) {
    QWidget* const to =
        QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : QApplication::activeWindow();
    ASSERT_NE(to, nullptr) << "nothing takes a key";
    QTest::keyClick(to, static_cast<Qt::Key>(key), modifiers);
    Settle();
}

void Type(const QString& text) {
    for (const QChar character : text) {
        QWidget* const to = QApplication::focusWidget();
        ASSERT_NE(to, nullptr) << "nothing takes a text";
        if (character.unicode() < 0x80U) {
            QTest::keyClick(to, character.toLatin1());
        } else {
            QInputMethodEvent event;
            event.setCommitString(QString(character));
            QApplication::sendEvent(to, &event);
        }
        Settle();
    }
}

bool ChooseFromMenus(QWidget& window, const QStringList& names) {
    QMenuBar* const bar = static_cast<QMainWindow&>(window).menuBar();
    QAction* action = ActionNamed(bar->actions(), names.front());
    if (action == nullptr) {
        return false;
    }
    Click(*bar, bar->actionGeometry(action).center());
    for (qsizetype i = 1; i < names.size(); ++i) {
        QMenu* const menu = action->menu();
        if (menu == nullptr || !WaitUntil([menu] { return menu->isVisible(); })) {
            return false;
        }
        action = ActionNamed(menu->actions(), names[i]);
        if (action == nullptr || !action->isEnabled()) {
            menu->close();
            return false;
        }
        Click(*menu, menu->actionGeometry(action).center());
    }
    return true;
}

void ClickItem(QAbstractItemView& view, const QModelIndex& index) {
    view.scrollTo(index);
    Click(*view.viewport(), view.visualRect(index).center());
}

void InModals(const std::vector<Act>& acts, const std::function<void()>& open) {
    const QPointer<QWidget> behind = QApplication::activeWindow();
    const QWidget* last = QApplication::activeModalWidget();
    std::size_t done = 0;
    QElapsedTimer waited;
    waited.start();
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* const modal = QApplication::activeModalWidget();
        if (modal != nullptr && modal != last && modal->isActiveWindow() && done < acts.size()) {
            last = modal;
            acts[done++](*modal);
        } else if (waited.elapsed() > kPatience && modal != nullptr) {
            modal->close(); // rather than wait for ever
        }
    });
    watch.start(kMoment);
    open();
    WaitUntil([&] { return done == acts.size() && QApplication::activeModalWidget() == nullptr; });
    EXPECT_EQ(done, acts.size()) << "a window did not come";
    if (behind != nullptr) {
        behind->activateWindow(); // a screen's window manager would
    }
    Settle();
}

void ChooseFile(QWidget& dialog, const QString& file) {
    auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(name, nullptr);
    name->setFocus();
    name->selectAll();
    Type(file);
    QTest::keyClick(name, Qt::Key_Return);
    Settle();
}

bool PressButton(QWidget& dialog, const QString& text) {
    for (QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) {
        if (Bare(button->text()) == text && button->isVisible() && button->isEnabled()) {
            QTest::mouseClick(button, Qt::LeftButton);
            return true;
        }
    }
    return false;
}

} // namespace designer::test
