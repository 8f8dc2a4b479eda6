// What the canvas does about the mouse and the keyboard.
#include "ChartCanvas.h"
#include "Resource.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <windowsx.h>

namespace host {
namespace {

using millichart::PartKind;
using millichart::PlacedPart;

/// Pixels that an arrow scrolls, at 96 dpi.
constexpr int kScrollLine = 20;

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

} // namespace

std::optional<LRESULT> ChartCanvas::OnMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
        OnButtonDown(PointOf(lParam));
        return 0;
    case WM_MOUSEMOVE:
        OnMouseMove(PointOf(lParam));
        return 0;
    case WM_MOUSELEAVE:
        Hover(std::nullopt);
        return 0;
    case WM_LBUTTONUP:
        OnButtonUp();
        return 0;
    case WM_LBUTTONDBLCLK:
        OnDoubleClick(PointOf(lParam));
        return 0;
    case WM_RBUTTONDOWN:
        SetFocus(Handle());
        m_model->Grab(m_view.ToPage(PointOf(lParam)), Reach());
        m_model->Cancel();
        Update();
        return 0;           // its menu: WM_CONTEXTMENU, which the parent gets
    case WM_CAPTURECHANGED: // another window took the mouse away
        m_model->Cancel();
        Update();
        return 0;
    case WM_SETCURSOR:
        return OnSetCursor(lParam) ? std::optional<LRESULT>(TRUE) : std::nullopt;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
        OnWheel(wParam, lParam, message == WM_MOUSEHWHEEL);
        return 0;
    default:
        return std::nullopt;
    }
}

void ChartCanvas::OnButtonDown(PixelPoint point) {
    SetFocus(Handle());
    FinishEdit(true);
    m_pressed = point;
    if (m_model->Grab(m_view.ToPage(point), Reach())) {
        SetCapture(Handle());
    }
    Update();
}

void ChartCanvas::OnMouseMove(PixelPoint point) {
    if (GetCapture() != Handle()) {
        TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, Handle(), 0};
        TrackMouseEvent(&leaving);
        Hover(PartAt(point));
    } else if (m_model->IsMoving() || IsDragged(m_pressed, point)) {
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

void ChartCanvas::OnDoubleClick(PixelPoint point) {
    OnButtonDown(point);
    m_model->Cancel();
    ReleaseCapture();
    const auto& part = m_model->Selected();
    Ask(part && part->Part.Kind == PartKind::LegendSample ? ID_CHART_COLOR : ID_CHART_PROPERTIES);
}

bool ChartCanvas::OnSetCursor(LPARAM lParam) const {
    POINT mouse;
    if (LOWORD(lParam) != HTCLIENT || GetCursorPos(&mouse) == FALSE) {
        return false;
    }
    ScreenToClient(Handle(), &mouse);
    if (m_edit != nullptr && ChildWindowFromPoint(Handle(), mouse) == m_edit->Handle()) {
        return false;
    }
    const auto part = PartAt({mouse.x, mouse.y});
    const bool isMovable = part && m_model->MobilityOf(part->Part) != designer::Mobility::None;
    SetCursor(LoadCursorW(nullptr, isMovable ? IDC_SIZEALL : IDC_ARROW));
    return true;
}

void ChartCanvas::Hover(std::optional<PlacedPart> part) {
    if (part != m_hovered) {
        m_hovered = std::move(part);
        InvalidateRect(Handle(), nullptr, FALSE);
        m_onChange();
    }
}

std::optional<PlacedPart> ChartCanvas::PartAt(PixelPoint point) const {
    return m_model->PartAt(m_view.ToPage(point), Reach());
}

/// A hand is not steadier on a page that is drawn small.
float ChartCanvas::Reach() const {
    constexpr double kPixels = 4.0;
    constexpr double kMost = 4.0;
    return static_cast<float>(
        (std::min)(kPixels * m_view.Dpi() / 96.0 / m_view.PixelsPerMillimetre(), kMost));
}

/// Not within the present message, as a dialog may open.
void ChartCanvas::Ask(int command) const {
    PostMessageW(GetParent(Handle()), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

bool ChartCanvas::OnKey(WPARAM key) {
    switch (key) {
    case VK_TAB:
        m_model->SelectNext(IsDown(VK_SHIFT) ? -1 : 1);
        if (const auto& part = m_model->Selected()) {
            m_view.Reveal(part->Box);
        }
        break;
    case VK_RETURN:
        Ask(ID_CHART_PROPERTIES);
        return true;
    case VK_SPACE:
        Ask(ID_CHART_COLOR);
        return true;
    case VK_ESCAPE:
        if (m_model->IsMoving()) {
            m_model->Cancel();
        } else {
            m_model->Select(std::nullopt);
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
    if (!m_model->Nudge(x, y, IsDown(VK_SHIFT))) {
        const int line = MulDiv(kScrollLine, static_cast<int>(m_view.Dpi()), 96);
        ScrollBy(x * line, y * line);
        return true;
    }
    if (const auto& part = m_model->Selected()) {
        m_view.Reveal(part->Box);
    }
    Update();
    return true;
}

} // namespace host
