#pragma once

#include "editing/win32/Windows.h"

namespace millichart {

/// While one lives, windows that this thread makes have version 6 of the common controls, whose visual styles
/// are the system's, whatever the host's own manifest asks for.
class ControlStyles {
public:
    ControlStyles();
    ~ControlStyles();

    ControlStyles(const ControlStyles&) = delete;
    ControlStyles& operator=(const ControlStyles&) = delete;

private:
    ULONG_PTR m_cookie = 0;
    bool m_isActive = false;
};

} // namespace millichart
