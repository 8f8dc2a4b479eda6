#pragma once

#include "penlode/GraphicsPath.h"

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

/// A path's arc by the parameter of its points.
struct EllipseArc {
    PointD Center;
    double Rx;
    double Ry;
    double Start;
    double End;

    explicit EllipseArc(const GraphicsPath::Arc& arc)
        : Center{arc.Ellipse.X + arc.Ellipse.Width * 0.5, arc.Ellipse.Y + arc.Ellipse.Height * 0.5},
          Rx(arc.Ellipse.Width * 0.5), Ry(arc.Ellipse.Height * 0.5),
          Start(EllipseParameter(Rx, Ry, arc.StartAngle)),
          End(std::abs(arc.SweepAngle) >= 360.0F
                  ? Start + std::copysign(2.0 * std::numbers::pi, arc.SweepAngle)
                  : EllipseParameter(Rx, Ry, static_cast<double>(arc.StartAngle) + arc.SweepAngle)) {}

    PointD At(double t) const { return {Center.X + Rx * std::cos(t), Center.Y + Ry * std::sin(t)}; }

    PointD Tangent(double t) const { return {-Rx * std::sin(t), Ry * std::cos(t)}; }
};

} // namespace penlode
