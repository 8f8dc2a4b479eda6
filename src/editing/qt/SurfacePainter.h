#pragma once

#include "penlode/IGraphicsEngine.h"

#include <QPainter>
#include <functional>

namespace millichart {

/// Draws on a painter with the library's own engine, which counts in the painter's pixels from the box's
/// top-left corner, as fine as the screen.
void PaintByEngine(QPainter& painter, const QRect& box,
                   const std::function<void(penlode::IGraphicsEngine& engine)>& draw);

} // namespace millichart
