#pragma once

/// CLineStyleComboBox, this platform's.
#ifdef _WIN32
#include "editing/win32/LineStyleComboBox.h"
#else
#include "editing/qt/LineStyleComboBox.h"
#endif
