#include "editing/win32/ReflectedControl.h"

namespace millichart {

ReflectedControl::ReflectedControl(HWND window) : m_window(window), m_parent(GetParent(window)) {
    SetWindowSubclass(m_parent, ParentProcedure, reinterpret_cast<UINT_PTR>(this),
                      reinterpret_cast<DWORD_PTR>(this));
}

ReflectedControl::~ReflectedControl() {
    if (m_parent != nullptr) {
        RemoveWindowSubclass(m_parent, ParentProcedure, reinterpret_cast<UINT_PTR>(this));
    }
}

LRESULT CALLBACK ReflectedControl::ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam,
                                                   UINT_PTR id, DWORD_PTR object) {
    auto* const control = reinterpret_cast<ReflectedControl*>(object);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(parent, ParentProcedure, id);
        control->m_parent = nullptr;
    } else if (control->IsAbout(message, lParam)) {
        try {
            if (const auto result = control->OnReflected(message, wParam, lParam)) {
                return *result;
            }
        } catch (...) { // not through the system
            return 0;
        }
    }
    return DefSubclassProc(parent, message, wParam, lParam);
}

bool ReflectedControl::IsAbout(UINT message, LPARAM lParam) const {
    switch (message) {
    case WM_COMMAND:
        return reinterpret_cast<HWND>(lParam) == m_window;
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
