#pragma once

/// CColorPane, this platform's.
#ifdef _WIN32
#include "editing/win32/ColorPane.h"
#else
#include "editing/qt/ColorPane.h"
#endif
