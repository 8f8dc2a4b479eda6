#include "editing/ColorButton.h"
#include "editing/Edit.h"
#include "editing/LineStyleComboBox.h"
#include "editing/qt/Stepper.h"
#include "editing/qt/User.h"
#include "penlode/Pen.h"

#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

namespace millichart::test {
namespace {

using penlode::DashStyle;
using penlode::Pen;

constexpr const char* kTitle = "线条属性";

QLineEdit& Width() {
    return User::Find<QLineEdit>("线宽(W)");
}

TEST(PenDialog, RefusesAWidthUntilItIsRight) {
    User user;
    user.In(kTitle, [] {
        EXPECT_EQ(Width().text(), "0.25");
        Width().selectAll();
        Width().setFocus();
        User::Type("20.5");
        User::Find<QPushButton>("确定").click();
    });
    user.Answer(kTitle, "线宽应 >= 0, 且 <= 20。", QMessageBox::Ok);
    user.In(kTitle, [] {
        EXPECT_EQ(User::FocusName(), "线宽(W)");
        EXPECT_EQ(Width().selectedText(), "20.5");
        User::Type("19.95");
        const auto arrows = User::Find<Stepper>("线宽(W)").findChildren<QToolButton*>();
        QTest::mouseClick(arrows.at(0), Qt::LeftButton);
        EXPECT_EQ(Width().text(), "0.1");
        QTest::mouseClick(arrows.at(1), Qt::LeftButton);
        EXPECT_EQ(Width().text(), "20");
        EXPECT_EQ(User::FocusName(), "线宽(W)");
        User::Press(Qt::Key_Up);
        User::Press(Qt::Key_Up);
        EXPECT_EQ(Width().text(), "0.2");
        User::Press(Qt::Key_Return);
    });
    Pen pen({0x80123456U}, 0.25F);
    EXPECT_TRUE(EditPen(&pen));
    EXPECT_EQ(pen.GetColor(), penlode::Color{0xFF123456U});
    EXPECT_FLOAT_EQ(pen.GetWidth(), 0.2F);
    EXPECT_EQ(pen.GetDashStyle(), DashStyle::Solid);
}

TEST(PenDialog, IsUsedByKeyboardAlone) {
    User user;
    user.In(kTitle, [] {
        for (const char* name : {"线型(S)", "颜色(C)", "线宽(W)", "确定", "取消", "线型(S)"}) {
            EXPECT_EQ(User::FocusName().toStdString(), name);
            User::Press(Qt::Key_Tab);
        }
        User::Press(Qt::Key_S, Qt::AltModifier);
        User::Press(Qt::Key_Down);
        User::Press(Qt::Key_Down);
        User::Press(Qt::Key_W, Qt::AltModifier);
        User::Type("1.5");
        User::Press(Qt::Key_Down);
        User::Press(Qt::Key_C, Qt::AltModifier);
        User::Press(Qt::Key_Space);
    });
    const auto hasFocus = [] {
        const QWidget* focus = QApplication::focusWidget();
        return focus != nullptr && focus->window() == &User::Front();
    };
    user.In("选择颜色", hasFocus, [] {
        User::Press(Qt::Key_H, Qt::AltModifier);
        User::Type("#0a0b0c");
        User::Press(Qt::Key_Return);
    });
    user.In(kTitle, [] {
        EXPECT_EQ(User::Find<marrowkit::CColorButton>("颜色(C)").Color(), 0x0C0B0AU);
        User::Press(Qt::Key_Tab);
        User::Press(Qt::Key_Return);
    });
    Pen pen;
    EXPECT_TRUE(EditPen(&pen));
    EXPECT_EQ(pen.GetColor(), penlode::Color{0xFF0A0B0CU});
    EXPECT_FLOAT_EQ(pen.GetWidth(), 1.4F);
    EXPECT_EQ(pen.GetDashStyle(), DashStyle::Dot);
}

TEST(PenDialog, ChangesNothingWhenItIsCancelledOrClosed) {
    const std::array<std::function<void()>, 3> leave{[] { User::Press(Qt::Key_Escape); },
                                                     [] { User::Find<QPushButton>("取消").click(); },
                                                     [] { User::Front().close(); }};
    for (const auto& act : leave) {
        User user;
        user.In(kTitle, [&act] {
            Width().setText("3");
            act();
        });
        Pen pen({0x80123456U}, 0.25F);
        const Pen before = pen;
        EXPECT_FALSE(EditPen(&pen));
        EXPECT_EQ(pen, before);
    }
}

TEST(PenDialog, PreviewsWhatOkWouldGiveOnceAFrame) {
    std::vector<float> told;
    User user;
    user.In(kTitle, [] {
        User::Press(Qt::Key_W, Qt::AltModifier);
        User::Type("1");
        User::Type("2");
    });
    user.In(
        kTitle, [&] { return told.size() == 1; }, [] { User::Type("3"); }); // 123 mm are refused
    user.In(kTitle, [] {
        User::Press(Qt::Key_Backspace);
        User::Press(Qt::Key_Up);
    });
    user.In(
        kTitle, [&] { return told.size() == 2; },
        [] {
            User::Press(Qt::Key_Up);
            User::Press(Qt::Key_Escape); // sooner than the next frame
        });
    Pen pen({0xFF000000U}, 0.5F);
    EXPECT_FALSE(EditWithPreview(&pen, [&](const Pen& shown) { told.push_back(shown.GetWidth()); }));
    EXPECT_EQ(told, (std::vector{12.0F, 12.1F, 0.5F}));
}

TEST(LineStyleComboBox, DrawsItsItemsByTheirState) {
    const User user;
    CLineStyleComboBox list;
    list.Initialize();
    ASSERT_EQ(list.count(), 5);
    EXPECT_EQ(list.itemText(4), "4");
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.MeasureItem(), 20);
    EXPECT_EQ(list.CompareItem(4, 0), 0);

    // On a screen of twice the pixels: background, frame and line of items in three states.
    const auto pixels = [&list](bool hasFocus, bool isSelected) {
        QImage image(80, 40, QImage::Format_RGB32);
        image.setDevicePixelRatio(2);
        image.fill(Qt::yellow);
        QPainter painter(&image);
        list.DrawItem(painter, {0, 0, 40, 20}, 0, hasFocus, isSelected);
        return std::array{image.pixelColor(1, 1).name(), image.pixelColor(78, 38).name(),
                          image.pixelColor(4, 12).name(), image.pixelColor(40, 20).name()};
    };
    EXPECT_EQ(pixels(false, false), (std::array<QString, 4>{"#ffffff", "#ffffff", "#000000", "#000000"}));
    EXPECT_EQ(pixels(true, false), (std::array<QString, 4>{"#ffffff", "#ffffff", "#000000", "#000000"}));
    EXPECT_EQ(pixels(true, true), (std::array<QString, 4>{"#a0a0a0", "#a0a0a0", "#000000", "#000000"}));
    EXPECT_EQ(pixels(false, true), (std::array<QString, 4>{"#ffff00", "#ffff00", "#000000", "#000000"}));
}

} // namespace
} // namespace millichart::test
