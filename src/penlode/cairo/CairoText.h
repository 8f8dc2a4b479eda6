#pragma once

#include "penlode/Color.h"
#include "penlode/Font.h"
#include "penlode/Geometry.h"
#include "penlode/StringFormat.h"
#include "penlode/cairo/CairoCanvas.h"

#include <string_view>

namespace penlode {

/// Draws a text's lines in `box` as `format` places them. A baseline that runs along an axis of a surface of
/// pixels stands on a whole pixel; letters keep their exact places along it. A line that lies out of sight,
/// or whose letters are larger than Cairo can count or too small to see, is left out. One that is stretched
/// strongly one way is drawn as outlines.
Status PaintText(const Painter& painter, std::wstring_view text, const Font& font, const RectF& box,
                 const StringFormat& format, Color color);

} // namespace penlode
