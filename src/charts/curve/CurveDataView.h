#pragma once

#include <cstdint>
#include <span>
#include <variant>

namespace millichart {

using CurveValues = std::variant<std::span<const double>, std::span<const float>>;
using CurveTimes =
    std::variant<std::span<const std::int32_t>, std::span<const std::int64_t>, std::span<const double>>;

/// A curve in lists that somebody else keeps: value j is at time j, and a value without a time is not there.
/// A value below kCurveNullThreshold is null; one that is not finite, or at a time that is not, has no place.
struct CurveDataView {
    CurveValues Values;
    CurveTimes Times;
};

} // namespace millichart
