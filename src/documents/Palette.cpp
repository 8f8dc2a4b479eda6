#include "documents/Palette.h"

#include "charts/curve/CurveProp.h"
#include "penlode/streams/TextForms.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace millichart::documents {
namespace {

using penlode::Color;

constexpr std::array<Color, 10> kHues{{{0xFF3B6FB6U},
                                       {0xFFE58A3CU},
                                       {0xFF57A168U},
                                       {0xFFC9504EU},
                                       {0xFF8568B3U},
                                       {0xFF8F6E5AU},
                                       {0xFFD47FB0U},
                                       {0xFF8A8F98U},
                                       {0xFFBDB23FU},
                                       {0xFF3FA9BCU}}};

constexpr std::uint32_t kPalerRounds = 3;

/// A quarter nearer to white each round.
Color Paler(Color color, std::uint32_t round) {
    const auto raised = [round](std::uint32_t channel) { return channel + (255U - channel) * round / 4U; };
    return Color::FromArgb(color.A(), raised(color.R()), raised(color.G()), raised(color.B()));
}

bool Contains(const std::vector<Color>& colors, Color color) {
    return std::find(colors.begin(), colors.end(), color) != colors.end();
}

} // namespace

std::vector<Color> PaletteColors(std::size_t count) {
    std::vector<Color> colors;
    colors.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto round = static_cast<std::uint32_t>(i / kHues.size()) % kPalerRounds;
        colors.push_back(Paler(kHues[i % kHues.size()], round));
    }
    return colors;
}

void FillUp(std::vector<Color>& colors, std::size_t count) {
    constexpr std::size_t kRound = kHues.size() * kPalerRounds;
    const std::vector<Color> palette = PaletteColors(kRound);
    for (std::size_t i = colors.size(); i < count; ++i) {
        // Within the first round each colour is there once.
        std::size_t hue = i % kRound;
        for (std::size_t tried = 1; i < kRound && tried < kRound && Contains(colors, palette[hue]); ++tried) {
            hue = (hue + 1) % kRound;
        }
        colors.push_back(palette[hue]);
    }
}

void FillUpMarkers(std::vector<std::int32_t>& styles, std::size_t count) {
    constexpr std::int32_t kMarkers[] = {
        CurveDotStyle::SolidCircle,           CurveDotStyle::SolidSquare,
        CurveDotStyle::SolidTriangle,         CurveDotStyle::SolidDiamond,
        CurveDotStyle::SolidInvertedTriangle, CurveDotStyle::HollowCircle,
        CurveDotStyle::HollowSquare,          CurveDotStyle::HollowTriangle,
        CurveDotStyle::HollowDiamond,         CurveDotStyle::HollowInvertedTriangle};
    if (styles.empty() || styles.back() == CurveDotStyle::None) {
        return;
    }
    for (std::size_t i = styles.size(); i < count; ++i) {
        const auto* const next =
            std::find_if(std::begin(kMarkers), std::end(kMarkers), [&](std::int32_t marker) {
                return std::find(styles.begin(), styles.end(), marker) == styles.end();
            });
        styles.push_back(next == std::end(kMarkers) ? kMarkers[i % std::size(kMarkers)] : *next);
    }
}

std::vector<std::string> PaletteTexts() {
    std::vector<std::string> texts;
    for (Color hue : kHues) {
        penlode::ser_evaluate(hue, texts.emplace_back(), true);
    }
    return texts;
}

} // namespace millichart::documents
