#include "editing/win32/SheetWindow.h"

#include "editing/win32/TemplateBytes.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <uxtheme.h>

namespace millichart {
namespace {

using penlode::CStringUtil;

constexpr int kTabs = 3;

constexpr UINT kTurnPage = WM_APP; ///< 1 for the next one, −1 for the one before

// In dialog units.
constexpr int kMargin = 7;
constexpr int kButtonWidth = 50;
constexpr int kButtonHeight = 14;

int TabStep(const MSG& message) {
    if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) >= 0) {
        return 0;
    }
    switch (message.wParam) {
    case VK_TAB:
        return GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
    case VK_NEXT:
        return 1;
    case VK_PRIOR:
        return -1;
    default:
        return 0;
    }
}

/// In its parent, or on the screen.
void Grow(HWND window, int shiftX, int shiftY, int wider, int higher) {
    RECT place;
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&place), 2);
    SetWindowPos(window, nullptr, place.left + shiftX, place.top + shiftY, place.right - place.left + wider,
                 place.bottom - place.top + higher, SWP_NOZORDER);
}

} // namespace

class SheetWindow::Page final : public DialogWindow {
public:
    Page(SheetWindow& sheet, Dialog& dialog, int index)
        : DialogWindow(dialog), m_sheet(sheet), m_index(index) {}

    /// Behind the tabs in the order of the Tab key, in the box that they leave free.
    void Open() {
        const HWND tabs = m_sheet.Item(kTabs);
        RECT box;
        GetWindowRect(tabs, &box);
        MapWindowPoints(nullptr, m_sheet.Handle(), reinterpret_cast<POINT*>(&box), 2);
        TabCtrl_AdjustRect(tabs, FALSE, &box);
        const DialogTemplate& what = m_dialog.Template();
        Create(TemplateBytes(WS_CHILD | DS_CONTROL, WS_EX_CONTROLPARENT, "", {what.Width, what.Height},
                             ItemsOf(what.Controls)),
               m_sheet.Handle());
        EnableThemeDialogTexture(Handle(), ETDT_ENABLETAB);
        SetWindowPos(Handle(), tabs, box.left, box.top, box.right - box.left, box.bottom - box.top, 0);
    }

    void Focus(int id) override {
        m_sheet.BringToFront(m_index);
        DialogWindow::Focus(id);
    }

private:
    void OnOK() override { m_sheet.OnOK(); }

    void OnChanged() override {
        DialogWindow::OnChanged();
        m_sheet.OnChanged();
    }

    SheetWindow& m_sheet;
    int m_index;
};

SheetWindow::SheetWindow(Sheet& sheet) : m_sheet(sheet), m_pages(sheet.Pages().size()) {
    for (const SheetPage& page : sheet.Pages()) {
        m_pageSize.cx = std::max<LONG>(m_pageSize.cx, page.Page->Template().Width);
        m_pageSize.cy = std::max<LONG>(m_pageSize.cy, page.Page->Template().Height);
    }
}

bool SheetWindow::Show(HWND owner) {
    const int buttonsTop = kMargin + m_pageSize.cy + kMargin;
    const int right = kMargin + m_pageSize.cx;
    const std::array buttons{
        Control{kOkButton, ControlKind::DefaultButton, "确定", right - 2 * kButtonWidth - 6, buttonsTop,
                kButtonWidth, kButtonHeight},
        Control{kCancelButton, ControlKind::Button, "取消", right - kButtonWidth, buttonsTop, kButtonWidth,
                kButtonHeight},
    };
    std::vector<WindowItem> items = ItemsOf(buttons);
    items.insert(items.begin(), {kTabs, WC_TABCONTROLW, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP,
                                 0, L"", kMargin, kMargin, m_pageSize.cx, m_pageSize.cy});
    const HHOOK hook = SetWindowsHookExW(WH_MSGFILTER, TurnPages, nullptr, GetCurrentThreadId());
    const bool isAccepted = ShowModal(
        TemplateBytes(DS_MODALFRAME | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, m_sheet.Title(),
                      {right + kMargin, buttonsTop + kButtonHeight + kMargin}, items),
        owner);
    UnhookWindowsHookEx(hook);
    return isAccepted;
}

