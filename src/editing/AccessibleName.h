#pragma once

#include "editing/DialogTemplate.h"

#include <cstddef>
#include <string>

namespace millichart {

/// What a screen reader calls a control that shows no text of its own: the label before it, past the edit
/// that a stepper steps. Of a colour pane without a label, the text of the button behind it, or of the check
/// box before it.
std::string AccessibleName(std::span<const Control> controls, std::size_t index);

} // namespace millichart
