#include "editing/win32/ReflectedControl.h"

namespace millichart {

ReflectedControl::ReflectedControl(HWND window)
    : m_window(window), m_parent(GetParent(window), [this](UINT message, WPARAM wParam, LPARAM lParam) {
          return IsAbout(message, lParam) ? OnReflected(message, wParam, lParam) : std::nullopt;
      }) {}

bool ReflectedControl::IsAbout(UINT message, LPARAM lParam) const {
    switch (message) {
    case WM_COMMAND:
        return reinterpret_cast<HWND>(lParam) == m_window;
    case WM_NOTIFY:
        return reinterpret_cast<const NMHDR*>(lParam)->hwndFrom == m_window;
    case WM_DRAWITEM:
        return reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem == m_window;
    case WM_COMPAREITEM:
        return reinterpret_cast<const COMPAREITEMSTRUCT*>(lParam)->hwndItem == m_window;
    case WM_MEASUREITEM:
        return static_cast<int>(reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam)->CtlID) ==
               GetDlgCtrlID(m_window);
    default:
        return false;
    }
}

} // namespace millichart
