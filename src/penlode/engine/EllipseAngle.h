#pragma once

#include <cmath>
#include <numbers>

namespace penlode {

/// The parameter t at which (rx·cos t, ry·sin t) lies on the ray at `degrees`: tan t = tan θ · rx / ry, in
/// the same quadrant and turn as θ.
inline double EllipseParameter(double rx, double ry, double degrees) {
    const double angle = degrees * std::numbers::pi / 180.0;
    if (rx == ry || rx == 0.0 || ry == 0.0) {
        return angle;
    }
    const double parameter = std::atan2(rx * std::sin(angle), ry * std::cos(angle));
    return parameter + 2.0 * std::numbers::pi * std::round((angle - parameter) / (2.0 * std::numbers::pi));
}

} // namespace penlode
