#pragma once

#include "editing/win32/DialogWindow.h"

namespace millichart {

/// A sheet's window: tabs, the page in front, OK and Cancel.
class SheetWindow final : public NativeDialog {
public:
    explicit SheetWindow(Sheet& sheet);

    /// True after OK.
    bool Show(HWND owner);

private:
    /// A page's window, a part of the sheet's.
    class Page;

    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnInitDialog();
    void MakeRoomForTabs();
    void OpenAtStart();
    void OnOK();
    void OnChanged();
    void Open(int index);
    void BringToFront(int index);
    void FocusFirst();
    std::vector<DialogView*> Views() const;

    /// The keys of the sheets of the system, Ctrl+Tab and Ctrl+Page Down, with Shift or Page Up for back.
    static LRESULT CALLBACK TurnPages(int code, WPARAM wParam, LPARAM lParam);

    Sheet& m_sheet;
    SIZE m_pageSize{};                          ///< the largest page's, in dialog units
    std::vector<std::unique_ptr<Page>> m_pages; ///< null for one that was not shown yet
    int m_front = -1;
};

} // namespace millichart
