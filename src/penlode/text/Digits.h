#pragma once

#include <array>
#include <charconv>
#include <string>

namespace penlode {

/// A number's text, whatever the locale; the shortest that reads back the same unless a format and a
/// precision of up to 400 decimals say more. Internal to the library.
template <class Number, class... Format> std::string Digits(Number value, Format... format) {
    std::array<char, 720> digits; // the largest double has 309 digits before the point
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format...).ptr;
    return {digits.data(), end};
}

} // namespace penlode
