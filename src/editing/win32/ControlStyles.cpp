#include "editing/win32/ControlStyles.h"

#include "editing/win32/Module.h"

namespace millichart {
namespace {

/// From this module's manifest, once a process; it stays until the process ends.
HANDLE Context() {
    static const HANDLE context = [] {
        ACTCTXW what{};
        what.cbSize = sizeof what;
        what.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        what.hModule = ThisModule();
        what.lpResourceName = MAKEINTRESOURCEW(2);
        return CreateActCtxW(&what);
    }();
    return context;
}

} // namespace

ControlStyles::ControlStyles()
    : m_isActive(Context() != INVALID_HANDLE_VALUE && ActivateActCtx(Context(), &m_cookie) != FALSE) {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_UPDOWN_CLASS |
                                                           ICC_TAB_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
}

ControlStyles::~ControlStyles() {
    if (m_isActive) {
        DeactivateActCtx(0, m_cookie);
    }
}

} // namespace millichart
