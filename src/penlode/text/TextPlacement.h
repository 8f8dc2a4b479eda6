#pragma once

#include "penlode/Export.h"
#include "penlode/Font.h"
#include "penlode/Geometry.h"
#include "penlode/StringFormat.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace penlode {

/// A line of a text that is longer ends after so many characters.
inline constexpr std::size_t kMaxLineCharacters = 8192;

/// One line of a text and where it stands: the left end of its baseline, and its width.
struct PlacedLine {
    std::wstring_view Text;
    PointF Baseline;
    float Width = 0.0F;
};

/// Up to `length` characters of a zero-terminated text; −1 means all of them. Null is empty.
PENLODE_API std::wstring_view TextOf(const wchar_t* text, std::int32_t length);

/// The text's lines, without the "\n" (or "\r\n") that end them. A text always has at least one line.
PENLODE_API std::vector<std::wstring_view> SplitLines(std::wstring_view text);

/// Lays a text's lines into `box` as `format` says, one font line height apart. Lines are neither wrapped nor
/// clipped; a box without extent aligns them on its corner.
PENLODE_API std::vector<PlacedLine> PlaceLines(std::wstring_view text, const Font& font, const RectF& box,
                                               const StringFormat& format);

/// The rectangle that the lines cover when placed so.
PENLODE_API RectF TextBounds(std::wstring_view text, const Font& font, const RectF& box,
                             const StringFormat& format);

} // namespace penlode
