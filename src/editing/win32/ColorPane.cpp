#include "editing/win32/ColorPane.h"

namespace millichart {

void DrawFramedColor(HWND window, HDC context, RECT box, COLORREF color) {
    const int line = Scaled(window, 1);
    FillRect(context, &box, GetSysColorBrush(COLOR_BTNSHADOW));
    InflateRect(&box, -line, -line);
    SetDCBrushColor(context, color);
    FillRect(context, &box, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

CColorPane::CColorPane(HWND control) : ColorControl(control) {}

CColorPane::~CColorPane() = default;

void CColorPane::DrawItem(const DRAWITEMSTRUCT& item) {
    DrawFramedColor(Handle(), item.hDC, item.rcItem, Color());
}

std::optional<LRESULT> CColorPane::OnReflected(UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_DRAWITEM) {
        return std::nullopt;
    }
    DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    return TRUE;
}

} // namespace millichart
