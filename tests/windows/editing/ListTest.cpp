// The list of components and the picture of a legend's places, by keyboard.
#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "charts/pie/HalfPieHistogramProp.h"
#include "charts/pie/HalfPieProp.h"
#include "charts/pie/PieProp.h"
#include "editing/Edit.h"
#include "editing/win32/TextClipboard.h"
#include "support/SomeRecords.h"
#include "windows/editing/Driver.h"

#include <gtest/gtest.h>

using namespace millichart;

namespace {

constexpr wchar_t kBars[] = L"直方图属性";
constexpr wchar_t kCurves[] = L"曲线属性";
constexpr wchar_t kPie[] = L"饼图属性";
constexpr int kComponentList = 18460;
constexpr int kCurveList = 18490;
constexpr int kLegendPlaces = 18571;

/// Makes a cell the current one, by the keys that move to it.
void GoTo(HWND list, int row, int column) {
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&state));
    state.state = state.stateMask;
    SetFocus(list);
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&state));
    for (int i = 0; i < 9; ++i) {
        SendMessageW(list, WM_KEYDOWN, VK_LEFT, 0);
    }
    for (int i = 0; i < column; ++i) {
        SendMessageW(list, WM_KEYDOWN, VK_RIGHT, 0);
    }
}

HWND Components() {
    return GetDlgItem(FrontPage(kBars), kComponentList);
}

/// The window that has the focus is of a class.
std::function<bool()> Focused(const wchar_t* kind) {
    return [kind] {
        std::array<wchar_t, 32> name{};
        GetClassNameW(GetFocus(), name.data(), static_cast<int>(name.size()));
        return std::wstring_view(name.data()) == kind;
    };
}

HistogramProp TwoComponents() {
    HistogramProp prop;
    prop.Plot.ComponentName = {"a", "b"};
    prop.Plot.ComponentColor = {{0xFF010203U}, {0xFF040506U}};
    return prop;
}

/// Turns to each page of the sheet that `edit` opens, and presses OK.
template <class Prop> Prop Seen(Prop prop, const wchar_t* title, int pages, bool (*edit)(Prop*)) {
    Driver user;
    for (int page = 1; page < pages; ++page) {
        const auto before = std::make_shared<HWND>();
        user.In(title, [=](HWND) {
            *before = FrontPage(title);
            Strike(VK_TAB, VK_CONTROL);
        });
        user.Then("the next page", [=] { return FrontPage(title) != *before; });
    }
    user.In(title, [](HWND sheet) { Press(sheet, IDOK); });
    EXPECT_TRUE(edit(&prop));
    EXPECT_EQ(user.Failure(), "");
    return prop;
}

/// The first time may put a record into order, such as a flag of 2.
template <class Prop>
void ExpectUntouched(const Prop& prop, const wchar_t* title, int pages, bool (*edit)(Prop*)) {
    const Prop ordered = Seen(prop, title, pages, edit);
    EXPECT_EQ(Seen(ordered, title, pages, edit), ordered);
}

} // namespace

TEST(Win32List, IsEditedByKeyboard) {
    HistogramProp prop = TwoComponents();
    std::vector<HistogramProp> told;
    Driver user;
    user.In(kBars, [](HWND) {
        EXPECT_EQ(TextOf(Components()), L"成分") << "the name for screen readers";
        GoTo(Components(), 0, 0);
        Strike(VK_F2);
    });
    user.Then("an edit in the cell", Focused(L"Edit"), [] {
        EXPECT_EQ(GetParent(GetFocus()), Components());
        EXPECT_EQ(TextOf(GetFocus()), L"a");
        EXPECT_EQ(SelectionOf(GetFocus()).End, 1U);
        Send(L"given up");
        Strike(VK_ESCAPE);
    });
    user.Then("the list again", Focused(WC_LISTVIEWW), [] { Strike(VK_F2); });
    user.Then("the edit again", Focused(L"Edit"), [] {
        EXPECT_EQ(TextOf(GetFocus()), L"a");
        Send(L"first");
        Strike(VK_RETURN);
    });
    user.Then(
        "the preview", [&] { return !told.empty(); },
        [&] {
            EXPECT_EQ(told.back().Plot.ComponentName[0], "first");
            GoTo(Components(), 1, 0);
            Strike(VK_UP, VK_MENU);
            Strike(VK_INSERT);
        });
    const auto rows = [&told](std::size_t count) {
        return [&told, count] { return told.back().Plot.ComponentName.size() == count; };
    };
    user.Then("a row more", rows(3), [] {
        GoTo(Components(), 2, 0);
        Strike(VK_DELETE);
    });
    user.Then("a row less", rows(2), [] {
        SetClipboardText(nullptr, "x\t255\ny\t#00FF00\n");
        GoTo(Components(), 1, 0);
        Strike('V', VK_CONTROL);
    });
    user.Then("pasted", rows(3), [] {
        GoTo(Components(), 0, 1);
        Strike(VK_F2);
    });
    user.On(kBars, [](HWND colors) {
        Type(colors, 706, L"7");
        Press(colors, IDOK);
    });
    user.Then(
        "the colour", [&] { return told.back().Plot.ComponentColor[0].R() == 7; },
        [] {
            SetFocus(Components());
            Strike('C', VK_CONTROL);
        });
    user.Then("copied", [] { return ClipboardText(nullptr) == "b\t394503\r\n"; });
    user.In(kBars, [](HWND) {
        GoTo(Components(), 2, 0);
        SendMessageW(Components(), WM_KEYDOWN, VK_F2, 0);
    });
    user.Then("the third edit", Focused(L"Edit"), [] {
        Send(L"z");
        Strike(VK_RETURN);
        Strike(VK_F2);
        Strike(VK_END);
        Send(L"!");
    });
    user.Then(
        "the fourth edit", [] { return TextOf(GetFocus()) == L"z!"; },
        [] {
            SendMessageW(DialogTitled(kBars), WM_COMMAND, IDOK, 0); // which takes the open edit
        });
    EXPECT_TRUE(EditWithPreview(&prop, [&told](const HistogramProp& now) { told.push_back(now); }));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(prop.Plot.ComponentName, (std::vector<std::string>{"b", "x", "z!"}));
    EXPECT_EQ(prop.Plot.ComponentColor,
              (std::vector<penlode::Color>{{0xFF070506U}, {0xFFFF0000U}, {0xFF00FF00U}}));
}

