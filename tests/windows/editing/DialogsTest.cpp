#include "editing/Edit.h"
#include "foundation/TextProperty.h"
#include "penlode/Pen.h"
#include "windows/editing/Driver.h"

#include <gtest/gtest.h>
#include <vector>

using namespace millichart;

namespace {

constexpr wchar_t kPenTitle[] = L"线条属性";
constexpr wchar_t kTextTitle[] = L"文本框属性";
constexpr int kWidth = 18400;
constexpr int kWidthSteps = 18401;
constexpr int kLineStyle = 18402;
constexpr int kColor = 18403;

/// Types three numbers into the system's colour dialog.
void ChooseColor(HWND dialog, const wchar_t* red, const wchar_t* green, const wchar_t* blue) {
    Type(dialog, 706, red);
    Type(dialog, 707, green);
    Type(dialog, 708, blue);
    Press(dialog, IDOK);
}

bool HasFocus(int id) {
    return GetDlgCtrlID(GetFocus()) == id;
}

std::function<bool()> Focused(int id) {
    return [id] { return HasFocus(id); };
}

/// Every text of the dialog's labels and buttons has the room that it needs.
void ExpectNothingClipped(HWND dialog) {
    for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        std::array<wchar_t, 32> kind{};
        GetClassNameW(child, kind.data(), static_cast<int>(kind.size()));
        const LONG_PTR type = GetWindowLongPtrW(child, GWL_STYLE) & 0xF;
        const bool isStatic = std::wstring_view(kind.data()) == L"Static";
        const bool isButton = std::wstring_view(kind.data()) == L"Button";
        if ((isStatic && type == SS_LEFT) || (isButton && type != BS_OWNERDRAW)) {
            const std::wstring text = TextOf(child);
            const HDC context = GetDC(child);
            SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(child, WM_GETFONT, 0, 0)));
            RECT needed{};
            RECT client;
            ::DrawTextW(context, text.c_str(), -1, &needed, DT_CALCRECT | DT_SINGLELINE);
            GetClientRect(child, &client);
            ReleaseDC(child, context);
            EXPECT_LE(needed.right, client.right) << ::testing::PrintToString(text);
            EXPECT_LE(needed.bottom, client.bottom) << ::testing::PrintToString(text);
        }
    }
}

} // namespace

TEST(Win32Dialogs, PenIsSteppedPickedRefusedAndCorrected) {
    penlode::Pen pen(penlode::Color{0x80FF0000U}, 0.25F);
    std::wstring told;
    Driver user;
    user.In(kPenTitle, [](HWND dialog) {
        ExpectNothingClipped(dialog);
        EXPECT_EQ(TextOf(dialog, kWidth), L"0.25");
        EXPECT_EQ(TextOf(dialog, kWidthSteps), L"线宽(W)") << "names for screen readers";
        EXPECT_EQ(TextOf(dialog, kColor), L"颜色(C)");
        EXPECT_EQ(SendDlgItemMessageW(dialog, kLineStyle, CB_GETCOUNT, 0, 0), 5);
        EXPECT_EQ(SendDlgItemMessageW(dialog, kLineStyle, CB_GETITEMHEIGHT, 0, 0), 20);
        EXPECT_TRUE(HasFocus(kLineStyle));
        Pick(dialog, kLineStyle, 3);
        SendDlgItemMessageW(dialog, kWidth, WM_KEYDOWN, VK_UP, 0);
        EXPECT_EQ(TextOf(dialog, kWidth), L"0.35");
        SendDlgItemMessageW(dialog, kWidth, WM_KEYDOWN, VK_DOWN, 0);
        SendDlgItemMessageW(dialog, kWidth, WM_KEYDOWN, VK_DOWN, 0);
        EXPECT_EQ(TextOf(dialog, kWidth), L"0.15");
        Type(dialog, kWidth, L"20.5");
        Press(dialog, kColor);
    });
    user.On(kPenTitle, [](HWND colors) { ChooseColor(colors, L"18", L"52", L"86"); });
    user.In(kPenTitle, [](HWND dialog) { Press(dialog, IDOK); });
    user.Answer(told, IDOK);
    user.In(kPenTitle, [](HWND dialog) {
        EXPECT_TRUE(HasFocus(kWidth));
        const TextRange selection = SelectionOf(GetFocus());
        EXPECT_EQ(selection.Begin, 0U);
        EXPECT_EQ(selection.End, 4U);
        Type(dialog, kWidth, L"1.5");
        Press(dialog, IDOK);
    });
    EXPECT_TRUE(EditPen(&pen));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(told, L"线宽应 >= 0, 且 <= 20。");
    EXPECT_EQ(pen.GetColor(), penlode::Color{0xFF123456U});
    EXPECT_FLOAT_EQ(pen.GetWidth(), 1.5F);
    EXPECT_EQ(pen.GetDashStyle(), penlode::DashStyle::DashDot);
}

