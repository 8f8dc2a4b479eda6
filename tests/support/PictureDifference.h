#pragma once

#include "penlode/Image.h"

#include <iosfwd>

/// How far two opaque pictures lie apart.
struct PictureDifference {
    double Share = 1.0; ///< of the pixels that differ; 1 for pictures of different sizes
    std::uint32_t Largest = 255;
    /// The smallest box that holds them all, in pixels, edges included.
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Right = 0;
    std::int32_t Bottom = 0;
};

std::ostream& operator<<(std::ostream& stream, const PictureDifference& difference);

/// A pixel differs when one of its channels is more than `tolerance` (of 255) away.
PictureDifference Compare(const penlode::Image& a, const penlode::Image& b, std::uint32_t tolerance);

/// The same, but a pixel counts only if the mean of the 3 × 3 round it differs too: two renderers' edges do
/// not, displaced shapes do.
PictureDifference CompareSmoothed(const penlode::Image& a, const penlode::Image& b, std::uint32_t tolerance);
