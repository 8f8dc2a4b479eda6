#pragma once

#include "penlode/Pen.h"

#include <span>

/// How every surface draws a pen.
namespace penlode {

/// The thinnest line of a page, in millimetres: a pen of width 0 draws it.
inline constexpr double kMinPageLine = 0.05;

/// Dash and gap lengths in widths of the pen; none for a solid line.
inline std::span<const double> DashPattern(DashStyle style) {
    static constexpr double kDashDotDot[]{3, 1, 1, 1, 1, 1};
    static constexpr double kDot[]{1, 1};
    switch (style) {
    case DashStyle::Dash:
        return {kDashDotDot, 2};
    case DashStyle::Dot:
        return kDot;
    case DashStyle::DashDot:
        return {kDashDotDot, 4};
    case DashStyle::DashDotDot:
        return kDashDotDot;
    default:
        return {};
    }
}

} // namespace penlode
