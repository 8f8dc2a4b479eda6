#pragma once

// The system's headers, without the macros that stand in the way of std::min and std::max.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

// These need what stands before.
#include <commctrl.h>

namespace millichart {

/// Pixels at a window's scaling for `pixels` at 96 dpi.
inline int Scaled(HWND window, int pixels) {
    return MulDiv(pixels, static_cast<int>(GetDpiForWindow(window)), 96);
}

} // namespace millichart
