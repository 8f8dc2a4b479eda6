#pragma once

#include "penlode/Units.h"
#include "penlode/engine/Finite.h"

#include <algorithm>
#include <cmath>
#include <optional>

/// The sizes of surfaces that engines make.
namespace penlode {

/// Whole numbers of pixels.
struct RasterSize {
    double Width;
    double Height;
};

/// Of a page: 200 inches, as much as a PDF may have.
inline constexpr double kMaxPageSide = 5080.0;

inline bool IsResolution(double dpi) {
    return dpi >= 1.0 && dpi <= 9600.0;
}

inline bool IsPageSize(SizeF millimetres) {
    return millimetres.Width > 0.0F && millimetres.Height > 0.0F && millimetres.Width <= kMaxPageSide &&
           millimetres.Height <= kMaxPageSide;
}

/// A picture's pixels, at least one each way. Nothing for a size that is not above 0 and for more than an
/// engine draws.
inline std::optional<RasterSize> RasterSizeOf(SizeF millimetres, double dpi) {
    constexpr double kMaxSide = 32767.0;
    constexpr double kMaxPixels = 500e6;
    if (!AreFinite(millimetres.Width, millimetres.Height) || millimetres.Width <= 0.0F ||
        millimetres.Height <= 0.0F || !IsResolution(dpi)) {
        return std::nullopt;
    }
    const auto pixels = [dpi](double length) {
        return std::max(1.0, std::round(length * dpi / kMillimetresPerInch));
    };
    const RasterSize size{pixels(millimetres.Width), pixels(millimetres.Height)};
    const bool fits =
        size.Width <= kMaxSide && size.Height <= kMaxSide && size.Width * size.Height <= kMaxPixels;
    return fits ? std::optional(size) : std::nullopt;
}

} // namespace penlode
