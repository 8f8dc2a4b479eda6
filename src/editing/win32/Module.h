#pragma once

#include "editing/win32/Windows.h"

extern "C" IMAGE_DOS_HEADER __ImageBase; // the linker's

namespace millichart {

/// The DLL or the program that this code is in.
inline HINSTANCE ThisModule() {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

} // namespace millichart
