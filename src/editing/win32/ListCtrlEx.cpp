#include "editing/win32/ListCtrlEx.h"

#include "editing/CellSamples.h"
#include "editing/win32/CellEditor.h"
#include "editing/win32/ListView.h"
#include "editing/win32/ScaledDrawing.h"
#include "editing/win32/TextClipboard.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <windowsx.h>

namespace millichart {
namespace {

using penlode::CStringUtil;

constexpr int kRowHeight = 18; ///< pixels at 96 dpi

constexpr UINT kOpenCell = WM_APP; ///< posted: a dialog must not open within a message that was sent

bool IsSample(const ListColumn& column) {
    return column.Kind == CellKind::Color || column.Kind == CellKind::Line;
}

/// The one that is held down, besides Shift.
int Modifier() {
    if (GetKeyState(VK_MENU) < 0) {
        return VK_MENU;
    }
    return GetKeyState(VK_CONTROL) < 0 ? VK_CONTROL : 0;
}

POINT PointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

} // namespace

/// What a key does, and for what changes rows its text in the menu.
struct CListCtrlEx::Command {
    const wchar_t* Text;
    WPARAM Key;
    int Modifier;
    void (CListCtrlEx::*Act)();
};

const CListCtrlEx::Command CListCtrlEx::kCommands[]{
    {L"添加(&A)\tInsert", VK_INSERT, 0, &CListCtrlEx::Add},
    {L"删除(&D)\tDelete", VK_DELETE, 0, &CListCtrlEx::Remove},
    {L"上移(&U)\tAlt+↑", VK_UP, VK_MENU, &CListCtrlEx::MoveUp},
    {L"下移(&N)\tAlt+↓", VK_DOWN, VK_MENU, &CListCtrlEx::MoveDown},
    {L"复制(&C)\tCtrl+C", 'C', VK_CONTROL, &CListCtrlEx::Copy},
    {L"粘贴(&P)\tCtrl+V", 'V', VK_CONTROL, &CListCtrlEx::Paste},
    {nullptr, VK_LEFT, 0, &CListCtrlEx::Left},
    {nullptr, VK_RIGHT, 0, &CListCtrlEx::Right},
    {nullptr, VK_F2, 0, &CListCtrlEx::OpenSoon},
};

/// Rows are as high as the images that they could show.
CListCtrlEx::CListCtrlEx(HWND listView)
    : ReflectedControl(listView), m_own(listView, [this](UINT message, WPARAM wParam, LPARAM lParam) {
          return OnMessage(message, wParam, lParam);
      }) {
    constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER;
    SendTo(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
    const HIMAGELIST images = ImageList_Create(1, Scaled(listView, kRowHeight), ILC_COLOR, 0, 0);
    SendTo(Handle(), LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images));
}

CListCtrlEx::~CListCtrlEx() = default;

void CListCtrlEx::SetColumns(std::span<const ListColumn> columns) {
    while (SendTo(Handle(), LVM_DELETECOLUMN, 0, 0) != FALSE) {
    }
    m_rows.SetColumns(columns);
    SetRows(m_rows.Rows()); // with as many cells
    m_column = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        std::wstring title = CStringUtil::Utf8ToWideString(columns[i].Title);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = title.data();
        column.cx = PixelsOf(columns[i]);
        SendTo(Handle(), LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
    ShowRows();
}

void CListCtrlEx::SetRows(std::vector<ListRow> rows) {
    if (m_editor != nullptr) {
        m_editor->Finish(false);
    }
    m_rows.SetRows(std::move(rows));
    ShowRows();
}

void CListCtrlEx::FinishEdit() {
    if (m_editor != nullptr) {
        m_editor->Finish(true);
    }
}

std::optional<LRESULT> CListCtrlEx::OnReflected(UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_NOTIFY) {
        return std::nullopt;
    }
    switch (reinterpret_cast<const NMHDR*>(lParam)->code) {
    case LVN_GETDISPINFOW:
        Tell(reinterpret_cast<NMLVDISPINFOW*>(lParam)->item);
        return 0;
    case NM_CUSTOMDRAW:
        return OnDraw(*reinterpret_cast<NMLVCUSTOMDRAW*>(lParam));
    case NM_DBLCLK:
        if (reinterpret_cast<const NMITEMACTIVATE*>(lParam)->iItem >= 0) {
            OpenSoon();
        }
        return 0;
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> CListCtrlEx::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return OnKey(wParam) ? std::optional<LRESULT>(0) : std::nullopt;
    case WM_SETFOCUS:
        if (CurrentRow(Handle()) < 0) {
            SetRowState(Handle(), 0, LVIS_FOCUSED);
        }
        return std::nullopt;
    case WM_CHAR: // else the list would look for a row that begins with it
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
        OnButtonDown(PointOf(lParam));
        return std::nullopt;
    case WM_MOUSEWHEEL: // which moves the cell away below its edit
    case WM_VSCROLL:
    case WM_HSCROLL:
        FinishEdit();
        return std::nullopt;
    case WM_NOTIFY: // of the header
        if (reinterpret_cast<const NMHDR*>(lParam)->code == HDN_BEGINTRACKW) {
            FinishEdit();
        }
        return std::nullopt;
    case WM_CONTEXTMENU:
        ShowMenu(PointOf(lParam));
        return 0;
    case kOpenCell:
        Open();
        return 0;
    default:
        return std::nullopt;
    }
}

/// Samples have texts too, for screen readers.
void CListCtrlEx::Tell(LVITEMW& item) const {
    const auto row = static_cast<std::size_t>(item.iItem);
    const auto column = static_cast<std::size_t>(item.iSubItem);
    if ((item.mask & LVIF_TEXT) != 0 && row < m_rows.Count() && column < m_rows.Columns().size()) {
        const std::wstring text = CStringUtil::Utf8ToWideString(m_rows.Cell(row, column));
        lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
    }
}

LRESULT CListCtrlEx::OnDraw(NMLVCUSTOMDRAW& draw) const {
    switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_FOCUS); // a cell has it, not the row
        return CDRF_NOTIFYSUBITEMDRAW;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        if (!IsSample(m_rows.Columns()[static_cast<std::size_t>(draw.iSubItem)])) {
            return IsCurrent(draw) ? CDRF_NOTIFYPOSTPAINT : CDRF_DODEFAULT;
        }
        DrawSample(draw);
        break;
    case CDDS_ITEMPOSTPAINT | CDDS_SUBITEM:
        break;
    default:
        return CDRF_DODEFAULT;
    }
    if (IsCurrent(draw)) {
        RECT box = CellBox(Handle(), CurrentRow(Handle()), m_column);
        InflateRect(&box, -1, -1);
        DrawFocusRect(draw.nmcd.hdc, &box);
    }
    return CDRF_SKIPDEFAULT;
}

