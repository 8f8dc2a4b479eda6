#include "editing/ColorPane.h"
#include "editing/Edit.h"
#include "editing/qt/User.h"
#include "foundation/TextProperty.h"
#include "penlode/text/StringUtil.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace millichart::test {
namespace {

using penlode::CStringUtil;

constexpr const char* kTitle = "文本框属性";

bool IsEnabled(const char* button) {
    return User::Find<QPushButton>(button).isEnabled();
}

void OpenFontDialog() {
    User::Press(Qt::Key_F, Qt::AltModifier);
}

void Accept() {
    User::Press(Qt::Key_Return);
}

TEST(TextDialog, EnablesAndPicksColors) {
    User user;
    user.In(kTitle, [] {
        EXPECT_FALSE(IsEnabled("边框颜色(D)..."));
        EXPECT_TRUE(IsEnabled("背景颜色(K)..."));
        User::Press(Qt::Key_E, Qt::AltModifier);
    });
    user.In(
        kTitle, [] { return IsEnabled("边框颜色(D)..."); }, [] { User::Press(Qt::Key_D, Qt::AltModifier); });
    user.In("选择颜色", [] { User::EnterColor("#123456"); });
    user.In(kTitle, [] {
        EXPECT_EQ(User::Find<CColorPane>("边框颜色(D)...").Color(), 0x563412U);
        User::Press(Qt::Key_K, Qt::AltModifier);
    });
    user.In("选择颜色", [] { User::Press(Qt::Key_Escape); });
    user.In(kTitle, [] { User::Press(Qt::Key_B, Qt::AltModifier); });
    user.In(
        kTitle, [] { return !IsEnabled("背景颜色(K)..."); }, Accept);
    TextProperty property;
    property.DrawEdge = 0;
    property.DrawBackGround = 1;
    property.BkColor = {0x80ABCDEFU};
    EXPECT_TRUE(EditTextProperty(&property));
    EXPECT_EQ(property.DrawEdge, 1);
    EXPECT_EQ(property.DrawBackGround, 0);
    EXPECT_EQ(property.EdgeColor, penlode::Color{0xFF123456U});
    EXPECT_EQ(property.BkColor, penlode::Color{0x80ABCDEFU});
}

TEST(TextDialog, TakesTextsAsAnInputMethodGivesThem) {
    User user;
    user.In(kTitle, [] {
        User::Press(Qt::Key_P, Qt::AltModifier);
        User::Type("约&");
        User::Press(Qt::Key_T, Qt::AltModifier);
        User::Type(" 毫米");
        User::Press(Qt::Key_A, Qt::AltModifier);
        User::Type("45deg");
        Accept();
    });
    TextProperty property;
    EXPECT_TRUE(EditTextProperty(&property));
    EXPECT_EQ(CStringUtil::AnsiToUtf8(property.Prefix), "约&");
    EXPECT_EQ(CStringUtil::AnsiToUtf8(property.Postfix), " 毫米");
    EXPECT_EQ(property.Angle, 45);
}

TEST(TextDialog, KeepsWhatTheFontDialogLeavesAsItIs) {
    for (const penlode::Font& font : {penlode::Font{}, penlode::Font{L"No Such Family", 3.7F, 5}}) {
        User user;
        user.In(kTitle, OpenFontDialog);
        user.In("选择字体", [] {
            User::Press(Qt::Key_C, Qt::AltModifier);
            User::Press(Qt::Key_Space);
        });
        user.In("选择颜色", [] { User::EnterColor("#0000ff"); });
        user.In("选择字体", [] { User::Find<QPushButton>("确定").click(); });
        user.In(kTitle, [] { User::Find<QPushButton>("确定").click(); });
        TextProperty property;
        property.Font = font;
        EXPECT_TRUE(EditTextProperty(&property));
        EXPECT_EQ(*property.Font, font);
        EXPECT_EQ(property.TextColor, penlode::Color{0xFF0000FFU});
    }
}

TEST(TextDialog, TakesWhatIsPickedInTheFontDialog) {
    User user;
    user.In(kTitle, OpenFontDialog);
    user.In("选择字体", [] {
        User::Press(Qt::Key_S, Qt::AltModifier);
        User::Type("12");
        User::Press(Qt::Key_U, Qt::AltModifier);
    });
    const auto isUnderlined = [] { return User::Find<QCheckBox>("下划线(U)").isChecked(); };
    user.In("选择字体", isUnderlined, [] { User::Find<QPushButton>("确定").click(); });
    user.In(kTitle, [] { User::Find<QPushButton>("确定").click(); });
    TextProperty property;
    EXPECT_TRUE(EditTextProperty(&property));
    EXPECT_EQ(property.Font->Family, L"宋体");
    EXPECT_NEAR(property.Font->Size, 4.2301F, 0.0001F);
    EXPECT_EQ(property.Font->Style, penlode::FontStyle::Underline);
}

} // namespace
} // namespace millichart::test
