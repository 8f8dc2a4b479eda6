#include "HostWindow.h"

#include "Clipboard.h"
#include "FileDialogs.h"
#include "Printing.h"
#include "Resource.h"
#include "Texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <commctrl.h>
#include <shellapi.h>
#include <utility>

namespace host {
namespace {

constexpr wchar_t kTitle[] = L"图表宿主示例";

constexpr wchar_t kKeys[] = L"鼠标\n"
                            L"　拖动标签或图例：移动；按 Esc 放弃\n"
                            L"　Ctrl+滚轮：缩放；滚轮、Shift+滚轮：滚动\n"
                            L"　把图表文档拖进窗口：打开\n\n"
                            L"键盘\n"
                            L"　Tab、Shift+Tab：选择标签或图例\n"
                            L"　方向键：移动 0.5 毫米；加 Shift：5 毫米\n"
                            L"　Enter：放下；Esc：放弃移动，取消选择\n"
                            L"　Ctrl+Z、Ctrl+Y：撤消、重做\n"
                            L"　Ctrl++、Ctrl+-：放大、缩小\n"
                            L"　Ctrl+0：实际大小";

/// What cannot be shown has its reasons here, one a line; no more than a person reads.
std::wstring Errors(const std::vector<penlode::Diagnostic>& diagnostics) {
    constexpr int kMaxShown = 5;
    std::wstring errors;
    int count = 0;
    for (const penlode::Diagnostic& diagnostic : diagnostics) {
        if (diagnostic.Severity == penlode::Severity::Error && ++count <= kMaxShown) {
            errors +=
                L"\n" + Wide(diagnostic.Place.empty() ? "" : diagnostic.Place + ": ") + Wide(diagnostic.Text);
        }
    }
    return count > kMaxShown ? errors + L"\n……共 " + std::to_wstring(count) + L" 处" : errors;
}

} // namespace

HostWindow::HostWindow() {
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
    Show(millichart::ChartDocument::FromText(std::string(millichart::FindChartKind("pie")->Template)), L"");
    OnSize();
    SetFocus(m_canvas->Handle());
}

LRESULT HostWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        OnCommand(LOWORD(wParam));
        return 0;
    case WM_INITMENUPOPUP:
        EnableCommands();
        return 0;
    case WM_SIZE:
        OnSize();
        return 0;
    case WM_SETFOCUS:
        if (m_canvas) {
            SetFocus(m_canvas->Handle());
        }
        return 0;
    case WM_DPICHANGED:
        OnDpiChanged(wParam, lParam);
        return 0;
    case WM_DROPFILES:
        OnDropFiles(reinterpret_cast<HDROP>(wParam));
        return 0;
    case WM_CLOSE:
        if (MayClose()) {
            DestroyWindow(Handle());
        }
        return 0;
    case WM_QUERYENDSESSION:
        return MayClose() ? TRUE : FALSE;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return Default(message, wParam, lParam);
    }
}

void HostWindow::OnCommand(int command) {
    switch (command) {
    case ID_FILE_OPEN:
        return AskAndOpen();
    case ID_FILE_SAVE:
        Save();
        return;
    case ID_FILE_SAVE_AS:
        SaveAs();
        return;
    case ID_FILE_PRINT:
        return Print();
    case ID_FILE_PRINT_TO_FILE:
        return PrintToFile();
    case ID_FILE_EXIT:
        SendMessageW(Handle(), WM_CLOSE, 0, 0);
        return;
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
    case ID_HELP_KEYS:
        Tell(kKeys, MB_OK);
        return;
    default:
        return;
    }
}

