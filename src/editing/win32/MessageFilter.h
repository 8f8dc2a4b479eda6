#pragma once

#include "editing/win32/Windows.h"

#include <functional>
#include <optional>

namespace millichart {

/// Hears what a window is told before the window does. Object and window may go in either order.
class MessageFilter {
public:
    /// The message's result, or nothing for what is left to the window.
    using Hear = std::function<std::optional<LRESULT>(UINT message, WPARAM wParam, LPARAM lParam)>;

    MessageFilter(HWND window, Hear hear);
    ~MessageFilter();

    MessageFilter(const MessageFilter&) = delete;
    MessageFilter& operator=(const MessageFilter&) = delete;

    /// Null after it went.
    HWND Window() const { return m_window; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR object);

    HWND m_window;
    Hear m_hear;
};

} // namespace millichart
