#pragma once

#include "editing/win32/Windows.h"

#include <string>

namespace millichart {

/// What the clipboard holds as text (UTF-8); empty if that is none.
std::string ClipboardText(HWND window);

/// Lines end as the system's do.
void SetClipboardText(HWND window, const std::string& text);

} // namespace millichart