void HostWindow::OnSize() {
    if (m_model == nullptr) {
        return; // not all there yet
    }
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

void HostWindow::OnDropFiles(HDROP drop) {
    std::wstring file(DragQueryFileW(drop, 0, nullptr, 0), L'\0');
    DragQueryFileW(drop, 0, file.data(), static_cast<UINT>(file.size()) + 1);
    DragFinish(drop);
    if (!file.empty() && MayClose()) {
        Open(file);
    }
}

void HostWindow::Open(const std::wstring& file) {
    auto document = millichart::ChartDocument::Load(Utf8(file));
    // What is wrong with a document makes a layout that means nothing.
    const std::wstring errors =
        Errors(document.IsSound() ? document.LayOut().Diagnostics : document.Diagnostics());
    if (!errors.empty()) {
        Tell(L"不能打开“" + FileNameOf(file) + L"”：\n" + errors, MB_ICONERROR);
        return;
    }
    Show(std::move(document), file);
}

void HostWindow::Show(millichart::ChartDocument document, const std::wstring& file) {
    m_file = file;
    auto model = std::make_unique<ChartModel>(std::move(document));
    std::swap(m_model, model); // the canvas shows the one before until it is told
    m_canvas->Show(*m_model);
}

void HostWindow::AskAndOpen() {
    if (!MayClose()) {
        return;
    }
    if (const auto file = AskOpenName(Handle())) {
        Open(*file);
    }
}

void HostWindow::PutDown() {
    m_model->Drop();
    EndMove();
}

void HostWindow::EndMove() {
    ReleaseCapture(); // the mouse may be dragging still
    m_canvas->Update();
}

bool HostWindow::Save() {
    PutDown();
    return m_file.empty() ? SaveAs() : SaveTo(m_file);
}

bool HostWindow::SaveAs() {
    PutDown();
    const auto file = AskSaveName(Handle(), m_file.empty() ? DocumentName() + L".chart.json" : m_file);
    return file && SaveTo(*file);
}

bool HostWindow::SaveTo(const std::wstring& file) {
    const std::string fault = m_model->Save(Utf8(file));
    if (!fault.empty()) {
        Tell(L"不能保存“" + FileNameOf(file) + L"”：\n\n" + Wide(fault), MB_ICONERROR);
        return false;
    }
    m_file = file;
    ShowState();
    return true;
}

bool HostWindow::MayClose() {
    PutDown();
    if (m_model->IsSaved()) {
        return true;
    }
    const int answer = Tell(L"“" + DocumentName() + L"”已更改。要保存吗？", MB_YESNOCANCEL | MB_ICONQUESTION);
    return answer == IDNO || (answer == IDYES && Save());
}

void HostWindow::Print() {
    PutDown();
    if (PrintChart(Handle(), m_model->Chart(), DocumentName()) == Printed::Failed) {
        Tell(L"打印没有成功。请检查打印机。", MB_ICONERROR);
    }
}

void HostWindow::PrintToFile() {
    PutDown();
    const auto file = AskPageName(Handle(), DocumentName() + L".emf");
    if (file && !PrintChartToFile(m_model->Chart(), *file)) {
        Tell(L"不能写入“" + FileNameOf(*file) + L"”。", MB_ICONERROR);
    }
}

void HostWindow::Copy() {
    PutDown();
    if (!CopyChart(Handle(), m_model->Chart())) {
        Tell(L"剪贴板正被其他程序使用，请稍后再试。", MB_ICONWARNING);
    }
}

std::wstring HostWindow::DocumentName() const {
    const std::wstring name = FileNameOf(m_file);
    return name.empty() ? L"未命名" : name.substr(0, name.find(L".chart.json"));
}

void HostWindow::EnableCommands() const {
    const HMENU menu = GetMenu(Handle());
    EnableMenuItem(menu, ID_EDIT_UNDO, m_model->CanUndo() ? MF_ENABLED : MF_GRAYED);
    EnableMenuItem(menu, ID_EDIT_REDO, m_model->CanRedo() ? MF_ENABLED : MF_GRAYED);
}

void HostWindow::ShowState() const {
    SetWindowTextW(Handle(), ((m_model->IsSaved() ? L"" : L"*") + DocumentName() + L" - " + kTitle).c_str());
    SendMessageW(m_status, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(SelectionText().c_str()));
    const std::wstring zoom = std::to_wstring(std::lround(m_canvas->Zoom() * 100.0)) + L" %";
    SendMessageW(m_status, SB_SETTEXTW, 1, reinterpret_cast<LPARAM>(zoom.c_str()));
}

std::wstring HostWindow::SelectionText() const {
    const MovablePart* const part = m_model->Selected();
    if (part == nullptr) {
        return m_model->Parts().empty() ? L"这种图表没有可以移动的标签或图例"
                                        : L"拖动标签或图例，或按 Tab 选择";
    }
    const penlode::PointF moved = part->Moved + m_model->Movement();
    const auto number = part - m_model->Parts().data() + 1;
    const std::wstring name =
        part->What == MovablePart::Kind::Label ? L"标签 " + std::to_wstring(number) : L"图例";
    return name + L"　" + MovementText(moved);
}

int HostWindow::Tell(const std::wstring& text, UINT style) const {
    return MessageBoxW(Handle(), text.c_str(), kTitle, style);
}

} // namespace host
