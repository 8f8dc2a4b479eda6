#pragma once

#include <cmath>
#include <cstdint>

/// Conversions between points, millimetres and pixels.
namespace penlode {

/// Points in a millimetre as this system has always counted them, slightly more than 72 / 25.4. Stored font
/// sizes depend on it.
inline constexpr float kPointsPerMillimetre = 2.8368F;

inline constexpr double kMillimetresPerInch = 25.4;
inline constexpr double kPointsPerInch = 72.0;

constexpr float MillimetresFromPoints(float points) {
    return points / kPointsPerMillimetre;
}

/// Size in millimetres of a font that a platform dialog describes by its logical height (in pixels, either
/// sign) on a screen of `pixelsPerInch`.
inline float MillimetresFromLogicalHeight(std::int32_t logicalHeight, std::int32_t pixelsPerInch) {
    const double points = std::abs(static_cast<double>(logicalHeight)) * kPointsPerInch / pixelsPerInch;
    return MillimetresFromPoints(static_cast<float>(points));
}

/// Length in pixels of `millimetres` on a surface of `dpi` dots per inch.
constexpr float PixelsFromMillimetres(float millimetres, float dpi) {
    return millimetres * dpi / 25.4F;
}

} // namespace penlode
