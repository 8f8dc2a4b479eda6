#include "InPlaceEdit.h"

#include <algorithm>
#include <cmath>
#include <commctrl.h>

namespace host {
namespace {

constexpr int kBorder = 3; ///< the frame, and as much air

HFONT FontOf(const penlode::Font& font, double scale) {
    LOGFONTW look{};
    look.lfHeight = -(std::max)(1L, std::lround(font.Size * scale));
    look.lfWeight = font.Has(penlode::FontStyle::Bold) ? FW_BOLD : FW_NORMAL;
    look.lfItalic = font.Has(penlode::FontStyle::Italic) ? TRUE : FALSE;
    look.lfUnderline = font.Has(penlode::FontStyle::Underline) ? TRUE : FALSE;
    look.lfStrikeOut = font.Has(penlode::FontStyle::Strikeout) ? TRUE : FALSE;
    look.lfCharSet = DEFAULT_CHARSET;
    font.Family.copy(look.lfFaceName, LF_FACESIZE - 1);
    return CreateFontIndirectW(&look);
}

/// As the system's control has line ends.
std::wstring WithReturns(const std::wstring& text) {
    std::wstring result;
    for (const wchar_t each : text) {
        result += each == L'\n' ? L"\r\n" : std::wstring(1, each);
    }
    return result;
}

} // namespace

InPlaceEdit::InPlaceEdit(HWND parent, const std::wstring& text, const designer::PartLook& look, double scale,
                         const PixelRect& box)
    : m_box(box), m_color(penlode::ToColorRef(look.Color)), m_font(FontOf(look.Font, scale)),
      m_window(CreateWindowExW(0, L"EDIT", WithReturns(text).c_str(),
                               WS_CHILD | WS_BORDER | ES_MULTILINE | ES_CENTER | ES_AUTOVSCROLL, 0, 0, 0, 0,
                               parent, nullptr, GetModuleHandleW(nullptr), nullptr)) {
    SendMessageW(m_window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.get()), FALSE);
    SetWindowSubclass(m_window, Procedure, 0, reinterpret_cast<DWORD_PTR>(parent));
    Grow();
    ShowWindow(m_window, SW_SHOW);
    SendMessageW(m_window, EM_SETSEL, 0, -1);
    SetFocus(m_window);
}

InPlaceEdit::~InPlaceEdit() {
    RemoveWindowSubclass(m_window, Procedure, 0); // it loses the keyboard now, and tells nobody
    DestroyWindow(m_window);
}

std::wstring InPlaceEdit::Text() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(m_window)), L'\0');
    GetWindowTextW(m_window, text.data(), static_cast<int>(text.size()) + 1);
    std::erase(text, L'\r');
    return text;
}

void InPlaceEdit::Grow() {
    const HDC context = GetDC(m_window);
    RECT needed{};
    {
        const Selection drawing(context, m_font.get());
        // A last line without a character has its height too, and a caret its width.
        const std::wstring text = Text() + L"口";
        DrawTextW(context, text.c_str(), -1, &needed, DT_CALCRECT | DT_NOPREFIX | DT_EDITCONTROL);
    }
    ReleaseDC(m_window, context);
    RECT room;
    GetClientRect(GetParent(m_window), &room);
    const int width = (std::min)((std::max)(static_cast<int>(needed.right), m_box.Width()) + 2 * kBorder,
                                 static_cast<int>(room.right));
    const int height =
        (std::min)(static_cast<int>(needed.bottom) + 2 * kBorder, static_cast<int>(room.bottom));
    const int left = (m_box.Left + m_box.Right - width) / 2;
    const int top = (m_box.Top + m_box.Bottom - height) / 2;
    MoveWindow(m_window, std::clamp(left, 0, static_cast<int>(room.right) - width),
               std::clamp(top, 0, static_cast<int>(room.bottom) - height), width, height, TRUE);
}

HBRUSH InPlaceEdit::PrepareColors(HDC context) const {
    SetTextColor(context, m_color);
    SetBkColor(context, RGB(0xFF, 0xFF, 0xFF));
    return static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
}

/// It tells by a posted message, as its window must not go within one of its own.
LRESULT CALLBACK InPlaceEdit::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR parent) {
    const auto tell = [&](bool isKept) {
        PostMessageW(reinterpret_cast<HWND>(parent), kEditDone, isKept ? TRUE : FALSE,
                     reinterpret_cast<LPARAM>(window));
    };
    const bool isBreak = wParam == VK_RETURN && (GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_CONTROL) < 0);
    switch (message) {
    case WM_KEYDOWN:
        if (wParam == VK_ESCAPE || (wParam == VK_RETURN && !isBreak)) {
            tell(wParam == VK_RETURN);
            return 0;
        }
        break;
    case WM_CHAR:
        if (wParam == VK_ESCAPE || (wParam == VK_RETURN && !isBreak)) {
            return 0;
        }
        break;
    case WM_KILLFOCUS:
        tell(true);
        break;
    default:
        break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

} // namespace host
