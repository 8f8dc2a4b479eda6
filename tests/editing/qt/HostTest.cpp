// What a host sees of the library besides its windows.
#include "editing/Edit.h"
#include "editing/qt/User.h"
#include "penlode/Pen.h"

#include <QApplication>
#include <QTranslator>
#include <QWindow>
#include <gtest/gtest.h>
#include <thread>

namespace millichart::test {
namespace {

/// A host's translation of what Qt says.
struct Shouting : QTranslator {
    bool isEmpty() const override { return false; }

    QString translate(const char*, const char* source, const char*, int) const override {
        return QString::fromUtf8(source).toUpper();
    }
};

TEST(Host, IsRefusedWhereNoWidgetsAre) {
    testing::FLAGS_gtest_death_test_style = "threadsafe"; // a process without an application
    const auto editWithoutWidgets = [] {
        int count = 0;
        const QCoreApplication application(count, nullptr);
        penlode::Pen pen;
        std::exit(EditPen(&pen) ? 1 : 42);
    };
    EXPECT_EXIT(editWithoutWidgets(), testing::ExitedWithCode(42), "");

    const User user;
    bool isAccepted = true;
    std::thread([&] {
        penlode::Pen pen;
        isAccepted = EditPen(&pen);
    }).join();
    EXPECT_FALSE(isAccepted);
    EXPECT_FALSE(EditPen(nullptr));
}

TEST(Host, KeepsItsTranslationsAndItsWindow) {
    User user;
    Shouting translator;
    QCoreApplication::installTranslator(&translator);
    auto window = std::make_unique<QWidget>();
    window->show();
    window->activateWindow();
    QCoreApplication::processEvents();

    user.In("线条属性", [&] {
        EXPECT_EQ(User::Front().windowHandle()->transientParent(), window->windowHandle());
        EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "OK"), "确定");
        window.reset(); // the dialog outlives the window that it is on
        User::Press(Qt::Key_Return);
    });
    penlode::Pen pen;
    EXPECT_TRUE(EditPen(&pen));
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "OK"), "OK");
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "CANCEL");
}

} // namespace
} // namespace millichart::test
