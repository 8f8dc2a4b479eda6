#pragma once

#include <windows.h>

namespace host {

/// A window of a class of its own; the system's messages come to OnMessage. The object must outlive the
/// window, and stay where it is.
class Window {
public:
    virtual ~Window() = default;

    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND Handle() const { return m_handle; }

protected:
    Window() = default;

    /// Registers the class when it is not yet, and makes the window.
    bool Create(WNDCLASSEXW windowClass, const CREATESTRUCTW& what);

    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    /// What the system does about a message.
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) {
        return DefWindowProcW(m_handle, message, wParam, lParam);
    }

private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_handle = nullptr;
};

} // namespace host