TEST(Win32Dialogs, ClosingIsCancel) {
    for (const UINT way : {WM_COMMAND, WM_CLOSE}) {
        penlode::Pen pen(penlode::Color{0x80FF0000U}, 0.25F);
        const penlode::Pen before = pen;
        Driver user;
        user.In(kPenTitle, [](HWND dialog) { Press(dialog, kColor); });
        user.On(kPenTitle, [](HWND colors) { Press(colors, IDCANCEL); });
        user.In(kPenTitle, [way](HWND dialog) {
            Type(dialog, kWidth, L"7");
            Pick(dialog, kLineStyle, 2);
            PostMessageW(dialog, way, way == WM_COMMAND ? IDCANCEL : 0, 0);
        });
        EXPECT_FALSE(EditPen(&pen));
        EXPECT_EQ(user.Failure(), "");
        EXPECT_EQ(pen, before);
    }
}

TEST(Win32Dialogs, KeyboardAloneReachesEverything) {
    penlode::Pen pen(penlode::kBlack, 0.25F);
    const auto when = [](Driver& user, int id, std::function<void()> act) {
        user.Then("focus on " + std::to_string(id), Focused(id), std::move(act));
    };
    std::wstring told;
    Driver user;
    when(user, kLineStyle, [] { Strike(VK_DOWN); });
    when(user, kLineStyle, [] { Strike('C', VK_MENU); });
    when(user, kColor, [] { Strike('W', VK_MENU); });
    when(user, kWidth, [] { Send(L"21"); });
    user.Then(
        "typed over", [] { return TextOf(GetFocus()) == L"21"; }, [] { Strike(VK_RETURN); });
    user.Answer(told, IDOK);
    when(user, kWidth, [] { Send(L"2"); });
    user.Then(
        "corrected", [] { return TextOf(GetFocus()) == L"2"; }, [] { Strike(VK_UP); });
    user.Then(
        "stepped", [] { return TextOf(GetFocus()) == L"2.1"; }, [] { Strike(VK_TAB); });
    when(user, IDOK, [] { Strike(VK_TAB); });
    when(user, IDCANCEL, [] { Strike(VK_TAB); });
    when(user, kLineStyle, [] { Strike(VK_TAB, VK_SHIFT); });
    when(user, IDCANCEL, [] { Strike('S', VK_MENU); });
    when(user, kLineStyle, [] { Strike(VK_RETURN); });
    EXPECT_TRUE(EditPen(&pen));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_FLOAT_EQ(pen.GetWidth(), 2.1F);
    EXPECT_EQ(pen.GetDashStyle(), penlode::DashStyle::Dash);

    Driver again;
    when(again, kLineStyle, [] { Strike(VK_ESCAPE); });
    EXPECT_FALSE(EditPen(&pen));
    EXPECT_EQ(again.Failure(), "");
}

