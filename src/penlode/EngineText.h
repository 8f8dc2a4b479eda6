#pragma once

#include "penlode/Export.h"
#include "penlode/Font.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsTypes.h"
#include "penlode/StringFormat.h"

#include <cstdint>
#include <string_view>

namespace penlode {

/// What every engine answers to its MeasureString operations.
///
/// `bounds` gets the rectangle that the text covers in `layout`. `charactersFitted` and `linesFilled` count
/// the whole lines that fit the layout's height (all of them when it is 0), line breaks included. Null
/// outputs are passed over.
PENLODE_API Status MeasureInLayout(std::wstring_view text, const Font* font, const RectF& layout,
                                   const StringFormat* format, RectF* bounds, std::int32_t* charactersFitted,
                                   std::int32_t* linesFilled);

} // namespace penlode
