#include "editing/Dialog.h"
#include "windows/editing/Driver.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

using namespace millichart;

namespace {

using enum ControlKind;

enum : int { kName = 100, kFirst = 101, kSecond = 102, kThird = 103, kList = 104, kAlone = 105, kMore = 106 };

constexpr wchar_t kTitle[] = L"页";

constexpr std::array kControls{
    Control{kNoId, Label, "名称(&N):", 7, 10, 40, 8},
    Control{kName, Edit, "", 50, 7, 60, 14},
    Control{kFirst, RadioButton, "一(&1)", 7, 27, 40, 10},
    Control{kSecond, RadioButton, "二(&2)", 50, 27, 40, 10},
    Control{kThird, RadioButton, "三(&3)", 90, 27, 40, 10},
    Control{kList, DropDownList, "", 7, 44, 60, 14},
    Control{kAlone, RadioButton, "独(&4)", 70, 44, 40, 10},
    Control{kMore, Button, "更多(&M)...", 70, 60, 50, 14},
};
constexpr DialogTemplate kFirstPage{1, "第一页", 150, 80, kControls};
constexpr DialogTemplate kSecondPage{2, "第二页", 120, 90, kControls};
constexpr std::array kInnerControls{Control{kOkButton, DefaultButton, "确定", 7, 7, 50, 14}};
constexpr DialogTemplate kInner{3, "内", 100, 40, kInnerControls};

class InnerDialog final : public Dialog {
public:
    const DialogTemplate& Template() const override { return kInner; }

    void OnInitDialog(DialogView&) override {}

    bool OnOK(DialogView&) override { return true; }
};

class TestPage final : public Dialog {
public:
    explicit TestPage(const DialogTemplate& what) : m_template(what) {}

    const DialogTemplate& Template() const override { return m_template; }

    void OnInitDialog(DialogView& view) override {
        constexpr std::array<std::string_view, 2> kItems{"甲", "乙"};
        view.SetText(kName, "x");
        view.SetItems(kList, kItems);
        view.Select(kList, 7);
        EXPECT_EQ(view.Selection(kList), -1) << "an item that is not there";
        view.Select(kList, 1);
        view.SetChecked(kAlone, true);
        view.SetChecked(kFirst, true);
        view.SetChecked(kThird, true);
    }

    void OnClicked(DialogView& view, int id) override {
        Clicked.push_back(id);
        if (id == kMore) {
            InnerIsAccepted = view.Run(m_inner);
        }
        if (Throws) {
            throw std::runtime_error("a fault");
        }
    }

    bool OnOK(DialogView& view) override {
        if (view.Text(kName) == "bad") {
            view.ShowMessage("坏");
            view.Focus(kName);
            view.SelectText(kName);
            return false;
        }
        Name = view.Text(kName);
        return true;
    }

    std::vector<int> Clicked;
    std::string Name;
    bool InnerIsAccepted = false;
    bool Throws = false;

private:
    const DialogTemplate& m_template;
    InnerDialog m_inner;
};

class TestSheet final : public Sheet {
public:
    std::string_view Title() const override { return "页"; }

    std::vector<SheetPage> Pages() override { return {{&First, "第一页"}, {&Second, "第二页"}}; }

    void OnChanged(std::span<DialogView* const>) override { ++Changes; }

    bool OnOK(std::span<DialogView* const> views) override {
        for (std::size_t i = 0; i < views.size(); ++i) {
            if (views[i] != nullptr && !Pages()[i].Page->OnOK(*views[i])) {
                return false;
            }
        }
        return true;
    }

    TestPage First{kFirstPage};
    TestPage Second{kSecondPage};
    int Changes = 0;
};

HWND Front() {
    return FrontPage(kTitle);
}

HWND FrontOf(const DialogTemplate& page) {
    RECT size{0, 0, page.Width, page.Height};
    RECT client;
    const HWND front = Front();
    MapDialogRect(front, &size);
    GetClientRect(front, &client);
    return client.right >= size.right && client.bottom >= size.bottom ? front : nullptr;
}

bool IsChecked(int id) {
    return IsDlgButtonChecked(Front(), id) == BST_CHECKED;
}

} // namespace

TEST(Win32Sheet, RefusingPageComesToTheFront) {
    TestSheet sheet;
    std::wstring told;
    Driver user;
    user.In(kTitle, [](HWND dialog) {
        EXPECT_TRUE(FrontOf(kFirstPage) != nullptr) << "a page has the room of its template";
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), kName);
        EXPECT_EQ(SelectionOf(GetFocus()).End, 1U);
        EXPECT_EQ(TextOf(dialog, IDOK) + TextOf(dialog, IDCANCEL), L"确定取消");
        Type(Front(), kName, L"bad");
        Strike(VK_TAB, VK_CONTROL);
    });
    user.Then(
        "the second page", [] { return TextOf(Front(), kName) == L"x"; },
        [] {
            EXPECT_TRUE(FrontOf(kSecondPage) != nullptr);
            EXPECT_TRUE(IsChild(Front(), GetFocus())) << "the focus is not on a hidden page";
            Type(Front(), kName, L"good");
            Strike(VK_RETURN);
        });
    user.Answer(told, IDOK);
    user.In(kTitle, [](HWND) {
        EXPECT_EQ(TextOf(Front(), kName), L"bad");
        EXPECT_EQ(GetFocus(), GetDlgItem(Front(), kName));
        EXPECT_EQ(SelectionOf(GetFocus()).End, 3U);
        Type(Front(), kName, L"better");
        Strike(VK_RETURN);
    });
    EXPECT_TRUE(RunModal(sheet));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(told, L"坏");
    EXPECT_EQ(sheet.First.Name + sheet.Second.Name, "bettergood");
    EXPECT_GE(sheet.Changes, 1);
}

TEST(Win32Sheet, PagesAreMadeWhenTheyAreShownAndTellWhatIsClicked) {
    TestSheet sheet;
    Driver user;
    user.In(kTitle, [](HWND) {
        EXPECT_TRUE(IsChecked(kThird) && IsChecked(kAlone) && !IsChecked(kFirst)) << "two groups";
        SendDlgItemMessageW(Front(), kSecond, BM_CLICK, 0, 0);
        EXPECT_TRUE(IsChecked(kSecond) && IsChecked(kAlone) && !IsChecked(kThird));
        Pick(Front(), kList, 1);
        SendDlgItemMessageW(Front(), kList, WM_KEYDOWN, VK_UP, 0);
        EXPECT_EQ(TextOf(Front(), kList), L"甲");
        Press(Front(), kMore);
    });
    user.In(L"内", [](HWND dialog) { Press(dialog, IDOK); });
    user.In(kTitle, [](HWND dialog) { Press(dialog, IDOK); });
    EXPECT_TRUE(RunModal(sheet));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(sheet.First.Clicked, (std::vector<int>{kSecond, kList, kMore}));
    EXPECT_TRUE(sheet.First.InnerIsAccepted);
    EXPECT_EQ(sheet.First.Name, "x");
    EXPECT_EQ(sheet.Second.Name, "") << "never shown, never read";
}

TEST(Win32Sheet, WhatThrowsCancels) {
    TestSheet sheet;
    sheet.First.Throws = true;
    Driver user;
    user.In(kTitle, [](HWND) { SendDlgItemMessageW(Front(), kSecond, BM_CLICK, 0, 0); });
    EXPECT_FALSE(RunModal(sheet));
    EXPECT_EQ(user.Failure(), "");
}