bool SheetWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        OnInitDialog();
        return false; // the focus is where it should be
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK) {
            OnOK();
        } else if (LOWORD(wParam) == IDCANCEL) {
            Close(false);
        }
        return true;
    case WM_NOTIFY:
        if (reinterpret_cast<const NMHDR*>(lParam)->code == TCN_SELCHANGE) {
            BringToFront(TabCtrl_GetCurSel(Item(kTabs)));
        }
        return false;
    case kTurnPage: {
        const int count = static_cast<int>(m_pages.size());
        BringToFront((m_front + static_cast<int>(wParam) + count) % count);
        return true;
    }
    default:
        return false;
    }
}

void SheetWindow::OnInitDialog() {
    for (const SheetPage& page : m_sheet.Pages()) {
        std::wstring title = CStringUtil::Utf8ToWideString(page.Title);
        TCITEMW tab{};
        tab.mask = TCIF_TEXT;
        tab.pszText = title.data();
        SendDlgItemMessageW(Handle(), kTabs, TCM_INSERTITEMW, m_pages.size(), reinterpret_cast<LPARAM>(&tab));
    }
    MakeRoomForTabs();
    OpenAtStart();
}

/// A sheet's first page has the place of one that is not there.
void SheetWindow::OpenAtStart() {
    const SheetStart& start = m_sheet.Start();
    const std::size_t page = start.Page < m_pages.size() ? start.Page : 0;
    BringToFront(static_cast<int>(page));
    FocusFirst();
    GoTo(*m_pages[page], start);
}

/// The template has room for the pages alone: how much tabs and borders need, only their window knows. The
/// sheet stays in the middle of the screen.
void SheetWindow::MakeRoomForTabs() {
    RECT page{0, 0, m_pageSize.cx, m_pageSize.cy};
    MapDialogRect(Handle(), &page);
    RECT whole = page;
    TabCtrl_AdjustRect(Item(kTabs), TRUE, &whole);
    const int wider = whole.right - whole.left - page.right;
    const int higher = whole.bottom - whole.top - page.bottom;
    Grow(Item(kTabs), 0, 0, wider, higher);
    Grow(Handle(), -wider / 2, -higher / 2, wider, higher);
    for (const int button : {kOkButton, kCancelButton}) {
        Grow(Item(button), wider, higher, 0, 0);
    }
}

void SheetWindow::OnOK() {
    for (const auto& page : m_pages) {
        if (page != nullptr) {
            page->FinishEdits();
        }
    }
    if (m_sheet.OnOK(Views())) {
        Close(true);
    }
}

void SheetWindow::OnChanged() {
    m_sheet.OnChanged(Views());
}

void SheetWindow::Open(int index) {
    auto& page = m_pages[static_cast<std::size_t>(index)];
    if (page == nullptr) {
        Dialog& dialog = *m_sheet.Pages()[static_cast<std::size_t>(index)].Page;
        page = std::make_unique<Page>(*this, dialog, index);
        page->Open();
    }
    ShowWindow(page->Handle(), SW_SHOW);
}

void SheetWindow::BringToFront(int index) {
    if (index == m_front) {
        return;
    }
    const HWND before = m_front < 0 ? nullptr : m_pages[static_cast<std::size_t>(m_front)]->Handle();
    const bool hadFocus = IsChild(before, GetFocus()) != FALSE;
    m_front = index;
    Open(index);
    TabCtrl_SetCurSel(Item(kTabs), index);
    if (hadFocus) { // which a hidden page must not keep
        FocusFirst();
    }
    ShowWindow(before, SW_HIDE);
}

/// As the Tab key goes to it: an edit's text is selected.
void SheetWindow::FocusFirst() {
    const HWND page = m_pages[static_cast<std::size_t>(m_front)]->Handle();
    const HWND first = GetNextDlgTabItem(page, nullptr, FALSE);
    SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
}

std::vector<DialogView*> SheetWindow::Views() const {
    std::vector<DialogView*> views;
    for (const auto& page : m_pages) {
        views.push_back(page.get());
    }
    return views;
}

/// The modal loop is the system's, and asks hooks about its messages.
LRESULT CALLBACK SheetWindow::TurnPages(int code, WPARAM wParam, LPARAM lParam) {
    const MSG& message = *reinterpret_cast<const MSG*>(lParam);
    const HWND root = code == MSGF_DIALOGBOX ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    const int step = dynamic_cast<SheetWindow*>(Of(root)) != nullptr ? TabStep(message) : 0;
    if (step == 0) {
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    PostMessageW(root, kTurnPage, static_cast<WPARAM>(step), 0);
    return TRUE;
}

bool RunModal(Sheet& sheet) {
    try {
        return SheetWindow(sheet).Show(GetActiveWindow());
    } catch (...) { // no memory
        return false;
    }
}

} // namespace millichart
