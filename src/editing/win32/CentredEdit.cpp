#include "editing/win32/CentredEdit.h"

namespace millichart {
namespace {

/// The edit's own colours, as its parent has them too.
HBRUSH BackgroundOf(HWND edit, HDC context) {
    const bool isWritable =
        IsWindowEnabled(edit) != FALSE && (GetWindowLongW(edit, GWL_STYLE) & ES_READONLY) == 0;
    return reinterpret_cast<HBRUSH>(
        SendMessageW(GetParent(edit), isWritable ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC,
                     reinterpret_cast<WPARAM>(context), reinterpret_cast<LPARAM>(edit)));
}

void FillPadding(HWND edit, int padding) {
    RECT window;
    RECT client;
    GetWindowRect(edit, &window);
    GetClientRect(edit, &client);
    MapWindowPoints(edit, nullptr, reinterpret_cast<POINT*>(&client), 2);
    OffsetRect(&client, -window.left, -window.top);
    const HDC context = GetWindowDC(edit);
    const HBRUSH background = BackgroundOf(edit, context);
    const RECT above{client.left, client.top - padding, client.right, client.top};
    const RECT below{client.left, client.bottom, client.right, client.bottom + padding};
    FillRect(context, &above, background);
    FillRect(context, &below, background);
    ReleaseDC(edit, context);
}

LRESULT CALLBACK EditProcedure(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                               DWORD_PTR data) {
    const int padding = static_cast<int>(data); // between the border and the line
    const LRESULT result = DefSubclassProc(edit, message, wParam, lParam);
    switch (message) {
    case WM_NCCALCSIZE: {
        RECT& client = *reinterpret_cast<RECT*>(lParam);
        client.top += padding;
        client.bottom -= padding;
        return result;
    }
    case WM_NCPAINT:
    case WM_ENABLE:
        FillPadding(edit, padding);
        return result;
    case WM_NCHITTEST: // a click beside the line is one on it
        return result == HTNOWHERE || result == HTBORDER ? HTCLIENT : result;
    case WM_NCDESTROY:
        RemoveWindowSubclass(edit, EditProcedure, id);
        return result;
    default:
        return result;
    }
}

int LineHeight(HWND edit) {
    TEXTMETRICW metrics{};
    const HDC context = GetDC(edit);
    const HGDIOBJ before =
        SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(edit, WM_GETFONT, 0, 0)));
    GetTextMetricsW(context, &metrics);
    SelectObject(context, before);
    ReleaseDC(edit, context);
    return metrics.tmHeight;
}

} // namespace

void CentreText(HWND edit) {
    RECT client;
    RECT line;
    GetClientRect(edit, &client);
    SendMessageW(edit, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&line));
    const int padding = (client.bottom - LineHeight(edit)) / 2 - line.top;
    if (padding > 0) {
        SetWindowSubclass(edit, EditProcedure, 0, static_cast<DWORD_PTR>(padding));
        SetWindowPos(edit, nullptr, 0, 0, 0, 0,
                     SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

} // namespace millichart
