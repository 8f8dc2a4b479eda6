#include "Window.h"

namespace host {

bool Window::Create(WNDCLASSEXW windowClass, const CREATESTRUCTW& what) {
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    RegisterClassExW(&windowClass);
    return CreateWindowExW(what.dwExStyle, windowClass.lpszClassName, what.lpszName,
                           static_cast<DWORD>(what.style), what.x, what.y, what.cx, what.cy, what.hwndParent,
                           what.hMenu, windowClass.hInstance, this) != nullptr;
}

LRESULT CALLBACK Window::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* const made = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        made->m_handle = handle;
        SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
    }
    auto* const window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    return window == nullptr ? DefWindowProcW(handle, message, wParam, lParam)
                             : window->OnMessage(message, wParam, lParam);
}

} // namespace host
