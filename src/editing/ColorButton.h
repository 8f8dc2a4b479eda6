#pragma once

/// CColorButton, this platform's.
#ifdef _WIN32
#include "editing/win32/ColorButton.h"
#else
#include "editing/qt/ColorButton.h"
#endif
