#pragma once

#include "penlode/IGraphicsEngine.h"

namespace millichart {

inline constexpr int kLineStyleCount = 5;
inline constexpr int kLineStyleHeight = 20; ///< of an item, in pixels

/// One item of a list of dash styles, a sample of dash style `item` on a surface that counts in pixels.
/// Nothing for an item below 0.
void DrawLineStyleItem(penlode::IGraphicsEngine& engine, const penlode::RectF& box, int item, bool hasFocus,
                       bool isSelected);

} // namespace millichart
