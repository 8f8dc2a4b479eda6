#pragma once

#include "charts/cartesian/VerAxisProp.h"
#include "foundation/CaptionProp.h"
#include "foundation/Legend.h"
#include "penlode/Equality.h"

#include <vector>

namespace millichart {

/// The value axis of a line chart, which is a bar chart's too.
using CurveVerAxisProp = VerAxisProp;

/// The axis below the plot. Flags are on when not zero; a step below 1 counts as 1. Labels are spread evenly
/// over the plot's width, whatever the times of the data.
struct CurveHorAxisProp {
    std::int32_t ShowHorAxis = 1; ///< zero: no axis area at all, its labels and grid included
    penlode::Owned<penlode::Pen> HorAxisPen = penlode::Pen(penlode::kBlack, 0.1F); ///< line and ticks
    std::int32_t ScaleStyle = millichart::ScaleStyle::Outer;
    std::int32_t ScaleStep = 1; ///< a tick at every so many labels, from the first
    std::int32_t ShowLabel = 1;
    std::int32_t LabelStep = 1; ///< every so many labels are drawn, from the first
    TextProperty HorLabelTextProperty;
    std::int32_t ShowVerGrid = 1; ///< a line up the plot
    std::int32_t VerGridStep = 1; ///< at every so many labels, from the first
    penlode::Owned<penlode::Pen> VerGridPen = penlode::Pen(penlode::kBlack, 0.1F);
    std::int32_t ShowHorCaption = 0;
    std::string HorCaption; ///< narrow (GBK; CStringUtil::Utf8ToAnsi)
    TextProperty HorCaptionTextProperty;

    friend bool operator==(const CurveHorAxisProp&, const CurveHorAxisProp&) = default;
};

/// The marker at each point of a curve. Any other number draws none.
namespace CurveDotStyle {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t SolidSquare = 1;
inline constexpr std::int32_t HollowSquare = 2;
inline constexpr std::int32_t SolidCircle = 3;
inline constexpr std::int32_t HollowCircle = 4;
inline constexpr std::int32_t SolidDiamond = 5;
inline constexpr std::int32_t HollowDiamond = 6;
inline constexpr std::int32_t SolidTriangle = 7; ///< apex up
inline constexpr std::int32_t HollowTriangle = 8;
inline constexpr std::int32_t SolidInvertedTriangle = 9; ///< apex down
inline constexpr std::int32_t HollowInvertedTriangle = 10;
} // namespace CurveDotStyle

constexpr bool IsSolidMarker(std::int32_t dotStyle) {
    return dotStyle >= CurveDotStyle::SolidSquare && dotStyle <= CurveDotStyle::SolidInvertedTriangle &&
           dotStyle % 2 == 1;
}

/// What a line does where a value is null; there is no marker either way. Any number but 0 is as zero.
namespace CurveNullValueStyle {
inline constexpr std::int32_t Break = 0;
inline constexpr std::int32_t AsZero = 1; ///< runs through the value 0
} // namespace CurveNullValueStyle

/// A value below this is null: not measured, not there.
inline constexpr double kCurveNullThreshold = -9999998.0;

/// The null that documents and tables without a value give.
inline constexpr double kCurveNull = -9999999.0;

/// A NaN is not null: it has no place.
constexpr bool IsCurveNull(double value) {
    return value < kCurveNullThreshold;
}

/// The plot and its curves. Lengths in mm; flags are on when not zero. The lists have one entry a curve; one
/// that is missing counts as what its comment says.
struct CurvePlotProp {
    std::int32_t ShowBackground = 1;
    penlode::Color PlotBackgroundColor = penlode::kWhite;
    std::int32_t ShowEdge = 1; ///< outlines the plot
    penlode::Owned<penlode::Pen> EdgePen = penlode::Pen(penlode::Color{0xFF808080}, 0.2F);
    /// As many curves as names are drawn. Narrow (GBK; CStringUtil::Utf8ToAnsi).
    std::vector<std::string> CurveName;
    std::vector<penlode::Color> CurveColor;    ///< black
    std::vector<float> CurveWidth;             ///< 0.1
    std::vector<std::int32_t> CurveDashStyle;  ///< penlode::DashStyle; solid
    std::vector<std::int32_t> CurveDotStyle;   ///< millichart::CurveDotStyle; none
    std::vector<penlode::Color> CurveDotColor; ///< black
    std::vector<float> CurveDotWidth;          ///< of a marker from side to side; 1.0
    std::vector<std::int32_t> NullValueStyle;  ///< CurveNullValueStyle; break
    float PlotWidth = 80.0F;
    float PlotHeight = 30.0F;
    std::int32_t LogarithmScale = 0;

    friend bool operator==(const CurvePlotProp& a, const CurvePlotProp& b) {
        return penlode::HaveEqualMembers<15>(a, b);
    }
};

struct CurveProp {
    CaptionProp Caption;
    CurveVerAxisProp VerAxis;
    CurveHorAxisProp HorAxis;
    CurvePlotProp Plot;
    LegendProp Legend;

    friend bool operator==(const CurveProp&, const CurveProp&) = default;
};

} // namespace millichart
