#pragma once

#include "editing/win32/Windows.h"
#include "penlode/GraphicsEngine.h"

namespace millichart {

/// Lets the library draw in a box of a window's context, which then counts in pixels of 96 dpi:
/// draw(engine, box).
template <class Draw> void DrawScaled(HWND window, HDC context, const RECT& box, Draw draw) {
    const auto engine = penlode::CGraphicsEngine::ForDeviceContext(context);
    if (engine == nullptr) {
        return;
    }
    const float scale = static_cast<float>(GetDpiForWindow(window)) / 96.0F;
    engine->SetPageUnit(penlode::Unit::Pixel);
    engine->SetPageScale(scale);
    const auto scaled = [scale](LONG pixels) { return static_cast<float>(pixels) / scale; };
    draw(*engine, penlode::RectF{scaled(box.left), scaled(box.top), scaled(box.right - box.left),
                                 scaled(box.bottom - box.top)});
}

} // namespace millichart
