#pragma once

#include "editing/win32/Windows.h"

#include <cstddef>
#include <vector>

/// What the system's list view is asked and told, in report view.
namespace millichart {

inline int SendTo(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    return static_cast<int>(SendMessageW(list, message, wParam, lParam));
}

/// The row that has the focus; −1 if none has.
int CurrentRow(HWND list);

/// In their order.
std::vector<std::size_t> SelectedRows(HWND list);

/// Of a row: LVIS_FOCUSED, LVIS_SELECTED, both or none.
void SetRowState(HWND list, std::size_t row, UINT state);
void ClearRowStates(HWND list);

RECT CellBox(HWND list, int row, std::size_t column);

/// Sideways, so that a cell shows, at least from its beginning.
void ScrollTo(HWND list, const RECT& cell);

/// Makes the last of so many columns reach to the end of the list, if there is room for more than it needs.
void StretchLastColumn(HWND list, std::size_t columns, LONG needed);

} // namespace millichart
