#pragma once

#include "penlode/text/Digits.h"

#include <limits>
#include <string>

namespace millichart {

/// The same on every platform, which std::pow is not; 0 and infinity beyond a double's reach. Internal to the
/// library.
inline double PowerOfTen(int exponent) {
    return penlode::NumberOf<double>("1e" + std::to_string(exponent))
        .value_or(exponent < 0 ? 0.0 : std::numeric_limits<double>::infinity());
}

} // namespace millichart
