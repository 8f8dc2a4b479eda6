#pragma once

#include "penlode/GraphicsTypes.h"

#include <cmath>
#include <cstdint>

/// Conversions between points, millimetres and pixels.
namespace penlode {

/// Points in a millimetre, slightly more than 72 / 25.4: the sizes of the fonts that records hold were made
/// of points with this number, and come back to the same points only by it.
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

/// Pixels in one unit on an axis of `dpi` dots per inch; 0 for World and what is no unit.
constexpr double PixelsPerUnit(Unit unit, double dpi) {
    switch (unit) {
    case Unit::Display:
    case Unit::Pixel:
        return 1.0;
    case Unit::Point:
        return dpi / kPointsPerInch;
    case Unit::Inch:
        return dpi;
    case Unit::Document:
        return dpi / 300.0;
    case Unit::Millimeter:
        return dpi / kMillimetresPerInch;
    default:
        return 0.0;
    }
}

} // namespace penlode
