#include "foundation/Palette.h"

#include "foundation/Light.h"

#include <array>

namespace millichart {

using penlode::Color;

namespace {

/// Found by search: all pairs are well apart in OKLab, for full sight and for each kind of colour blindness,
/// and each has a contrast of at least 2 to white.
constexpr std::array<Color, 8> kSafe{{{0xFF046DE9U},
                                      {0xFFE65909U},
                                      {0xFF53C9ABU},
                                      {0xFF71330CU},
                                      {0xFFE7AD01U},
                                      {0xFF054B7AU},
                                      {0xFFC48EFAU},
                                      {0xFF9A678EU}}};

constexpr std::array<std::uint32_t, 8> kGreys{0x59, 0xD9, 0xA6, 0xF2, 0x8C, 0x73, 0xE6, 0xC6};
constexpr std::array<Hatch, 8> kHatches{
    Hatch::None,     Hatch::Rising,  Hatch::Horizontal, Hatch::DiagonalCrossed,
    Hatch::Vertical, Hatch::Falling, Hatch::Dense,      Hatch::Crossed};

/// The hues come again darker, which keeps their distances in proportion, and then paler.
Color SafeColor(std::size_t index) {
    const Color hue = kSafe[index % kSafe.size()];
    switch (index / kSafe.size() % 3) {
    case 0:
        return hue;
    case 1:
        return Darkened(hue, 0.78);
    default:
        return Lightened(hue, 0.3);
    }
}

/// Each further round pairs the hatches with greys three places on.
Fill PrintFill(std::size_t index) {
    constexpr std::size_t kRoundStep = 3;
    const std::size_t round = index / kHatches.size();
    const std::uint32_t grey = kGreys[(index + round * kRoundStep) % kGreys.size()];
    return {Color::FromArgb(0xFFU, grey, grey, grey), kHatches[index % kHatches.size()]};
}

} // namespace

Fill PaletteFill(const ChartOptions& options, std::size_t index) {
    switch (options.Palette) {
    case ChartPalette::Safe:
        return {SafeColor(index), Hatch::None};
    case ChartPalette::Print:
        return PrintFill(index);
    default:
        return {};
    }
}

std::vector<Fill> FillsOf(const ChartOptions& options, const std::vector<Color>& recordColors,
                          std::size_t count) {
    std::vector<Fill> fills;
    if (!HasPalette(options)) {
        for (const Color color : recordColors) {
            fills.push_back({color, Hatch::None});
        }
        return fills;
    }
    fills.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        fills.push_back(PaletteFill(options, i));
    }
    return fills;
}

} // namespace millichart
