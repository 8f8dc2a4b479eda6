#pragma once

#include "penlode/Equality.h"

#include <cstdint>
#include <string>

namespace penlode {

/// Bits of a font's style; bits that have no name here are kept and not drawn.
namespace FontStyle {
inline constexpr std::int32_t Regular = 0;
inline constexpr std::int32_t Bold = 1;
inline constexpr std::int32_t Italic = 2;
inline constexpr std::int32_t Underline = 4;
inline constexpr std::int32_t Strikeout = 8;
} // namespace FontStyle

/// A typeface by name, its em size in page units (millimetres) and its style. An engine that has no such
/// family draws with the platform's generic sans-serif, as it does for an empty name.
struct Font {
    std::wstring Family = L"宋体";
    float Size = 4.0F;
    std::int32_t Style = FontStyle::Regular;

    bool Has(std::int32_t styleBits) const { return (Style & styleBits) == styleBits; }

    friend bool operator==(const Font& a, const Font& b) { return HaveEqualMembers<3>(a, b); }
};

} // namespace penlode
