#pragma once

#include "editing/win32/Windows.h"

namespace millichart {

/// Makes an edit of one line show it in the middle of its height, in line with the label beside it, whatever
/// the scaling. The system shows it at the top.
void CentreText(HWND edit);

} // namespace millichart
