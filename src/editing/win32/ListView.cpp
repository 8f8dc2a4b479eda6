#include "editing/win32/ListView.h"

#include <algorithm>

namespace millichart {

int CurrentRow(HWND list) {
    return SendTo(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
}

std::vector<std::size_t> SelectedRows(HWND list) {
    std::vector<std::size_t> rows;
    for (int row = -1; (row = SendTo(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0;) {
        rows.push_back(static_cast<std::size_t>(row));
    }
    return rows;
}

void SetRowState(HWND list, std::size_t row, UINT state) {
    LVITEMW item{};
    item.state = state;
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendTo(list, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
}

void ClearRowStates(HWND list) {
    SetRowState(list, static_cast<std::size_t>(-1), 0);
}

RECT CellBox(HWND list, int row, std::size_t column) {
    RECT box{};
    box.left = LVIR_LABEL; // as the first cell's bounds are the row's
    box.top = static_cast<LONG>(column);
    SendTo(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&box));
    return box;
}

void ScrollTo(HWND list, const RECT& cell) {
    RECT client;
    GetClientRect(list, &client);
    const LONG hidden = std::min(cell.left, std::max<LONG>(cell.right - client.right, 0));
    if (hidden != 0) {
        SendTo(list, LVM_SCROLL, static_cast<WPARAM>(hidden), 0);
    }
}

void StretchLastColumn(HWND list, std::size_t columns, LONG needed) {
    RECT client;
    GetClientRect(list, &client);
    LONG room = client.right;
    for (std::size_t i = 0; i + 1 < columns; ++i) {
        room -= SendTo(list, LVM_GETCOLUMNWIDTH, i, 0);
    }
    SendTo(list, LVM_SETCOLUMNWIDTH, columns - 1, std::max(room, needed));
}

} // namespace millichart
