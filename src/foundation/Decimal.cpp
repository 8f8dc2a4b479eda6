#include "foundation/Decimal.h"

#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

namespace millichart {
namespace {

void DropLastZeros(Decimal& number) {
    number.Digits.erase(number.Digits.find_last_not_of('0') + 1);
    if (number.IsZero()) {
        number = {};
    }
}

/// Adds one to the last digit.
void CountUp(Decimal& number) {
    number.Digits.erase(number.Digits.find_last_not_of('9') + 1);
    if (number.IsZero()) {
        number.Digits = "1";
        ++number.Point;
    } else {
        ++number.Digits.back();
    }
}

std::string Grouped(const std::string& digits, std::string_view separator) {
    constexpr std::size_t kGroup = 3;
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % kGroup == 0) {
            text += separator;
        }
        text += digits[i];
    }
    return text;
}

} // namespace

Decimal Decimal::Of(double value) {
    if (!std::isfinite(value)) {
        return {};
    }
    const std::string text = penlode::Digits(value, std::chars_format::scientific);
    const std::size_t mark = text.find('e');
    Decimal number{text.front() == '-', {}, 1};
    std::copy_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(mark),
                 std::back_inserter(number.Digits), [](char c) { return c >= '0' && c <= '9'; });
    const std::size_t exponent = text[mark + 1] == '+' ? mark + 2 : mark + 1;
    number.Point += penlode::NumberOf<int>(std::string_view(text).substr(exponent)).value_or(0);
    DropLastZeros(number);
    return number;
}

Decimal Decimal::Rounded(int decimals) const {
    const int kept = Point + decimals;
    if (kept < 0) {
        return {};
    }
    const auto end = static_cast<std::size_t>(kept);
    if (end >= Digits.size()) {
        return *this;
    }
    Decimal number{IsNegative, Digits.substr(0, end), Point};
    if (Digits[end] >= '5') {
        CountUp(number);
    }
    DropLastZeros(number);
    return number;
}

std::string Decimal::Text(int decimals, std::string_view separator) const {
    const auto point = static_cast<std::size_t>(std::max(Point, 0));
    const auto after = static_cast<std::size_t>(std::max({decimals, Decimals(), 0}));
    std::string digits = std::string(static_cast<std::size_t>(std::max(-Point, 0)), '0') + Digits;
    digits.resize(point + after, '0');
    const std::string whole = point == 0 ? "0" : Grouped(digits.substr(0, point), separator);
    return (IsNegative ? "-" : "") + whole + (after > 0 ? "." + digits.substr(point) : "");
}

} // namespace millichart
