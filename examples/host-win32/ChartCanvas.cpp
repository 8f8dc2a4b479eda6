#include "ChartCanvas.h"

#include "Overlay.h"

#include <cmath>
#include <cstdlib>
#include <utility>
#include <windowsx.h>

namespace host {
namespace {

constexpr COLORREF kDesk = RGB(0xE4, 0xE6, 0xE9);
constexpr COLORREF kSheetEdge = RGB(0xB8, 0xBC, 0xC2);

/// Millimetres that an arrow key moves a part, alone and with Shift.
constexpr float kStep = 0.5F;
constexpr float kLargeStep = 5.0F;

/// Pixels of a line that the wheel or an arrow scrolls, at 96 dpi.
constexpr double kScrollLine = 20.0;

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

PixelPoint PointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

/// Is it more than a hand that trembles while it clicks?
bool IsDragged(PixelPoint from, PixelPoint to) {
    return std::abs(to.X - from.X) >= GetSystemMetrics(SM_CXDRAG) ||
           std::abs(to.Y - from.Y) >= GetSystemMetrics(SM_CYDRAG);
}

/// Right and left, down and up; {0, 0} for any other key.
PixelPoint DirectionOf(WPARAM key) {
    return {(key == VK_RIGHT) - (key == VK_LEFT), (key == VK_DOWN) - (key == VK_UP)};
}

RECT Converted(const PixelRect& rect) {
    return {rect.Left, rect.Top, rect.Right, rect.Bottom};
}

void Fill(HDC context, const RECT& area, COLORREF colour) {
    const KeptBrush brush(CreateSolidBrush(colour));
    FillRect(context, &area, brush.get());
}

} // namespace

ChartCanvas::ChartCanvas(HWND parent, std::function<void()> onChange) : m_onChange(std::move(onChange)) {
    WNDCLASSEXW windowClass{};
    windowClass.lpszClassName = L"MillichartCanvas";
    CREATESTRUCTW what{};
    what.style = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL;
    what.hwndParent = parent;
    Create(windowClass, what);
    m_view.SetDpi(GetDpiForWindow(parent));
}

void ChartCanvas::Show(ChartModel& model) {
    m_model = &model;
    m_page.Forget();
    m_view.ShowSheet(model.Sheet());
    Update();
}

void ChartCanvas::Update() {
    m_view.UpdateSheet(m_model->Sheet());
    UpdateScrollBars();
    InvalidateRect(Handle(), nullptr, FALSE);
    m_onChange();
}

void ChartCanvas::ZoomBy(int direction) {
    SetZoom(NextZoom(m_view.Zoom(), direction), Middle());
}

void ChartCanvas::ShowTrueSize() {
    SetZoom(1.0, Middle());
}

void ChartCanvas::SetDpi(double dpi) {
    m_view.SetDpi(dpi);
    Update();
}

LRESULT ChartCanvas::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_model == nullptr) {
        return Default(message, wParam, lParam);
    }
    switch (message) {
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_ERASEBKGND:
        return 1; // OnPaint covers all of it: erasing would flicker
    case WM_SIZE:
        m_view.SetWindow(LOWORD(lParam), HIWORD(lParam));
        UpdateScrollBars();
        InvalidateRect(Handle(), nullptr, FALSE);
        return 0;
    case WM_LBUTTONDOWN:
        OnButtonDown(PointOf(lParam));
        return 0;
    case WM_MOUSEMOVE:
        OnMouseMove(PointOf(lParam));
        return 0;
    case WM_LBUTTONUP:
        OnButtonUp();
        return 0;
    case WM_CAPTURECHANGED: // another window took the mouse away
        m_model->Cancel();
        Update();
        return 0;
    case WM_SETCURSOR:
        return OnSetCursor(lParam) ? TRUE : Default(message, wParam, lParam);
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
        OnWheel(wParam, lParam, message == WM_MOUSEHWHEEL);
        return 0;
    case WM_HSCROLL:
        OnScrollBar(SB_HORZ, wParam);
        return 0;
    case WM_VSCROLL:
        OnScrollBar(SB_VERT, wParam);
        return 0;
    case WM_KEYDOWN:
        return OnKey(wParam) ? 0 : Default(message, wParam, lParam);
    default:
        return Default(message, wParam, lParam);
    }
}

