#pragma once

#include "editing/DialogView.h"
#include "editing/win32/Windows.h"

namespace millichart {

/// A plain message box with its owner's title.
Answer ShowMessage(HWND owner, std::string_view text, MessageButtons buttons);

/// The system's dialogs; nothing if one is cancelled.
std::optional<std::uint32_t> PickColor(HWND owner, std::uint32_t colorRef);
std::optional<FontChoice> PickFont(HWND owner, const FontChoice& shown);

} // namespace millichart