TEST(Win32Dialogs, TextHasItsColorsAndTextsChanged) {
    enum : int {
        kDrawEdge = 18404,
        kPrefix = 18406,
        kPickEdge = 18409,
        kPickBackground = 18410,
        kAngle = 18414
    };

    TextProperty text;
    text.DrawEdge = 0;
    text.DrawBackGround = 1;
    text.EdgeColor = penlode::Color{0x80112233U};
    Driver user;
    user.In(kTextTitle, [](HWND dialog) {
        ExpectNothingClipped(dialog);
        EXPECT_EQ(TextOf(dialog, 18411), L"边框颜色(D)...") << "a pane's name";
        EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, kPickEdge)));
        EXPECT_TRUE(IsWindowEnabled(GetDlgItem(dialog, kPickBackground)));
        SendDlgItemMessageW(dialog, kDrawEdge, BM_CLICK, 0, 0);
        EXPECT_TRUE(IsWindowEnabled(GetDlgItem(dialog, kPickEdge)));
        Press(dialog, kPickBackground);
    });
    user.On(kTextTitle, [](HWND colors) { ChooseColor(colors, L"1", L"2", L"3"); });
    user.In(kTextTitle, [](HWND dialog) {
        Type(dialog, kAngle, L"45deg");
        SetFocus(GetDlgItem(dialog, kPrefix));
        Send(L"约𠮷a");
    });
    user.Then(
        "an input method's characters", [] { return TextOf(DialogTitled(kTextTitle), kPrefix) == L"约𠮷a"; },
        [] { Press(DialogTitled(kTextTitle), IDOK); });
    EXPECT_TRUE(EditTextProperty(&text));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(text.DrawEdge, 1);
    EXPECT_EQ(text.EdgeColor, penlode::Color{0x80112233U}) << "shown only";
    EXPECT_EQ(text.BkColor, penlode::Color{0xFF010203U});
    EXPECT_EQ(text.Angle, 45);
}

