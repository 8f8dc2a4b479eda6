#include "editing/win32/MessageFilter.h"

#include <utility>

namespace millichart {

MessageFilter::MessageFilter(HWND window, Hear hear) : m_window(window), m_hear(std::move(hear)) {
    SetWindowSubclass(m_window, Procedure, reinterpret_cast<UINT_PTR>(this),
                      reinterpret_cast<DWORD_PTR>(this));
}

MessageFilter::~MessageFilter() {
    if (m_window != nullptr) {
        RemoveWindowSubclass(m_window, Procedure, reinterpret_cast<UINT_PTR>(this));
    }
}

LRESULT CALLBACK MessageFilter::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR id, DWORD_PTR object) {
    auto* const filter = reinterpret_cast<MessageFilter*>(object);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, Procedure, id);
        filter->m_window = nullptr;
        return DefSubclassProc(window, message, wParam, lParam);
    }
    try {
        if (const auto result = filter->m_hear(message, wParam, lParam)) {
            return *result;
        }
    } catch (...) { // not through the system
        return 0;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

} // namespace millichart
