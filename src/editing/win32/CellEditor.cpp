#include "editing/win32/CellEditor.h"

#include "editing/win32/CentredEdit.h"
#include "editing/win32/Module.h"
#include "editing/win32/WindowText.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <utility>

namespace millichart {
namespace {

using penlode::CStringUtil;

HWND MakeChild(HWND list, const wchar_t* kind, DWORD style, const RECT& box) {
    const HWND made = CreateWindowExW(0, kind, L"", WS_CHILD | style, box.left, box.top, box.right - box.left,
                                      box.bottom - box.top, list, nullptr, ThisModule(), nullptr);
    SendMessageW(made, WM_SETFONT, static_cast<WPARAM>(SendMessageW(list, WM_GETFONT, 0, 0)), FALSE);
    return made;
}

HWND MakeEdit(HWND list, const RECT& cell, const std::string& text) {
    const HWND edit = MakeChild(list, WC_EDITW, WS_BORDER | ES_AUTOHSCROLL, cell);
    SetWindowTextW(edit, CStringUtil::Utf8ToWideString(text).c_str());
    CentreText(edit);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    return edit;
}

/// As high as the cell when it is closed, with room for all choices when it is open; wider by its arrow, if
/// the list has that room.
HWND MakeChoices(HWND list, const RECT& cell, const ListColumn& column, const std::string& text) {
    constexpr WPARAM kClosed = static_cast<WPARAM>(-1);
    RECT client;
    GetClientRect(list, &client);
    RECT open = cell;
    open.right =
        std::max(cell.right, std::min<LONG>(cell.right + GetSystemMetrics(SM_CXVSCROLL), client.right));
    open.bottom += (cell.bottom - cell.top) * static_cast<LONG>(column.Choices.size() + 1);
    const HWND choices = MakeChild(list, WC_COMBOBOXW, CBS_DROPDOWNLIST | WS_VSCROLL, open);
    for (const std::string_view choice : column.Choices) {
        const std::wstring item = CStringUtil::Utf8ToWideString(choice);
        SendMessageW(choices, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    }
    const std::wstring chosen = CStringUtil::Utf8ToWideString(text);
    const LRESULT index =
        SendMessageW(choices, CB_FINDSTRINGEXACT, kClosed, reinterpret_cast<LPARAM>(chosen.c_str()));
    SendMessageW(choices, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    RECT closed;
    GetWindowRect(choices, &closed);
    const LRESULT line = SendMessageW(choices, CB_GETITEMHEIGHT, kClosed, 0);
    SendMessageW(choices, CB_SETITEMHEIGHT, kClosed,
                 line + (cell.bottom - cell.top) - (closed.bottom - closed.top));
    return choices;
}

HWND Make(HWND list, const RECT& cell, const ListColumn& column, const std::string& text) {
    return column.Kind == CellKind::Choice ? MakeChoices(list, cell, column, text)
                                           : MakeEdit(list, cell, text);
}

/// The keys that would press a button of the dialog's, or move the focus on.
bool IsDialogKey(WPARAM key) {
    return key == VK_RETURN || key == VK_ESCAPE || key == VK_TAB;
}

} // namespace

CellEditor::CellEditor(HWND list, const RECT& cell, const ListColumn& column, const std::string& text,
                       Take take)
    : ReflectedControl(Make(list, cell, column, text)), m_take(std::move(take)),
      m_own(Handle(), [this](UINT message, WPARAM wParam, LPARAM lParam) {
          return OnMessage(message, wParam, lParam);
      }) {
    ShowWindow(Handle(), SW_SHOW);
    SetFocus(Handle());
    if (column.Kind == CellKind::Choice) {
        SendMessageW(Handle(), CB_SHOWDROPDOWN, TRUE, 0);
    }
}

CellEditor::~CellEditor() {
    m_isOpen = false;
    if (m_own.Window() != nullptr) {
        DestroyWindow(m_own.Window());
    }
}

void CellEditor::Finish(bool takes) {
    if (!m_isOpen) {
        return;
    }
    m_isOpen = false;
    const std::string text = CStringUtil::WideToUtf8(WindowText(Handle()));
    if (GetFocus() == Handle()) {
        SetFocus(GetParent(Handle()));
    }
    ShowWindow(Handle(), SW_HIDE);
    if (takes) {
        m_take(text);
    }
}

std::optional<LRESULT> CellEditor::OnReflected(UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_COMMAND && HIWORD(wParam) == CBN_SELENDOK) {
        m_isPicked = true;
    } else if (message == WM_COMMAND && HIWORD(wParam) == CBN_CLOSEUP) {
        Finish(m_isPicked);
    }
    return std::nullopt;
}

std::optional<LRESULT> CellEditor::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_GETDLGCODE:
        return IsDialogKey(wParam) ? std::optional<LRESULT>(DLGC_WANTALLKEYS) : std::nullopt;
    case WM_KEYDOWN:
        if (IsDialogKey(wParam)) {
            OnKey(wParam);
            return 0;
        }
        return std::nullopt;
    case WM_CHAR: // at which an edit beeps
        return IsDialogKey(wParam) ? std::optional<LRESULT>(0) : std::nullopt;
    case WM_KILLFOCUS:
        Finish(true);
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

void CellEditor::OnKey(WPARAM key) {
    Finish(key != VK_ESCAPE);
    if (key == VK_TAB) {
        const WPARAM isBack = GetKeyState(VK_SHIFT) < 0 ? TRUE : FALSE;
        SendMessageW(GetAncestor(Handle(), GA_ROOT), WM_NEXTDLGCTL, isBack, FALSE);
    }
}

} // namespace millichart
