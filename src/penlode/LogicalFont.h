#pragma once

#include "penlode/Font.h"
#include "penlode/Units.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

namespace penlode {

/// A font as a platform's font dialog speaks of it: in whole pixels of a screen.
struct LogicalFont {
    std::wstring Family;
    std::int32_t Height = 0; ///< of the em
    std::int32_t Style = FontStyle::Regular;

    friend bool operator==(const LogicalFont& a, const LogicalFont& b) = default;
};

/// The height is rounded to the pixel whose way back comes nearest to the font's size; 0 for a size that is
/// none.
inline LogicalFont ToLogicalFont(const Font& font, std::int32_t pixelsPerInch) {
    constexpr std::int32_t kNamed =
        FontStyle::Bold | FontStyle::Italic | FontStyle::Underline | FontStyle::Strikeout;
    const double pixels =
        static_cast<double>(font.Size) * kPointsPerMillimetre * pixelsPerInch / kPointsPerInch;
    const double height = std::isnan(pixels) ? 0.0 : std::clamp(pixels, 0.0, 32767.0);
    return {font.Family, static_cast<std::int32_t>(std::lround(height)), font.Style & kNamed};
}

/// A font of the size in millimetres that a logical font's height stands for: points / 2.8368.
inline Font FromLogicalFont(const LogicalFont& font, std::int32_t pixelsPerInch) {
    return {font.Family, MillimetresFromLogicalHeight(font.Height, pixelsPerInch), font.Style};
}

} // namespace penlode
