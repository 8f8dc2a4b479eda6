#pragma once

#include "foundation/TextProperty.h"
#include "penlode/Color.h"
#include "penlode/Owned.h"
#include "penlode/Pen.h"

#include <cstdint>
#include <string>

namespace millichart {

/// Which way a tick points. Any other number draws no tick, but room is still kept for one.
namespace ScaleStyle {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t Outer = 1; ///< out of the plot
inline constexpr std::int32_t Inner = 2; ///< into the plot
inline constexpr std::int32_t Cross = 3; ///< half of it each way
} // namespace ScaleStyle

/// The value axis at the left of a bar or line chart. Flags are on when not zero.
struct VerAxisProp {
    std::int32_t ShowVerAxis = 1; ///< zero: no axis area at all, its grids included
    std::int32_t MajorScaleStyle = ScaleStyle::Outer;
    std::int32_t MinorScaleStyle = ScaleStyle::Outer;
    penlode::Owned<penlode::Pen> VerAxisPen = penlode::Pen(penlode::kBlack, 0.1F); ///< line and ticks
    std::int32_t ShowVerAxisLabel = 1;                                             ///< at the major ticks
    TextProperty VerAxisLabelTextProperty;
    std::int32_t ShowHorMajorGrid = 1; ///< a line across the plot at each major tick
    penlode::Owned<penlode::Pen> HorMajorGridPen = penlode::Pen(penlode::kBlack, 0.1F);
    std::int32_t ShowHorMinorGrid = 0;
    penlode::Owned<penlode::Pen> HorMinorGridPen = penlode::Pen(penlode::kBlack, 0.1F);
    std::int32_t ShowVerCaption = 0;
    std::string VerCaption; ///< narrow (GBK; CStringUtil::Utf8ToAnsi)
    TextProperty VerCaptionTextProperty;

    friend bool operator==(const VerAxisProp&, const VerAxisProp&) = default;
};

} // namespace millichart
