#include "foundation/Palette.h"

#include "foundation/Light.h"

#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

using namespace millichart;
using penlode::Color;

namespace {

/// How a dichromat sees light: the matrices of Machado, Oliveira and Fernandes, "A Physiologically-based
/// Model for Simulation of Color Vision Deficiency" (2009), at full severity.
using Sight = std::array<double, 9>;

constexpr Sight kFull{1, 0, 0, 0, 1, 0, 0, 0, 1};
constexpr Sight kProtanopia{0.152286, 1.052583,  -0.204868, 0.114503, 0.786281,
                            0.099216, -0.003882, -0.048116, 1.051998};
constexpr Sight kDeuteranopia{0.367322, 0.860646,  -0.227968, 0.280085, 0.672501,
                              0.047413, -0.011820, 0.042940,  0.968881};
constexpr Sight kTritanopia{1.255528, -0.076749, -0.178779, -0.078411, 0.930809,
                            0.147602, 0.004733,  0.691367,  0.303900};

Light Seen(Color color, const Sight& m) {
    const Light light = LightOf(color);
    const auto row = [&](std::size_t at) {
        return std::clamp(m[at] * light.Red + m[at + 1] * light.Green + m[at + 2] * light.Blue, 0.0, 1.0);
    };
    return {row(0), row(3), row(6)};
}

/// OKLab (Björn Ottosson, 2020): equal distances look about equally different.
std::array<double, 3> LabOf(const Light& light) {
    const double l =
        std::cbrt(0.4122214708 * light.Red + 0.5363325363 * light.Green + 0.0514459929 * light.Blue);
    const double m =
        std::cbrt(0.2119034982 * light.Red + 0.6806995451 * light.Green + 0.1073969566 * light.Blue);
    const double s =
        std::cbrt(0.0883024619 * light.Red + 0.2817188376 * light.Green + 0.6299787005 * light.Blue);
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
            1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
            0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

double Distance(Color a, Color b, const Sight& sight) {
    const auto first = LabOf(Seen(a, sight));
    const auto second = LabOf(Seen(b, sight));
    return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

ChartOptions With(std::int32_t palette) {
    ChartOptions options;
    options.Palette = palette;
    return options;
}

} // namespace

TEST(Palette, EverybodyTellsTheFirstEightSafeColoursApart) {
    const std::vector<Fill> fills = FillsOf(With(ChartPalette::Safe), {}, 8);
    // Classical documents' green and brown are 0.02 apart for who has no green cones.
    for (const auto& [sight, least] : {std::pair(kFull, 0.15), std::pair(kProtanopia, 0.12),
                                       std::pair(kDeuteranopia, 0.12), std::pair(kTritanopia, 0.09)}) {
        for (std::size_t i = 0; i < fills.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_GE(Distance(fills[i].Color, fills[j].Color, sight), least)
                    << i << " " << j << " " << sight[0];
            }
            EXPECT_GE(ContrastOf(fills[i].Color, penlode::kWhite), 2.0);
        }
    }
}

TEST(Palette, LaterSafeColoursStayReadableAndUnlikeTheirNeighbours) {
    const std::vector<Fill> fills = FillsOf(With(ChartPalette::Safe), {}, 24);
    std::set<std::uint32_t> colours;
    for (std::size_t i = 0; i < fills.size(); ++i) {
        colours.insert(fills[i].Color.Argb);
        EXPECT_GE(ContrastOf(fills[i].Color, penlode::kWhite), 1.5) << i;
        EXPECT_GE(Distance(fills[i].Color, fills[(i + 1) % fills.size()].Color, kDeuteranopia), 0.07) << i;
    }
    EXPECT_EQ(colours.size(), fills.size());
}

TEST(Palette, NeighboursInPrintDifferInGreyAndHatch) {
    constexpr int kSeenStep = 0x18;
    std::set<std::pair<std::uint32_t, Hatch>> all;
    for (std::size_t i = 0; i < 64; ++i) {
        const Fill fill = PaletteFill(With(ChartPalette::Print), i);
        const Fill next = PaletteFill(With(ChartPalette::Print), i + 1);
        EXPECT_GE(std::abs(static_cast<int>(fill.Color.R()) - static_cast<int>(next.Color.R())), kSeenStep)
            << i;
        EXPECT_NE(fill.Hatch, next.Hatch);
        EXPECT_TRUE(fill.Color.R() == fill.Color.G() && fill.Color.G() == fill.Color.B());
        all.emplace(fill.Color.Argb, fill.Hatch);
    }
    EXPECT_EQ(all.size(), 64U);
}

TEST(Palette, TheRecordsColoursStayWithoutOne) {
    const std::vector<Color> record{{0xFF112233U}, {0x80445566U}};
    EXPECT_EQ(FillsOf({}, record, 5), (std::vector<Fill>{{record[0]}, {record[1]}}));
    EXPECT_EQ(FillsOf(With(7), record, 1).size(), 2U);
}