TEST(Win32List, IsEditedByTheMouse) {
    HistogramProp prop = TwoComponents();
    Driver user;
    user.In(kBars, [](HWND) {
        RECT cell{LVIR_BOUNDS, 0, 0, 0};
        SendMessageW(Components(), LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&cell));
        const LPARAM place = MAKELPARAM(cell.left + 9, cell.top + 9);
        PostMessageW(Components(), WM_LBUTTONDOWN, MK_LBUTTON, place);
        PostMessageW(Components(), WM_LBUTTONUP, 0, place);
        PostMessageW(Components(), WM_LBUTTONDBLCLK, MK_LBUTTON, place);
        PostMessageW(Components(), WM_LBUTTONUP, 0, place);
    });
    user.Then("an edit in the cell", Focused(L"Edit"), [] {
        Send(L"second");
        Strike(VK_TAB);
    });
    user.Then("the focus goes on", Focused(L"Button"), [] { Press(DialogTitled(kBars), IDOK); });
    EXPECT_TRUE(EditHistogramProp(&prop));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(prop.Plot.ComponentName, (std::vector<std::string>{"a", "second"}));
}

TEST(Win32List, OpensAPageOfAThousandCurvesAtOnce) {
    CurveProp prop;
    prop.Plot.CurveName.assign(1000, "curve");
    const auto list = [] { return GetDlgItem(FrontPage(kCurves), kCurveList); };
    ULONGLONG begin = 0;
    Driver user;
    user.In(kCurves, [&](HWND) {
        EXPECT_LT(GetTickCount64() - begin, 2000U);
        EXPECT_EQ(SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0), 1000);
        GoTo(list(), 999, 2);
        Strike(VK_F2);
    });
    user.Then("the choices", Focused(WC_COMBOBOXW), [] {
        EXPECT_EQ(SendMessageW(GetFocus(), CB_GETDROPPEDSTATE, 0, 0), TRUE);
        EXPECT_EQ(TextOf(GetFocus()), L"不显示");
        for (int i = 0; i < 3; ++i) {
            Strike(VK_DOWN);
        }
        Strike(VK_RETURN);
    });
    user.Then("the list again", Focused(WC_LISTVIEWW), [] { Press(DialogTitled(kCurves), IDOK); });
    begin = GetTickCount64();
    EXPECT_TRUE(EditCurveProp(&prop));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(prop.Plot.CurveDotStyle[999], CurveDotStyle::SolidCircle);
}

TEST(Win32LegendPage, PlacesTheLegendByArrowsAndClicks) {
    const auto places = [] { return GetDlgItem(FrontPage(kPie), kLegendPlaces); };
    for (const bool clicks : {false, true}) {
        PieProp prop;
        Driver user;
        user.In(kPie, [](HWND) { Strike(VK_TAB, VK_CONTROL); });
        user.In(kPie, [](HWND) { Strike(VK_TAB, VK_CONTROL); });
        user.Then(
            "the legend's page", [=] { return places() != nullptr; },
            [=] {
                EXPECT_EQ(TextOf(places()), L"位置");
                SetFocus(places());
                if (clicks) {
                    RECT box;
                    GetClientRect(places(), &box);
                    SendMessageW(places(), WM_LBUTTONDOWN, MK_LBUTTON,
                                 MAKELPARAM(box.right / 10, box.bottom * 3 / 10));
                } else {
                    Strike(VK_LEFT);
                    Strike(VK_UP);
                }
                Strike(VK_RETURN);
            });
        EXPECT_TRUE(EditPieProp(&prop));
        EXPECT_EQ(user.Failure(), "");
        EXPECT_EQ(prop.Legend.LegendPos, LegendPosition::LeftTop);
    }
}

TEST(Win32Sheets, LeaveARecordThatIsOnlyLookedAt) {
    ExpectUntouched(SomePie(), kPie, 3, &EditPieProp);
    ExpectUntouched(SomeHalf(), L"半饼图属性", 2, &EditHalfPieProp);
    ExpectUntouched(HalfPieHalfPieProp{SomeHalf(), SomeHalf()}, L"半饼_半饼图属性", 4,
                    &EditHalfPieHalfPieProp);
    ExpectUntouched(HalfPieHistogramProp{SomeHistogram(), SomeHalf()}, L"半饼_直方图属性", 7,
                    &EditHalfPieHistogramProp);
    ExpectUntouched(SomeHistogram(), kBars, 5, &EditHistogramProp);
    ExpectUntouched(SomeCurves(), kCurves, 5, &EditCurveProp);
}