TEST(Win32Dialogs, FontIsKeptUntilItIsPicked) {
    constexpr int kFont = 18408;
    TextProperty text;
    text.TextColor = penlode::Color{0xFF123456U}; // none of the dialog's sixteen
    const TextProperty before = text;
    Driver user;
    user.In(kTextTitle, [](HWND dialog) { Press(dialog, kFont); });
    user.On(kTextTitle, [](HWND fonts) { Press(fonts, IDOK); });
    user.In(kTextTitle, [](HWND dialog) { Press(dialog, IDOK); });
    EXPECT_TRUE(EditTextProperty(&text));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(text, before);

    constexpr int kSizes = 0x472;
    constexpr int kColors = 0x473;
    Driver picking;
    picking.In(kTextTitle, [](HWND dialog) { Press(dialog, kFont); });
    picking.On(kTextTitle, [](HWND fonts) {
        const auto size = SendDlgItemMessageW(fonts, kSizes, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                              reinterpret_cast<LPARAM>(L"24"));
        SendDlgItemMessageW(fonts, kSizes, CB_SETCURSEL, static_cast<WPARAM>(size), 0);
        SendMessageW(fonts, WM_COMMAND, MAKEWPARAM(kSizes, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(GetDlgItem(fonts, kSizes)));
        SendDlgItemMessageW(fonts, kColors, CB_SETCURSEL, 9, 0); // red
        SendMessageW(fonts, WM_COMMAND, MAKEWPARAM(kColors, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(GetDlgItem(fonts, kColors)));
        Press(fonts, IDOK);
    });
    picking.In(kTextTitle, [](HWND dialog) { Press(dialog, IDOK); });
    EXPECT_TRUE(EditTextProperty(&text));
    EXPECT_EQ(picking.Failure(), "");
    EXPECT_FLOAT_EQ(text.Font->Size, 24.0F / 2.8368F) << "32 pixels of a screen of 96 to the inch";
    EXPECT_EQ(text.Font->Family, before.Font->Family);
    EXPECT_EQ(text.TextColor, penlode::Color{0xFFFF0000U});
}

TEST(Win32Dialogs, LinearRangeIsRefusedUntilItIsSound) {
    const wchar_t* const title = L"自然坐标设置";
    double minimum = 0.0;
    double maximum = 100.0;
    double major = 10.0;
    double minor = 2.5;
    std::array<std::wstring, 2> told;
    Driver user;
    user.In(title, [](HWND dialog) {
        ExpectNothingClipped(dialog);
        EXPECT_NE(GetWindowLongPtrW(GetDlgItem(dialog, 18480), GWL_STYLE) & ES_READONLY, 0);
        Type(dialog, 18483, L"0.009");
        Press(dialog, IDOK);
    });
    user.Answer(told[0], IDYES);
    user.In(title, [](HWND dialog) {
        Type(dialog, 18483, L"5");
        Type(dialog, 18481, L"0");
        Press(dialog, IDOK);
    });
    user.Answer(told[1], IDOK);
    user.In(title, [](HWND dialog) {
        Type(dialog, 18481, L"50");
        Press(dialog, IDOK);
    });
    EXPECT_TRUE(EditNaturalValueRange(&minimum, &maximum, &major, &minor));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(told[0], L"步长过小,可能要花很多时间进行计算。\n是否继续?");
    EXPECT_EQ(told[1], L"最大值应大于最小值。");
    EXPECT_EQ(maximum, 50.0);
    EXPECT_EQ(minor, 5.0);
}

TEST(Win32Dialogs, LogarithmicRangeIsPicked) {
    const wchar_t* const title = L"对数坐标设置";
    double minimum = 0.5;
    double maximum = 1000.0;
    std::wstring told;
    Driver user;
    user.In(title, [](HWND dialog) {
        ExpectNothingClipped(dialog);
        EXPECT_EQ(TextOf(dialog, 18484), L"");
        EXPECT_EQ(TextOf(dialog, 18485), L"1000");
        SetFocus(GetDlgItem(dialog, IDOK));
        Press(dialog, IDOK);
    });
    user.Answer(told, IDOK);
    user.In(title, [](HWND dialog) {
        EXPECT_TRUE(HasFocus(18484));
        Pick(dialog, 18484, 4);
        Press(dialog, IDOK);
    });
    EXPECT_TRUE(EditLogarithmValueRange(&minimum, &maximum));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(told, L"请选择最小值。");
    EXPECT_EQ(minimum, 0.01);
    EXPECT_EQ(maximum, 1000.0);
}

TEST(Win32Dialogs, PreviewFollowsTheUserAndGoesBack) {
    penlode::Pen pen(penlode::kBlack, 0.25F);
    std::vector<float> widths;
    Driver user;
    user.In(kPenTitle, [](HWND dialog) { // within a frame: told once
        for (const wchar_t* const text : {L"1", L"12", L"12.5"}) {
            Type(dialog, kWidth, text);
        }
    });
    user.Then(
        "told", [&] { return widths.size() == 1; }, [] { Type(DialogTitled(kPenTitle), kWidth, L"99"); });
    user.In(kPenTitle, [](HWND dialog) { SendDlgItemMessageW(dialog, kWidth, WM_KEYDOWN, VK_UP, 0); });
    user.Then(
        "told of the step", [&] { return widths.size() == 2; },
        [] { Press(DialogTitled(kPenTitle), IDCANCEL); });
    EXPECT_FALSE(
        EditWithPreview(&pen, [&](const penlode::Pen& shown) { widths.push_back(shown.GetWidth()); }));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_EQ(widths, (std::vector{12.5F, 0.1F, 0.25F}));
}

TEST(Win32Dialogs, OwnerIsTheActiveWindowAndGetsItsTurnBack) {
    const HWND host = CreateWindowExW(0, L"Static", L"host", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                      nullptr, nullptr, nullptr);
    SetActiveWindow(host);
    double minimum = 1.0;
    double maximum = 10.0;
    Driver user;
    user.In(L"对数坐标设置", [host](HWND dialog) {
        EXPECT_EQ(GetWindow(dialog, GW_OWNER), host);
        EXPECT_FALSE(IsWindowEnabled(host));
        Press(dialog, IDOK);
    });
    EXPECT_TRUE(EditLogarithmValueRange(&minimum, &maximum));
    EXPECT_EQ(user.Failure(), "");
    EXPECT_TRUE(IsWindowEnabled(host));
    EXPECT_EQ(GetActiveWindow(), host);
    DestroyWindow(host);
}