/// On the same ground in a selected row, whose colour could be the sample's own.
void CListCtrlEx::DrawSample(const NMLVCUSTOMDRAW& draw) const {
    const auto row = static_cast<std::size_t>(draw.nmcd.dwItemSpec);
    const auto column = static_cast<std::size_t>(draw.iSubItem);
    const RECT box = CellBox(Handle(), static_cast<int>(row), column);
    FillRect(draw.nmcd.hdc, &box, GetSysColorBrush(COLOR_WINDOW));
    DrawScaled(
        Handle(), draw.nmcd.hdc, box, [&](penlode::IGraphicsEngine& engine, const penlode::RectF& place) {
            DrawCellSample(engine, place, m_rows.Columns()[column].Kind, m_rows.Cell(row, column), 96.0F);
        });
}

bool CListCtrlEx::IsCurrent(const NMLVCUSTOMDRAW& draw) const {
    return GetFocus() == Handle() && static_cast<std::size_t>(draw.iSubItem) == m_column &&
           static_cast<int>(draw.nmcd.dwItemSpec) == CurrentRow(Handle());
}

bool CListCtrlEx::OnKey(WPARAM key) {
    for (const Command& command : kCommands) {
        if (command.Key == key && command.Modifier == Modifier()) {
            (this->*command.Act)();
            return true;
        }
    }
    return false;
}

/// At the pointer, or at the current cell if a key asks for it (−1, −1).
void CListCtrlEx::ShowMenu(POINT place) {
    FinishEdit();
    if (place.x == -1 && place.y == -1) {
        const RECT box = CellBox(Handle(), std::max(CurrentRow(Handle()), 0), m_column);
        place = {box.left, box.bottom};
        ClientToScreen(Handle(), &place);
    }
    const HMENU menu = CreatePopupMenu();
    UINT_PTR number = 0;
    for (const Command& command : kCommands) {
        if (++number; command.Text != nullptr) {
            AppendMenuW(menu, MF_STRING, number, command.Text);
        }
    }
    const int picked =
        TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y, 0, Handle(), nullptr);
    DestroyMenu(menu);
    if (picked > 0) {
        (this->*kCommands[picked - 1].Act)();
    }
}

/// The list takes the row itself.
void CListCtrlEx::OnButtonDown(POINT place) {
    LVHITTESTINFO hit{};
    hit.pt = place;
    if (SendTo(Handle(), LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)) >= 0) {
        GoToColumn(static_cast<std::size_t>(hit.iSubItem));
    }
}

/// Below the rows that are selected, or at the end.
void CListCtrlEx::Add() {
    const std::vector<std::size_t> selected = SelectedRows(Handle());
    const std::size_t at = selected.empty() ? m_rows.Count() : selected.back() + 1;
    m_rows.Add(at);
    GoTo(at, 0);
}

