#include "windows/editing/Driver.h"

#include <array>
#include <utility>

namespace {

constexpr std::chrono::seconds kPatience{8};

constexpr int kMessage = 0xFFFF; // the text in a message box

Driver* g_driver = nullptr; // a timer's function knows its number only

BOOL CALLBACK CancelDialog(HWND window, LPARAM) {
    PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}

struct Sought {
    const wchar_t* Title;
    HWND Found = nullptr;
};

BOOL CALLBACK IsSought(HWND window, LPARAM data) {
    auto& sought = *reinterpret_cast<Sought*>(data);
    std::array<wchar_t, 8> kind{};
    GetClassNameW(window, kind.data(), static_cast<int>(kind.size()));
    if (std::wstring_view(kind.data()) == L"#32770" && GetDlgItem(window, kMessage) == nullptr &&
        IsWindowVisible(window) != FALSE && TextOf(window) == sought.Title) {
        sought.Found = window;
        return FALSE;
    }
    return TRUE;
}

INPUT KeyInput(WORD key, WORD scan, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = scan;
    input.ki.dwFlags = flags;
    return input;
}

void Inject(INPUT input) {
    SendInput(1, &input, sizeof input);
}

} // namespace

Driver::Driver()
    : m_waitingSince(std::chrono::steady_clock::now()), m_timer(SetTimer(nullptr, 0, 30, OnTimer)) {
    g_driver = this;
}

Driver::~Driver() {
    KillTimer(nullptr, m_timer);
    g_driver = nullptr;
}

void Driver::Then(std::string name, std::function<bool()> ready, std::function<void()> act) {
    m_steps.push_back({std::move(name), std::move(ready), std::move(act)});
}

void Driver::In(const wchar_t* title, std::function<void(HWND)> act) {
    Then(
        "step " + std::to_string(m_steps.size() + 1),
        [title] { return DialogTitled(title) != nullptr && GetActiveWindow() == DialogTitled(title); },
        [title, act = std::move(act)] { act(DialogTitled(title)); });
}

void Driver::Answer(std::wstring& text, WORD button) {
    Then(
        "message " + std::to_string(m_steps.size() + 1),
        [] { return GetDlgItem(GetActiveWindow(), kMessage) != nullptr; },
        [&text, button] {
            text = TextOf(GetActiveWindow(), kMessage);
            PostMessageW(GetActiveWindow(), WM_COMMAND, button, 0);
        });
}

void Driver::On(const wchar_t* title, std::function<void(HWND)> act) {
    Then(
        "system dialog " + std::to_string(m_steps.size() + 1), [title] { return DialogOn(title) != nullptr; },
        [title, act = std::move(act)] { act(DialogOn(title)); });
}

std::string Driver::Failure() const {
    return m_failure.empty() && !m_steps.empty() ? m_steps.front().Name + " was not reached" : m_failure;
}

void CALLBACK Driver::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (g_driver != nullptr) {
        g_driver->Go();
    }
}

/// One step a tick, so that what was posted is done before the next.
void Driver::Go() {
    const auto now = std::chrono::steady_clock::now();
    if (!m_failure.empty()) {
        EnumThreadWindows(GetCurrentThreadId(), CancelDialog, 0);
    } else if (m_steps.empty() || m_steps.front().IsReady()) {
        m_waitingSince = now;
        if (!m_steps.empty()) {
            const Step step = std::move(m_steps.front());
            m_steps.pop_front();
            step.Act();
        }
    } else if (now - m_waitingSince > kPatience) {
        m_failure = m_steps.front().Name + " did not come";
    }
}

HWND DialogTitled(const wchar_t* title) {
    Sought sought{title};
    EnumThreadWindows(GetCurrentThreadId(), IsSought, reinterpret_cast<LPARAM>(&sought));
    return sought.Found;
}

HWND FrontPage(const wchar_t* title) {
    const HWND sheet = DialogTitled(title);
    HWND page = nullptr;
    do {
        page = FindWindowExW(sheet, page, L"#32770", nullptr);
    } while (page != nullptr && IsWindowVisible(page) == FALSE);
    return page;
}

HWND DialogOn(const wchar_t* title) {
    const HWND top = GetActiveWindow();
    return top != nullptr && top != DialogTitled(title) && TextOf(GetWindow(top, GW_OWNER)) == title
               ? top
               : nullptr;
}

std::wstring TextOf(HWND window) {
    std::array<wchar_t, 256> text{};
    return {text.data(), static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, text.size(),
                                                               reinterpret_cast<LPARAM>(text.data())))};
}

TextRange SelectionOf(HWND edit) {
    TextRange range;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&range.Begin),
                 reinterpret_cast<LPARAM>(&range.End));
    return range;
}

void Press(HWND dialog, int id) {
    PostMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

void Type(HWND dialog, int id, const wchar_t* text) {
    SendDlgItemMessageW(dialog, id, EM_SETSEL, 0, -1);
    SendDlgItemMessageW(dialog, id, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
}

void Pick(HWND dialog, int id, int index) {
    const HWND list = GetDlgItem(dialog, id);
    SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list), TRUE);
    for (int i = static_cast<int>(SendMessageW(list, CB_GETCURSEL, 0, 0)); i < index; ++i) {
        SendMessageW(list, WM_KEYDOWN, VK_DOWN, 0);
    }
}

void Strike(WORD key, WORD with) {
    if (with != 0) {
        Inject(KeyInput(with, 0, 0));
    }
    Inject(KeyInput(key, 0, 0));
    Inject(KeyInput(key, 0, KEYEVENTF_KEYUP));
    if (with != 0) {
        Inject(KeyInput(with, 0, KEYEVENTF_KEYUP));
    }
}

void Send(const wchar_t* text) {
    for (; *text != L'\0'; ++text) {
        Inject(KeyInput(0, static_cast<WORD>(*text), KEYEVENTF_UNICODE));
        Inject(KeyInput(0, static_cast<WORD>(*text), KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
    }
}
