#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers as texts and back, whatever the locale. Internal to the library.
namespace penlode {

/// A number's text; the shortest that reads back the same unless a format and a precision of up to 400
/// decimals say more.
template <class Number, class... Format> std::string Digits(Number value, Format... format) {
    std::array<char, 720> digits; // the largest double has 309 digits before the point
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format...).ptr;
    return {digits.data(), end};
}

/// Is this a whole number that is written with all its digits, and without an exponent? A double holds each
/// one below this.
inline bool IsPlainWhole(double value) {
    constexpr double kMaxPlain = 1e15;
    return std::trunc(value) == value && std::abs(value) < kMaxPlain;
}

/// A whole number with all its digits, so that it is an integer's text as well: 1e5 as 100000. Any other as
/// it reads back the same.
inline std::string PlainDigits(double value) {
    return IsPlainWhole(value) ? Digits(value, std::chars_format::fixed) : Digits(value);
}

/// Rounded to so many decimals, without needless zeros and without a negative zero.
inline std::string RoundedDigits(double value, int decimals) {
    std::string text = Digits(value, std::chars_format::fixed, decimals);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of('.') + 1);
    }
    return text == "-0" ? "0" : text;
}

inline constexpr std::string_view kUpperDigits = "0123456789ABCDEF";
inline constexpr std::string_view kLowerDigits = "0123456789abcdef";

/// The lowest `count` hexadecimal digits.
inline std::string HexDigits(std::uint32_t value, std::uint32_t count,
                             std::string_view digits = kUpperDigits) {
    std::string text;
    for (std::uint32_t shift = 4 * count; shift > 0; shift -= 4) {
        text += digits[(value >> (shift - 4)) & 0xFU];
    }
    return text;
}

/// The whole text as a number; `form` is the base of an integer.
template <class Number, class... Form> std::optional<Number> NumberOf(std::string_view text, Form... form) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, form...);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

} // namespace penlode
