#include "editing/ValueRanges.h"
#include "editing/qt/User.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>

namespace millichart::test {
namespace {

constexpr const char* kNatural = "自然坐标设置";
constexpr const char* kLogarithm = "对数坐标设置";

/// Puts a text into an edit as a user does, and presses OK.
std::function<void()> Enter(const char* name, const char* text) {
    return [name, text] {
        auto& edit = User::Find<QLineEdit>(name);
        edit.setFocus();
        edit.selectAll();
        User::Type(text);
        User::Press(Qt::Key_Return);
    };
}

TEST(NaturalRange, StaysOpenUntilAllIsRight) {
    User user;
    user.In(kNatural, [] {
        EXPECT_TRUE(User::Find<QLineEdit>("最小值").isReadOnly());
        Enter("最大值", "0")();
    });
    user.Answer(kNatural, "最大值应大于最小值。", QMessageBox::Ok);
    user.In(kNatural, Enter("最大值", "200"));
    user.Answer(kNatural, "步长过小,可能要花很多时间进行计算。\n是否继续?", QMessageBox::Yes);
    user.In(kNatural, Enter("主刻度步长", "50"));
    user.Answer(kNatural, "步长过小,可能要花很多时间进行计算。\n是否继续?", QMessageBox::No);
    user.In(kNatural, Enter("次刻度步长", "12.5"));
    double minimum = 0;
    double maximum = 100;
    double major = 10;
    double minor = 0.01;
    EXPECT_TRUE(EditNaturalValueRange(&minimum, &maximum, &major, &minor));
    EXPECT_EQ((std::array{minimum, maximum, major, minor}), (std::array{0.0, 200.0, 50.0, 12.5}));
}

TEST(LogarithmRange, AsksForBothEnds) {
    User user;
    user.In(kLogarithm, [] {
        EXPECT_EQ(User::Find<QComboBox>("最小值").count(), 14);
        EXPECT_EQ(User::Find<QComboBox>("最小值").currentIndex(), -1);
        EXPECT_EQ(User::Find<QComboBox>("最大值").currentText(), "1000");
        User::Press(Qt::Key_End);
        User::Find<QComboBox>("最小值").setCurrentIndex(-1);
        User::Find<QComboBox>("最大值").setFocus();
        User::Press(Qt::Key_Return);
    });
    user.Answer(kLogarithm, "请选择最小值。", QMessageBox::Ok);
    user.In(kLogarithm, [] {
        EXPECT_EQ(User::FocusName(), "最小值");
        User::Press(Qt::Key_End);
        User::Press(Qt::Key_Return);
    });
    user.Answer(kLogarithm, "最大值应大于最小值。", QMessageBox::Ok);
    user.In(kLogarithm, [] {
        User::Press(Qt::Key_Home);
        User::Press(Qt::Key_Down);
        User::Press(Qt::Key_Tab);
        User::Press(Qt::Key_Up);
        User::Press(Qt::Key_Return);
    });
    double minimum = 0.5;
    double maximum = 1000;
    EXPECT_TRUE(EditLogarithmValueRange(&minimum, &maximum));
    EXPECT_EQ((std::array{minimum, maximum}), (std::array{0.00001, 100.0}));
}

} // namespace
} // namespace millichart::test
