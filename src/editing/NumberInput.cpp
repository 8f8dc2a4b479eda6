#include "editing/NumberInput.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace millichart {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";
constexpr std::string_view kDigits = "0123456789";

/// A text's number without the blanks and the sign before it. Empty if none begins there.
struct UnsignedText {
    bool IsNegative = false;
    std::string_view Digits;
};

UnsignedText WithoutSign(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const std::string_view whole = text.substr(text.starts_with('.') ? 1 : 0);
    const bool begins = !whole.empty() && kDigits.find(whole.front()) != std::string_view::npos;
    return {isNegative, begins ? text : std::string_view()};
}

/// Is a number that no double holds too small, and not too large? It has a digit other than 0.
bool IsTiny(std::string_view digits) {
    const std::size_t exponentSign = std::min(digits.find_first_not_of("0123456789."), digits.size());
    const std::string_view mantissa = digits.substr(0, exponentSign);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    auto magnitude =
        static_cast<std::int64_t>(point) -
        static_cast<std::int64_t>(std::min(mantissa.find_first_of("123456789"), mantissa.size()));
    if (exponentSign < digits.size()) {
        magnitude += ReadInteger(digits.substr(exponentSign + 1));
    }
    return magnitude < 0;
}

} // namespace

double ReadNumber(std::string_view text) {
    const auto [isNegative, digits] = WithoutSign(text);
    double value = 0.0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), value).ec ==
        std::errc::result_out_of_range) {
        value = IsTiny(digits) ? 0.0 : std::numeric_limits<double>::max();
    }
    return isNegative ? -value : value;
}

std::int32_t ReadInteger(std::string_view text) {
    using Limits = std::numeric_limits<std::int32_t>;
    const auto [isNegative, digits] = WithoutSign(text);
    std::int64_t value = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), value).ec ==
        std::errc::result_out_of_range) {
        value = std::numeric_limits<std::int64_t>::max();
    }
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(isNegative ? -value : value, Limits::min(), Limits::max()));
}

} // namespace millichart
