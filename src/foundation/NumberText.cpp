#include "foundation/NumberText.h"

#include "penlode/text/Digits.h"

#include <algorithm>

namespace millichart {

std::string FixedText(double value, int decimals) {
    constexpr int kMaxDecimals = 400;
    return penlode::Digits(value, std::chars_format::fixed, std::clamp(decimals, 0, kMaxDecimals));
}

std::string WithoutTrailingZeros(std::string number) {
    if (number.find('.') != std::string::npos) {
        number.erase(number.find_last_not_of('0') + 1);
        if (number.back() == '.') {
            number.pop_back();
        }
    }
    return number;
}

} // namespace millichart
