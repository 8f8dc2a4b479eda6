// How the canvas scrolls and zooms.
#include "ChartCanvas.h"

#include <cmath>
#include <cstdlib>
#include <windowsx.h>

namespace host {
namespace {

/// Pixels of a line that the wheel or an arrow scrolls, at 96 dpi.
constexpr double kScrollLine = 20.0;

} // namespace

/// With Ctrl it zooms at the mouse, with Shift it scrolls sideways. Fine wheels turn less than a notch at a
/// time.
void ChartCanvas::OnWheel(WPARAM wParam, LPARAM lParam, bool sideways) {
    m_wheel += GET_WHEEL_DELTA_WPARAM(wParam);
    const int keys = GET_KEYSTATE_WPARAM(wParam);
    if ((keys & MK_CONTROL) != 0) {
        POINT mouse{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        ScreenToClient(Handle(), &mouse);
        for (; std::abs(m_wheel) >= WHEEL_DELTA; m_wheel -= m_wheel > 0 ? WHEEL_DELTA : -WHEEL_DELTA) {
            SetZoom(NextZoom(m_view.Zoom(), m_wheel), {mouse.x, mouse.y});
        }
        return;
    }
    const double notches = static_cast<double>(m_wheel) / WHEEL_DELTA;
    const int pixels = static_cast<int>(std::lround(notches * 3.0 * kScrollLine * m_view.Dpi() / 96.0));
    m_wheel = 0;
    if (sideways) {
        ScrollBy(pixels, 0);
    } else if ((keys & MK_SHIFT) != 0) {
        ScrollBy(-pixels, 0);
    } else {
        ScrollBy(0, -pixels);
    }
}

void ChartCanvas::OnScrollBar(int bar, WPARAM wParam) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(Handle(), bar, &info);
    const int line = static_cast<int>(std::lround(kScrollLine * m_view.Dpi() / 96.0));
    int by = 0;
    switch (LOWORD(wParam)) {
    case SB_LINEUP:
        by = -line;
        break;
    case SB_LINEDOWN:
        by = line;
        break;
    case SB_PAGEUP:
        by = -static_cast<int>(info.nPage);
        break;
    case SB_PAGEDOWN:
        by = static_cast<int>(info.nPage);
        break;
    case SB_THUMBTRACK:
        by = info.nTrackPos - info.nPos;
        break;
    default:
        return;
    }
    bar == SB_HORZ ? ScrollBy(by, 0) : ScrollBy(0, by);
}

void ChartCanvas::SetZoom(double zoom, PixelPoint anchor) {
    FinishEdit(true);
    m_view.SetZoom(zoom, anchor);
    Update();
}

void ChartCanvas::ScrollBy(int dx, int dy) {
    FinishEdit(true);
    m_view.ScrollBy(dx, dy);
    UpdateScrollBars();
    InvalidateRect(Handle(), nullptr, FALSE);
}

void ChartCanvas::UpdateScrollBars() {
    const PixelRect range = m_view.ScrollRange();
    const PixelRect seen = m_view.VisibleArea();
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = range.Left;
    info.nMax = range.Right - 1;
    info.nPage = static_cast<UINT>(seen.Width());
    info.nPos = seen.Left;
    SetScrollInfo(Handle(), SB_HORZ, &info, TRUE);
    info.nMin = range.Top;
    info.nMax = range.Bottom - 1;
    info.nPage = static_cast<UINT>(seen.Height());
    info.nPos = seen.Top;
    SetScrollInfo(Handle(), SB_VERT, &info, TRUE);
}

} // namespace host
