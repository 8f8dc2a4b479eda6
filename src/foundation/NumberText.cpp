#include "foundation/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace millichart {

std::string FixedText(double value, int decimals) {
    constexpr int kMaxDecimals = 400;
    // The largest double has 309 digits before the point.
    std::array<char, 320 + kMaxDecimals> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, std::clamp(decimals, 0, kMaxDecimals));
    return {buffer.data(), result.ptr};
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
