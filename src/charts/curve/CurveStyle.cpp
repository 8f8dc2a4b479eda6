#include "charts/curve/CurveStyle.h"

#include "foundation/Palette.h"

#include <array>

namespace millichart {
namespace {

template <class T> void Take(T& value, const std::vector<T>& list, std::size_t index) {
    if (index < list.size()) {
        value = list[index];
    }
}

/// Black, and greys that are dark enough for a line.
constexpr std::array<penlode::Color, 3> kLineGreys{{{0xFF000000U}, {0xFF8C8C8CU}, {0xFF595959U}}};

constexpr std::array kMarkers{CurveDotStyle::SolidCircle,           CurveDotStyle::HollowSquare,
                              CurveDotStyle::SolidTriangle,         CurveDotStyle::HollowCircle,
                              CurveDotStyle::SolidDiamond,          CurveDotStyle::HollowTriangle,
                              CurveDotStyle::SolidSquare,           CurveDotStyle::HollowDiamond,
                              CurveDotStyle::SolidInvertedTriangle, CurveDotStyle::HollowInvertedTriangle};

void DressForPrint(std::size_t index, CurveStyle& style) {
    constexpr std::size_t kDashStyles = 5;
    style.LineColor = kLineGreys[index % kLineGreys.size()];
    if (style.Dash == static_cast<std::int32_t>(penlode::DashStyle::Solid)) {
        style.Dash = static_cast<std::int32_t>(index % kDashStyles);
    }
    if (IsSolidMarker(style.Dot)) {
        style.Dot = kMarkers[index % kMarkers.size()];
    }
}

} // namespace

CurveStyle StyleOf(const CurvePlotProp& prop, std::size_t index, const ChartOptions& options) {
    CurveStyle style = StyleOf(prop, index);
    if (options.Palette == ChartPalette::Print) {
        DressForPrint(index, style);
        style.DotColor = style.LineColor;
    } else if (HasPalette(options)) {
        style.LineColor = PaletteFill(options, index).Color;
        style.DotColor = style.LineColor;
    }
    return style;
}

CurveStyle StyleOf(const CurvePlotProp& prop, std::size_t index) {
    CurveStyle style;
    Take(style.LineColor, prop.CurveColor, index);
    Take(style.Width, prop.CurveWidth, index);
    Take(style.Dash, prop.CurveDashStyle, index);
    Take(style.Dot, prop.CurveDotStyle, index);
    Take(style.DotColor, prop.CurveDotColor, index);
    Take(style.DotWidth, prop.CurveDotWidth, index);
    Take(style.NullValue, prop.NullValueStyle, index);
    return style;
}

} // namespace millichart
