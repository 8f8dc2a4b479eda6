#pragma once

#include "foundation/ChartOptions.h"
#include "foundation/Export.h"
#include "penlode/Color.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace millichart {

/// Lines drawn on a filled shape, so that it can be told from others without colours.
enum class Hatch : std::int32_t {
    None,
    Rising,  ///< from bottom left to top right
    Falling, ///< from top left to bottom right
    Horizontal,
    Vertical,
    Crossed,         ///< horizontal and vertical
    DiagonalCrossed, ///< rising and falling
    Dense            ///< rising, twice as many
};

/// How a slice, a bar or a sample in a legend is filled.
struct Fill {
    penlode::Color Color = penlode::kBlack;
    millichart::Hatch Hatch = millichart::Hatch::None;

    friend bool operator==(const Fill&, const Fill&) = default;
};

/// Whether the colours are a palette's, in the place of the record's.
constexpr bool HasPalette(const ChartOptions& options) {
    return options.Palette == ChartPalette::Safe || options.Palette == ChartPalette::Print;
}

/// What number `index` gets from the options' palette; black without one. The first eight of the safe palette
/// can be told apart by everybody, then they come darker and paler; of two that follow each other in the
/// palette for print both grey and hatch differ, and the first 64 are all different.
MILLICHART_API Fill PaletteFill(const ChartOptions& options, std::size_t index);

/// `count` of the palette's fills or, without a palette, one for each of the record's colours.
MILLICHART_API std::vector<Fill> FillsOf(const ChartOptions& options,
                                         const std::vector<penlode::Color>& recordColors, std::size_t count);

} // namespace millichart
