#pragma once

/// CListCtrlEx, this platform's.
#ifdef _WIN32
#include "editing/win32/ListCtrlEx.h"
#else
#include "editing/qt/ListCtrlEx.h"
#endif
