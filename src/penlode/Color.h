#pragma once

#include <cstdint>

namespace penlode {

/// One ARGB word: alpha in bits 24-31, red 16-23, green 8-15, blue 0-7. Alpha is straight, not premultiplied.
struct Color {
    std::uint32_t Argb = 0xFF000000U;

    static constexpr Color FromArgb(std::uint32_t a, std::uint32_t r, std::uint32_t g, std::uint32_t b) {
        return {((a & 0xFFU) << 24U) | ((r & 0xFFU) << 16U) | ((g & 0xFFU) << 8U) | (b & 0xFFU)};
    }

    constexpr std::uint32_t A() const { return Argb >> 24U; }

    constexpr std::uint32_t R() const { return (Argb >> 16U) & 0xFFU; }

    constexpr std::uint32_t G() const { return (Argb >> 8U) & 0xFFU; }

    constexpr std::uint32_t B() const { return Argb & 0xFFU; }

    friend constexpr bool operator==(Color, Color) = default;
};

inline constexpr Color kBlack{0xFF000000U};
inline constexpr Color kWhite{0xFFFFFFFFU};

/// The word that the Windows controls speak: red in bits 0-7, green 8-15, blue 16-23. Alpha is dropped.
constexpr std::uint32_t ToColorRef(Color color) {
    return color.R() | (color.G() << 8U) | (color.B() << 16U);
}

/// The colour that a control gives back is always opaque.
constexpr Color FromColorRef(std::uint32_t colorRef) {
    return Color::FromArgb(0xFFU, colorRef, colorRef >> 8U, colorRef >> 16U);
}

/// The opaque colour of a face that lies in shadow: red, green and blue each lowered by `amount`, not below
/// 0.
constexpr Color Shaded(Color color, std::uint32_t amount) {
    const auto lowered = [amount](std::uint32_t channel) {
        return channel <= amount ? 0U : channel - amount;
    };
    return Color::FromArgb(0xFFU, lowered(color.R()), lowered(color.G()), lowered(color.B()));
}

} // namespace penlode
