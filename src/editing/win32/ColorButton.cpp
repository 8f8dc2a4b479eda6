#include "editing/win32/ColorButton.h"

#include "editing/win32/SystemDialogs.h"

#include <uxtheme.h>
#include <vssym32.h>

namespace marrowkit {
namespace {

using millichart::Scaled;

int ThemeState(UINT state) {
    if ((state & ODS_DISABLED) != 0) {
        return PBS_DISABLED;
    }
    if ((state & ODS_SELECTED) != 0) {
        return PBS_PRESSED;
    }
    return (state & ODS_FOCUS) != 0 ? PBS_DEFAULTED : PBS_NORMAL;
}

UINT ClassicState(UINT state) {
    return DFCS_BUTTONPUSH | ((state & ODS_DISABLED) != 0 ? DFCS_INACTIVE : 0U) |
           ((state & ODS_SELECTED) != 0 ? DFCS_PUSHED : 0U);
}

/// As the system draws its own buttons, with visual styles or without.
void DrawButton(HWND button, HDC context, RECT box, UINT state) {
    const HTHEME theme = OpenThemeData(button, VSCLASS_BUTTON);
    if (theme == nullptr) {
        DrawFrameControl(context, &box, DFC_BUTTON, ClassicState(state));
        return;
    }
    DrawThemeParentBackground(button, context, &box);
    DrawThemeBackground(theme, context, BP_PUSHBUTTON, ThemeState(state), &box, nullptr);
    CloseThemeData(theme);
}

} // namespace

std::optional<LRESULT> CColorButton::OnReflected(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM) {
        DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && !Pick()) {
        return 0;
    }
    return std::nullopt;
}

bool CColorButton::Pick() {
    const auto picked = millichart::PickColor(GetAncestor(Handle(), GA_ROOT), Color());
    if (picked) {
        SetColor(*picked);
    }
    return picked.has_value();
}

void CColorButton::DrawItem(const DRAWITEMSTRUCT& item) const {
    DrawButton(Handle(), item.hDC, item.rcItem, item.itemState);
    RECT face = item.rcItem;
    InflateRect(&face, -Scaled(Handle(), 3), -Scaled(Handle(), 3));
    if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        DrawFocusRect(item.hDC, &face);
    }
    InflateRect(&face, -Scaled(Handle(), 2), -Scaled(Handle(), 2));
    const bool isDisabled = (item.itemState & ODS_DISABLED) != 0;
    millichart::DrawFramedColor(Handle(), item.hDC, face, isDisabled ? GetSysColor(COLOR_BTNFACE) : Color());
}

} // namespace marrowkit
