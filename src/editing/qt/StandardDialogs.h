#pragma once

#include "editing/DialogView.h"

#include <cstdint>
#include <optional>
#include <string_view>

class QWidget;

/// Qt's own dialogs on a window of ours.
namespace millichart {

/// A plain message with the window's title.
Answer ShowMessage(QWidget* window, std::string_view text, MessageButtons buttons);
std::optional<std::uint32_t> PickColor(QWidget* window, std::uint32_t colorRef);
/// What the user left as it was shown comes back as it was, whether this machine has it or not.
std::optional<FontChoice> PickFont(QWidget* window, const FontChoice& shown, int pixelsPerInch);

} // namespace millichart
