#pragma once

#include "editing/DialogTemplate.h"
#include "editing/win32/Windows.h"

#include <string>
#include <vector>

namespace millichart {

/// A control as the system makes it.
struct WindowItem {
    int Id;
    const wchar_t* Class;
    DWORD Style;
    DWORD ExStyle;
    std::wstring Text;
    int X;
    int Y;
    int Width;
    int Height;
};

/// Visible, and with the styles of its kind.
WindowItem ItemOf(const Control& control);
std::vector<WindowItem> ItemsOf(std::span<const Control> controls);

/// A dialog's template in the system's extended form (DLGTEMPLATEEX), in the font of its dialogs.
std::vector<WORD> TemplateBytes(DWORD style, DWORD exStyle, std::string_view title, SIZE size,
                                std::span<const WindowItem> items);

} // namespace millichart
