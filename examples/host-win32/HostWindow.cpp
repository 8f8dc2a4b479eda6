#include "HostWindow.h"

#include "Resource.h"
#include "Texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <commctrl.h>
#include <windowsx.h>

namespace host {
namespace {

constexpr wchar_t kTitle[] = L"图表宿主示例";

constexpr UINT kKeepAfter = 4000; ///< ms; a crash loses what is younger
constexpr UINT_PTR kKeepTimer = 1;

/// Posted to itself: a question must not come up while windows change places.
constexpr UINT kCheckFile = WM_APP;

} // namespace

HostWindow::HostWindow() : m_recovery(designer::RecoveryFolder()) {
    WNDCLASSEXW windowClass{};
    windowClass.lpszClassName = L"MillichartHost";
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    windowClass.lpszMenuName = MAKEINTRESOURCEW(IDR_MAIN);
    CREATESTRUCTW what{};
    what.dwExStyle = WS_EX_ACCEPTFILES;
    what.style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    what.lpszName = kTitle;
    what.x = what.y = what.cx = what.cy = CW_USEDEFAULT;
    Create(windowClass, what);
    m_status = CreateWindowExW(0, STATUSCLASSNAMEW, nullptr, WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0,
                               0, Handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
    m_canvas = std::make_unique<ChartCanvas>(Handle(), [this] { ShowState(); });
    New(0);
    OnSize();
    SetFocus(m_canvas->Handle());
    SetTimer(Handle(), kKeepTimer, kKeepAfter, nullptr);
}

LRESULT HostWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_model == nullptr) {
        return Default(message, wParam, lParam); // not all there yet
    }
    switch (message) {
    case WM_COMMAND:
        OnCommand(LOWORD(wParam));
        return 0;
    case WM_INITMENUPOPUP:
        PutDown();
        PrepareMenu(GetMenu(Handle()));
        return 0;
    case WM_CONTEXTMENU:
        OnContextMenu(lParam);
        return 0;
    case WM_SIZE:
        OnSize();
        return 0;
    case WM_SETFOCUS:
        SetFocus(m_canvas->Handle());
        return 0;
    case WM_DPICHANGED:
        OnDpiChanged(wParam, lParam);
        return 0;
    case WM_DROPFILES:
        OnDropFiles(reinterpret_cast<HDROP>(wParam));
        return 0;
    case WM_TIMER:
        m_recovery.Keep(m_model->Editor()); // what fails now may not the next time
        return 0;
    case WM_ACTIVATEAPP:
        if (wParam != FALSE) {
            PostMessageW(Handle(), kCheckFile, 0, 0);
        }
        return 0;
    case kCheckFile:
        CheckFile();
        return 0;
    case WM_CLOSE:
        if (MayClose()) {
            m_recovery.Drop();
            DestroyWindow(Handle());
        }
        return 0;
    case WM_QUERYENDSESSION:
        return MayClose() ? TRUE : FALSE;
    case WM_ENDSESSION:
        if (wParam != FALSE) {
            m_recovery.Drop();
        }
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return Default(message, wParam, lParam);
    }
}

void HostWindow::OnCommand(int command) {
    m_canvas->FinishEdit(true);
    if (OnFileCommand(command) || OnChartCommand(command)) {
        return;
    }
    switch (command) {
    case ID_EDIT_UNDO:
        m_model->Undo();
        return EndMove();
    case ID_EDIT_REDO:
        m_model->Redo();
        return EndMove();
    case ID_EDIT_COPY:
        return Copy();
    case ID_VIEW_ZOOM_IN:
        return m_canvas->ZoomBy(1);
    case ID_VIEW_ZOOM_OUT:
        return m_canvas->ZoomBy(-1);
    case ID_VIEW_TRUE_SIZE:
        return m_canvas->ShowTrueSize();
    default:
        return;
    }
}

/// The menu of the chart, at the mouse or, by the key, at the selected part.
void HostWindow::OnContextMenu(LPARAM lParam) {
    constexpr int kChartMenu = 2;
    const bool isByKey = lParam == -1;
    const POINT place = isByKey ? m_canvas->MenuPlace() : POINT{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    TrackPopupMenu(GetSubMenu(GetMenu(Handle()), kChartMenu), TPM_RIGHTBUTTON, place.x, place.y, 0, Handle(),
                   nullptr);
}

void HostWindow::OnSize() {
    SendMessageW(m_status, WM_SIZE, 0, 0);
    RECT client;
    RECT status;
    GetClientRect(Handle(), &client);
    GetWindowRect(m_status, &status);
    const int zoomWidth = MulDiv(90, static_cast<int>(GetDpiForWindow(Handle())), 96);
    const std::array parts{(std::max)(0, static_cast<int>(client.right) - zoomWidth), -1};
    SendMessageW(m_status, SB_SETPARTS, parts.size(), reinterpret_cast<LPARAM>(parts.data()));
    MoveWindow(m_canvas->Handle(), 0, 0, client.right, client.bottom - (status.bottom - status.top), TRUE);
    ShowState();
}

/// The window came to a screen of other pixels: it keeps its size to the eye, and so does the chart.
void HostWindow::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
    const RECT& place = *reinterpret_cast<const RECT*>(lParam);
    SetWindowPos(Handle(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    m_canvas->SetDpi(LOWORD(wParam));
}

void HostWindow::PutDown() {
    m_canvas->FinishEdit(true);
    m_model->Drop();
    EndMove();
}

void HostWindow::EndMove() {
    ReleaseCapture(); // the mouse may be dragging still
    m_canvas->Update();
}

std::wstring HostWindow::DocumentName() const {
    const std::wstring name = FileNameOf(Wide(m_model->Editor().File()));
    return name.empty() ? L"未命名" : name.substr(0, name.find(L".chart.json"));
}

void HostWindow::ShowState() const {
    const bool isSaved = m_model->Editor().IsSaved();
    SetWindowTextW(Handle(), ((isSaved ? L"" : L"*") + DocumentName() + L" - " + kTitle).c_str());
    SendMessageW(m_status, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(StatusText().c_str()));
    const std::wstring zoom = std::to_wstring(std::lround(m_canvas->Zoom() * 100.0)) + L" %";
    SendMessageW(m_status, SB_SETTEXTW, 1, reinterpret_cast<LPARAM>(zoom.c_str()));
}

std::wstring HostWindow::StatusText() const {
    const auto& selected = m_model->Selected();
    if (selected && m_model->IsMoving()) {
        const bool isDocked = m_model->MobilityOf(selected->Part) == designer::Mobility::Docked;
        return Wide(m_model->MovingName()) + L"　" +
               (isDocked ? L"松开鼠标，就停靠在框里" : MovementText(m_model->Movement()));
    }
    const auto& named = m_canvas->Hovered() ? m_canvas->Hovered() : selected;
    return named ? Wide(m_model->DescriptionOf(named->Part))
                 : L"单击选择图表的一部分，拖动标签和图例，双击修改属性";
}

int HostWindow::Tell(const std::wstring& text, UINT style) const {
    return MessageBoxW(Handle(), text.c_str(), kTitle, style);
}

} // namespace host
