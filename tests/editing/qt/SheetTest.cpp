// A sheet of two made-up pages, one of which fails.
#include "editing/Dialog.h"
#include "editing/qt/User.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <gtest/gtest.h>
#include <stdexcept>

namespace millichart::test {
namespace {

using enum ControlKind;

enum : int { kLeft = 101, kRight, kNear, kFar, kMore, kFail, kName };

constexpr std::array kFirstControls{
    Control{kLeft, RadioButton, "左(&L)", 7, 7, 40, 10},
    Control{kRight, RadioButton, "右(&R)", 50, 7, 40, 10},
    Control{kNoId, Label, "远近:", 7, 24, 40, 8},
    Control{kNear, RadioButton, "近(&N)", 7, 40, 40, 10},
    Control{kFar, RadioButton, "远(&F)", 50, 40, 40, 10},
    Control{kMore, Button, "更多(&M)...", 7, 60, 60, 14},
    Control{kFail, Button, "失败(&X)", 70, 60, 60, 14},
};
constexpr DialogTemplate kFirst{1, "第一页", 150, 80, kFirstControls};

constexpr std::array kSecondControls{Control{kNoId, Label, "名称(&E):", 7, 10, 50, 8},
                                     Control{kName, Edit, "", 60, 7, 80, 14}};
constexpr DialogTemplate kSecond{2, "第二页", 150, 80, kSecondControls};

struct Page : Dialog {
    explicit Page(const DialogTemplate& shown) : Shown(shown) {}

    const DialogTemplate& Template() const override { return Shown; }

    void OnInitDialog(DialogView& view) override {
        ++Opened;
        view.SetChecked(kLeft, true);
        view.SetChecked(kFar, true);
    }

    void OnClicked(DialogView& view, int id) override {
        Clicked.push_back(id);
        if (id == kMore) {
            Page nested(kSecond);
            Clicked.push_back(view.Run(nested) ? 1 : 0);
        }
        if (id == kFail) {
            throw std::runtime_error("failed");
        }
    }

    bool OnOK(DialogView&) override { return true; }

    const DialogTemplate& Shown;
    int Opened = 0;
    std::vector<int> Clicked;
};

/// Refuses an empty name on its second page.
struct TwoPages : Sheet {
    std::string_view Title() const override { return "两页"; }

    std::vector<SheetPage> Pages() override { return {{&First, "第一页"}, {&Second, "第二页"}}; }

    void OnChanged(std::span<DialogView* const>) override { ++Changes; }

    bool OnOK(std::span<DialogView* const> views) override {
        Shown = {views[0] != nullptr, views[1] != nullptr};
        if (views[1] != nullptr && views[1]->Text(kName).empty()) {
            views[1]->ShowMessage("请输入名称。");
            views[1]->Focus(kName);
            return false;
        }
        return true;
    }

    Page First{kFirst};
    Page Second{kSecond};
    std::array<bool, 2> Shown{};
    int Changes = 0;
};

QTabWidget& Tabs() {
    return *User::Front().findChild<QTabWidget*>();
}

TEST(Sheet, FillsAPageWhenItIsShownAndFindsItsControl) {
    TwoPages sheet;
    User user;
    user.In("两页", [&] {
        EXPECT_EQ(Tabs().tabText(0), "第一页");
        EXPECT_EQ(sheet.Second.Opened, 0);
        User::Press(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(sheet.Second.Opened, 1);
        User::Press(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(Tabs().currentIndex(), 0);
        User::Press(Qt::Key_Return);
    });
    user.Answer("两页", "请输入名称。", QMessageBox::Ok);
    user.In("两页", [&] {
        EXPECT_EQ(Tabs().currentIndex(), 1);
        EXPECT_EQ(User::FocusName(), "名称(E)");
        User::Type("甲");
    });
    user.In(
        "两页", [&] { return sheet.Changes > 0; }, [] { User::Press(Qt::Key_Return); });
    EXPECT_TRUE(RunModal(sheet));
    EXPECT_EQ(sheet.Shown, (std::array{true, true}));
    EXPECT_EQ(sheet.First.Opened + sheet.Second.Opened, 2);
}

TEST(Sheet, GroupsNeighbouringRadioButtons) {
    TwoPages sheet;
    User user;
    user.In("两页", [&] {
        EXPECT_TRUE(sheet.First.Clicked.empty());
        User::Press(Qt::Key_R, Qt::AltModifier);
    });
    const auto isRight = [] { return User::Find<QRadioButton>("右(R)").isChecked(); };
    user.In("两页", isRight, [] {
        EXPECT_FALSE(User::Find<QRadioButton>("左(L)").isChecked());
        EXPECT_TRUE(User::Find<QRadioButton>("远(F)").isChecked());
        User::Press(Qt::Key_M, Qt::AltModifier);
    });
    user.In("第二页", [] { User::Front().close(); });
    user.In("两页", [] { User::Press(Qt::Key_Return); });
    EXPECT_TRUE(RunModal(sheet));
    EXPECT_EQ(sheet.First.Clicked, (std::vector<int>{kRight, kMore, 0}));
    EXPECT_EQ(sheet.Shown, (std::array{true, false}));
}

TEST(Sheet, IsCancelledByWhatThrows) {
    TwoPages sheet;
    User user;
    user.In("两页", [] { User::Press(Qt::Key_X, Qt::AltModifier); });
    EXPECT_FALSE(RunModal(sheet));
}

} // namespace
} // namespace millichart::test
