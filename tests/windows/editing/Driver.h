#pragma once

#include "editing/win32/Windows.h"

#include <chrono>
#include <deque>
#include <functional>
#include <string>

/// Works modal dialogs as a user would: steps are done one after the other, each as soon as it can be, while
/// the code under test waits in its modal loop.
///
///     Driver user;
///     user.Then("the dialog opens", [] { return DialogTitled(L"线条属性") != nullptr; });
///     user.Then("OK", [] { return true; }, [] { Press(DialogTitled(L"线条属性"), IDOK); });
///     EXPECT_TRUE(EditPen(&pen));
///     EXPECT_EQ(user.Failure(), "");
///
/// A step that does not come in time is a failure, and every dialog is cancelled.
class Driver {
public:
    Driver();
    ~Driver();

    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;

    void Then(
        std::string name, std::function<bool()> ready, std::function<void()> act = [] {});
    /// As soon as the dialog of that title is the active window.
    void In(const wchar_t* title, std::function<void(HWND)> act);

    /// A message box: takes its text and presses a button.
    void Answer(std::wstring& text, WORD button);
    /// A dialog of the system's on the dialog of that title.
    void On(const wchar_t* title, std::function<void(HWND)> act);

    /// The step that did not come, or the first that was left when it was asked. Empty if all were done.
    std::string Failure() const;

private:
    struct Step {
        std::string Name;
        std::function<bool()> IsReady;
        std::function<void()> Act;
    };

    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void Go();

    std::deque<Step> m_steps;
    std::chrono::steady_clock::time_point m_waitingSince;
    std::string m_failure;
    UINT_PTR m_timer;
};

/// The visible dialog of that title, not a message box; null if there is none.
HWND DialogTitled(const wchar_t* title);

/// The page in front of the sheet of that title.
HWND FrontPage(const wchar_t* title);

/// The active dialog of the system's that stands on the dialog of that title; null if there is none.
HWND DialogOn(const wchar_t* title);

std::wstring TextOf(HWND window);

inline std::wstring TextOf(HWND dialog, int id) {
    return TextOf(GetDlgItem(dialog, id));
}

/// The caret's or the selection's ends in an edit.
struct TextRange {
    DWORD Begin = 0;
    DWORD End = 0;
};

TextRange SelectionOf(HWND edit);

/// A click on a button, which comes back before its dialog opens.
void Press(HWND dialog, int id);
/// Types over an edit's text.
void Type(HWND dialog, int id, const wchar_t* text);
/// Picks from a list.
void Pick(HWND dialog, int id, int index);

/// Keys of the real keyboard; with Alt for a mnemonic.
void Strike(WORD key, WORD with = 0);
/// Characters as an input method sends them.
void Send(const wchar_t* text);
