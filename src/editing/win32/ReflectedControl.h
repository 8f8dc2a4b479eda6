#pragma once

#include "editing/win32/MessageFilter.h"

namespace millichart {

/// A control of the system's that this object draws or answers for: what the system tells the control's
/// parent about it comes here first. Object and window may go in either order.
class ReflectedControl {
public:
    virtual ~ReflectedControl() = default;

    ReflectedControl(const ReflectedControl&) = delete;
    ReflectedControl& operator=(const ReflectedControl&) = delete;

    HWND Handle() const { return m_window; }

protected:
    explicit ReflectedControl(HWND window);

    /// The message's result, or nothing for what is the parent's to answer.
    virtual std::optional<LRESULT> OnReflected(UINT message, WPARAM wParam, LPARAM lParam) = 0;

private:
    bool IsAbout(UINT message, LPARAM lParam) const;

    HWND m_window;
    MessageFilter m_parent;
};

} // namespace millichart