void CListCtrlEx::Remove() {
    const std::vector<std::size_t> selected = SelectedRows(Handle());
    if (!selected.empty()) {
        std::for_each(selected.rbegin(), selected.rend(), [this](std::size_t row) { m_rows.Remove(row, 1); });
        GoTo(selected.front(), 0);
    }
}

void CListCtrlEx::MoveUp() {
    Move(-1);
}

void CListCtrlEx::MoveDown() {
    Move(1);
}

void CListCtrlEx::Move(int step) {
    if (const int row = CurrentRow(Handle()); row >= 0) {
        GoTo(m_rows.Move(static_cast<std::size_t>(row), step), m_column);
    }
}

void CListCtrlEx::Copy() {
    std::string text;
    for (const std::size_t row : SelectedRows(Handle())) {
        text += m_rows.Copied(row, 1);
    }
    SetClipboardText(Handle(), text);
}

/// From the current cell on.
void CListCtrlEx::Paste() {
    const int current = CurrentRow(Handle());
    const std::size_t row = current < 0 ? m_rows.Count() : static_cast<std::size_t>(current);
    m_rows.Paste(row, m_column, ClipboardText(Handle()));
    GoTo(row, m_column);
}

void CListCtrlEx::Left() {
    GoToColumn(m_column == 0 ? 0 : m_column - 1);
}

void CListCtrlEx::Right() {
    GoToColumn(m_column + 1);
}

void CListCtrlEx::OpenSoon() {
    PostMessageW(Handle(), kOpenCell, 0, 0);
}

void CListCtrlEx::Open() {
    FinishEdit();
    const int current = CurrentRow(Handle());
    if (current < 0) {
        return;
    }
    const auto row = static_cast<std::size_t>(current);
    const ListColumn& column = m_rows.Columns()[m_column];
    std::string cell = m_rows.Cell(row, m_column);
    if (column.EditInDialog != nullptr) {
        if (EditInDialog && EditInDialog(column.EditInDialog, cell)) {
            SetCell(row, m_column, cell);
        }
        return;
    }
    SendTo(Handle(), LVM_ENSUREVISIBLE, row, FALSE);
    ScrollTo(Handle(), CellBox(Handle(), current, m_column));
    m_editor = std::make_unique<CellEditor>(
        Handle(), CellBox(Handle(), current, m_column), column, cell,
        [this, row, at = m_column](const std::string& text) { SetCell(row, at, text); });
}

void CListCtrlEx::SetCell(std::size_t row, std::size_t column, const std::string& text) {
    if (text != m_rows.Cell(row, column) && m_rows.SetCell(row, column, text)) {
        SendTo(Handle(), LVM_REDRAWITEMS, row, static_cast<LPARAM>(row));
        TellChanged();
    }
}

void CListCtrlEx::ShowRows() {
    SendTo(Handle(), LVM_SETITEMCOUNT, m_rows.Count(), 0);
    if (const auto columns = m_rows.Columns(); !columns.empty()) {
        StretchLastColumn(Handle(), columns.size(), PixelsOf(columns.back()));
    }
    InvalidateRect(Handle(), nullptr, FALSE);
}

void CListCtrlEx::SelectRow(int row) {
    ClearRowStates(Handle());
    if (row >= 0 && static_cast<std::size_t>(row) < m_rows.Count()) {
        SetRowState(Handle(), static_cast<std::size_t>(row), LVIS_SELECTED | LVIS_FOCUSED);
        SendTo(Handle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
        GoToColumn(0);
    }
}

int CListCtrlEx::Row() const {
    return CurrentRow(Handle());
}

/// Selects a row, or the last, alone, after a change of rows.
void CListCtrlEx::GoTo(std::size_t row, std::size_t column) {
    ClearRowStates(Handle());
    ShowRows();
    if (m_rows.Count() > 0) {
        const std::size_t shown = std::min(row, m_rows.Count() - 1);
        SetRowState(Handle(), shown, LVIS_SELECTED | LVIS_FOCUSED);
        SendTo(Handle(), LVM_ENSUREVISIBLE, shown, FALSE);
        GoToColumn(column);
    }
    TellChanged();
}

/// Or to the last.
void CListCtrlEx::GoToColumn(std::size_t column) {
    m_column = std::min(column, m_rows.Columns().size() - 1);
    if (const int row = CurrentRow(Handle()); row >= 0) {
        ScrollTo(Handle(), CellBox(Handle(), row, m_column));
        SendTo(Handle(), LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
    }
}

void CListCtrlEx::TellChanged() {
    if (OnChanged) {
        OnChanged();
    }
}

int CListCtrlEx::PixelsOf(const ListColumn& column) const {
    RECT box{0, 0, column.Width, 0};
    MapDialogRect(GetParent(Handle()), &box);
    return box.right;
}

} // namespace millichart
