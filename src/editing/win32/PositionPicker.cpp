#include "editing/win32/PositionPicker.h"

#include "editing/LegendPlaces.h"
#include "editing/win32/ScaledDrawing.h"

#include <uxtheme.h>
#include <windowsx.h>

namespace millichart {
namespace {

penlode::Color SystemColor(int index) {
    return penlode::FromColorRef(GetSysColor(index));
}

/// The place at a point of the control's. The picture counts in pixels of 96 dpi.
int PlaceAt(HWND control, LPARAM point) {
    RECT box;
    GetClientRect(control, &box);
    const float scale = static_cast<float>(GetDpiForWindow(control)) / 96.0F;
    const auto scaled = [scale](LONG pixels) { return static_cast<float>(pixels) / scale; };
    return LegendPlaceAt({scaled(GET_X_LPARAM(point)), scaled(GET_Y_LPARAM(point))},
                         {scaled(box.right), scaled(box.bottom)});
}

} // namespace

PositionPicker::PositionPicker(HWND control)
    : ReflectedControl(control), m_own(control, [this](UINT message, WPARAM wParam, LPARAM lParam) {
          return OnMessage(message, wParam, lParam);
      }) {}

void PositionPicker::Select(int place) {
    m_selection = place >= 0 && place < kLegendPlaceCount ? place : -1;
    InvalidateRect(Handle(), nullptr, FALSE);
}

void PositionPicker::Pick(int place) {
    if (place < 0 || place == m_selection) {
        return;
    }
    Select(place);
    SendMessageW(GetParent(Handle()), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(Handle()), STN_CLICKED),
                 reinterpret_cast<LPARAM>(Handle()));
}

std::optional<LRESULT> PositionPicker::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        InvalidateRect(Handle(), nullptr, FALSE);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        SetFocus(Handle());
        Pick(PlaceAt(Handle(), lParam));
        return 0;
    case WM_KEYDOWN:
        return OnKey(wParam) ? std::optional<LRESULT>(0) : std::nullopt;
    default:
        return std::nullopt;
    }
}

bool PositionPicker::OnKey(WPARAM key) {
    switch (key) {
    case VK_LEFT:
        return Pick(LegendPlaceBeside(m_selection, -1, 0)), true;
    case VK_RIGHT:
        return Pick(LegendPlaceBeside(m_selection, 1, 0)), true;
    case VK_UP:
        return Pick(LegendPlaceBeside(m_selection, 0, -1)), true;
    case VK_DOWN:
        return Pick(LegendPlaceBeside(m_selection, 0, 1)), true;
    default:
        return false;
    }
}

std::optional<LRESULT> PositionPicker::OnReflected(UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_DRAWITEM) {
        return std::nullopt;
    }
    // On a bitmap first, as the picture would flicker.
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    DRAWITEMSTRUCT hidden = item;
    hidden.hDC = CreateCompatibleDC(item.hDC);
    const HBITMAP bitmap = CreateCompatibleBitmap(item.hDC, item.rcItem.right, item.rcItem.bottom);
    const HGDIOBJ before = SelectObject(hidden.hDC, bitmap);
    Draw(hidden);
    BitBlt(item.hDC, 0, 0, item.rcItem.right, item.rcItem.bottom, hidden.hDC, 0, 0, SRCCOPY);
    SelectObject(hidden.hDC, before);
    DeleteObject(bitmap);
    DeleteDC(hidden.hDC);
    return TRUE;
}

void PositionPicker::Draw(const DRAWITEMSTRUCT& item) const {
    RECT box = item.rcItem;
    DrawThemeParentBackground(Handle(), item.hDC, &box);
    DrawScaled(Handle(), item.hDC, box,
               [this](penlode::IGraphicsEngine& engine, const penlode::RectF& picture) {
                   DrawLegendPlaces(engine, {picture.Width, picture.Height}, m_selection,
                                    {SystemColor(COLOR_WINDOW), SystemColor(COLOR_WINDOWTEXT),
                                     SystemColor(COLOR_HIGHLIGHT)});
               });
    if (GetFocus() == Handle()) {
        DrawFocusRect(item.hDC, &box);
    }
}

} // namespace millichart
