#pragma once

#include "charts/curve/CurveProp.h"
#include "foundation/ChartOptions.h"
#include "foundation/Export.h"

namespace millichart {

/// The look of one curve, and of its sample in the legend. Lengths in mm.
struct CurveStyle {
    penlode::Color LineColor = penlode::kBlack;
    float Width = 0.1F;
    std::int32_t Dash = static_cast<std::int32_t>(penlode::DashStyle::Solid);
    std::int32_t Dot = CurveDotStyle::None;
    penlode::Color DotColor = penlode::kBlack;
    float DotWidth = 1.0F;
    std::int32_t NullValue = CurveNullValueStyle::Break;
};

/// The entries at `index` of the plot's lists; the values above where a list has none.
MILLICHART_API CurveStyle StyleOf(const CurvePlotProp& prop, std::size_t index);

/// The same with the options' palette. For print, solid lines are dashed in turn and solid markers get other
/// shapes.
MILLICHART_API CurveStyle StyleOf(const CurvePlotProp& prop, std::size_t index, const ChartOptions& options);

} // namespace millichart
