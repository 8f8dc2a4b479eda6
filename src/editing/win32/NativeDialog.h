#pragma once

#include "editing/win32/Windows.h"

#include <vector>

namespace millichart {

/// A dialog of the system's, whose messages come to OnMessage. What that throws closes the dialog, or the
/// one that this is a part of, as Cancel does. The object must outlive the window.
class NativeDialog {
public:
    virtual ~NativeDialog() = default;

    NativeDialog(const NativeDialog&) = delete;
    NativeDialog& operator=(const NativeDialog&) = delete;

    HWND Handle() const { return m_window; }

    HWND Item(int id) const { return GetDlgItem(m_window, id); }

protected:
    NativeDialog() = default;

    /// True after Close(true).
    bool ShowModal(const std::vector<WORD>& bytes, HWND owner);
    void Create(const std::vector<WORD>& bytes, HWND parent);
    /// Of a part, the whole dialog.
    void Close(bool isAccepted);

    /// The object of a window; null if that is no dialog of this class.
    static NativeDialog* Of(HWND window);

    /// True for a message that needs nothing more, as dialogs have it.
    virtual bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window = nullptr;
};

} // namespace millichart