/// Everything is put together in memory and copied at once.
void ChartCanvas::OnPaint() {
    PAINTSTRUCT paint;
    const HDC window = BeginPaint(Handle(), &paint);
    RECT client;
    GetClientRect(Handle(), &client);
    m_frame.Reserve(client.right, client.bottom);
    const HDC frame = m_frame.Context();
    Fill(frame, client, kDesk);
    RECT edge = Converted(m_view.ToWindow(m_view.Sheet()));
    InflateRect(&edge, 1, 1);
    Fill(frame, edge, kSheetEdge);
    m_page.Show(frame, *m_model, m_view);
    DrawOverlay(frame, *m_model, m_view);
    BitBlt(window, 0, 0, client.right, client.bottom, frame, 0, 0, SRCCOPY);
    EndPaint(Handle(), &paint);
}

void ChartCanvas::OnButtonDown(PixelPoint point) {
    SetFocus(Handle());
    m_pressed = point;
    if (m_model->Grab(m_view.ToPage(point))) {
        SetCapture(Handle());
    }
    Update();
}

void ChartCanvas::OnMouseMove(PixelPoint point) {
    if (GetCapture() == Handle() && (m_model->IsMoving() || IsDragged(m_pressed, point))) {
        m_model->DragTo(m_view.ToPage(point));
        Update();
    }
}

void ChartCanvas::OnButtonUp() {
    if (GetCapture() == Handle()) {
        m_model->Drop();
        ReleaseCapture(); // updates
    }
}

bool ChartCanvas::OnSetCursor(LPARAM lParam) const {
    POINT mouse;
    if (LOWORD(lParam) != HTCLIENT || GetCursorPos(&mouse) == FALSE) {
        return false;
    }
    ScreenToClient(Handle(), &mouse);
    const bool isOverPart = PartAt(m_model->Parts(), m_view.ToPage({mouse.x, mouse.y})).has_value();
    SetCursor(LoadCursorW(nullptr, isOverPart ? IDC_SIZEALL : IDC_ARROW));
    return true;
}

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

bool ChartCanvas::OnKey(WPARAM key) {
    switch (key) {
    case VK_TAB:
        m_model->SelectNext(IsDown(VK_SHIFT) ? -1 : 1);
        if (const MovablePart* const part = m_model->Selected()) {
            m_view.Reveal(part->Place);
        }
        break;
    case VK_RETURN:
        m_model->Drop();
        break;
    case VK_ESCAPE:
        if (m_model->IsMoving()) {
            m_model->Cancel();
        } else {
            m_model->Deselect();
        }
        ReleaseCapture();
        break;
    case VK_PRIOR:
        ScrollBy(0, -m_view.VisibleArea().Height());
        return true;
    case VK_NEXT:
        ScrollBy(0, m_view.VisibleArea().Height());
        return true;
    default:
        return OnArrow(key);
    }
    Update();
    return true;
}

/// Moves what is selected, or scrolls.
bool ChartCanvas::OnArrow(WPARAM key) {
    const auto [x, y] = DirectionOf(key);
    if (x == 0 && y == 0) {
        return false;
    }
    if (m_model->Selected() == nullptr) {
        const int line = static_cast<int>(std::lround(kScrollLine * m_view.Dpi() / 96.0));
        ScrollBy(x * line, y * line);
        return true;
    }
    const float step = IsDown(VK_SHIFT) ? kLargeStep : kStep;
    m_model->Nudge({static_cast<float>(x) * step, static_cast<float>(y) * step});
    m_view.Reveal(*m_model->Outline());
    Update();
    return true;
}

void ChartCanvas::SetZoom(double zoom, PixelPoint anchor) {
    m_view.SetZoom(zoom, anchor);
    Update();
}

void ChartCanvas::ScrollBy(int dx, int dy) {
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

PixelPoint ChartCanvas::Middle() const {
    const PixelRect seen = m_view.VisibleArea();
    return {seen.Width() / 2, seen.Height() / 2};
}

} // namespace host
