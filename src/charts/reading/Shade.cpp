#include "charts/reading/Shade.h"

#include "foundation/Light.h"

namespace millichart {

using penlode::Color;

namespace {

struct Shade {
    std::uint32_t Lowered; ///< each channel by so much, classically
    double Factor;         ///< of lightness and chroma
};

constexpr Shade kTop{60, 0.86};
constexpr Shade kSide{100, 0.72};
constexpr Shade kWall{60, 0.78};

/// Colours of less luminance are made lighter: OKLab's lightness is about 0.3 here.
constexpr double kTooDark = 0.027;
constexpr double kWhiteOfDark = 0.25;

const Shade& ShadeOf(ShadedFace face) {
    switch (face) {
    case ShadedFace::BarTop:
        return kTop;
    case ShadedFace::BarSide:
        return kSide;
    default:
        return kWall;
    }
}

} // namespace

Color ShadeOf(Color color, ShadedFace face, const ChartOptions& options) {
    const Shade& shade = ShadeOf(face);
    if (options.Contrast != ChartContrast::Kept) {
        return penlode::Shaded(color, shade.Lowered);
    }
    return LuminanceOf(color) < kTooDark ? Lightened(color, (1.0 - shade.Factor) * kWhiteOfDark)
                                         : Darkened(color, shade.Factor);
}

} // namespace millichart
