#pragma once

#include "editing/win32/ReflectedControl.h"

#include <cstdint>

namespace millichart {

/// A control that shows a colour, a Windows RGB value.
class ColorControl : public ReflectedControl {
public:
    std::uint32_t Color() const { return m_color; }

    void SetColor(std::uint32_t colorRef) {
        m_color = colorRef;
        InvalidateRect(Handle(), nullptr, FALSE);
    }

protected:
    using ReflectedControl::ReflectedControl;

private:
    std::uint32_t m_color = 0;
};

/// Fills a box with a colour in a frame as thick as a line of the window's scaling.
void DrawFramedColor(HWND window, HDC context, RECT box, COLORREF color);

} // namespace millichart
