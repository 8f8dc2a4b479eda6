#pragma once

#include "charts/cartesian/VerAxisProp.h"
#include "foundation/CaptionProp.h"
#include "foundation/Legend.h"
#include "penlode/Equality.h"

#include <vector>

namespace millichart {

/// The value axis of a bar chart, which is a line chart's too.
using HistogramVerAxisProp = VerAxisProp;

/// The group axis below the plot. Flags are on when not zero.
struct HistogramHorAxisProp {
    std::int32_t ShowHorAxis = 1; ///< zero: no axis area at all, the group names included
    penlode::Owned<penlode::Pen> HorAxisPen = penlode::Pen(penlode::kBlack, 0.1F); ///< line and ticks
    std::int32_t ScaleStyle = millichart::ScaleStyle::Outer; ///< of the ticks between groups
    std::int32_t ShowGroupName = 0;
    TextProperty GroupNameTextProperty;
    std::int32_t ShowVerGrid = 1; ///< a line up the plot between groups
    penlode::Owned<penlode::Pen> VerGridPen = penlode::Pen(penlode::kBlack, 0.1F);
    std::int32_t ShowHorCaption = 0;
    std::string HorCaption; ///< narrow (GBK; CStringUtil::Utf8ToAnsi)
    TextProperty HorCaptionTextProperty;

    friend bool operator==(const HistogramHorAxisProp&, const HistogramHorAxisProp&) = default;
};

/// How bars are drawn; any number but 0 gives them depth.
namespace BarStyle {
inline constexpr std::int32_t Flat = 0;
inline constexpr std::int32_t WithDepth = 1;
} // namespace BarStyle

/// The plot, its bars and their labels. Lengths in mm; flags are on when not zero.
struct HistogramPlotProp {
    std::int32_t ShowBackground = 1;
    penlode::Color PlotBackgroundColor = penlode::kWhite;
    std::int32_t ShowEdge = 1; ///< outlines the plot
    penlode::Owned<penlode::Pen> EdgePen = penlode::Pen(penlode::Color{0xFF808080}, 0.2F);
    /// One per bar of a group; as many bars as names are drawn. Narrow (GBK; CStringUtil::Utf8ToAnsi).
    std::vector<std::string> ComponentName;
    std::vector<penlode::Color> ComponentColor; ///< one per name; a bar without a colour is not drawn
    std::int32_t ShowComponentName = 0;         ///< at each bar
    std::int32_t ShowComponentValue = 0;        ///< at each bar, as a whole number
    std::int32_t ConponentInfoInSingleRow = 1;  ///< zero: a line break follows the separator
    std::string ConponentInfoSeparator = ";";   ///< narrow (GBK; CStringUtil::Utf8ToAnsi)
    TextProperty ComponentInfoTextProperty;
    float PlotWidth = 80.0F;
    float PlotHeight = 30.0F;
    float GroupDistane = 10.0F; ///< between neighbouring groups; shrinks when groups would lose their last mm
    std::int32_t Juxtaposition = 1; ///< zero: the bars of a group are stacked into one
    std::int32_t PieStyle = BarStyle::Flat;
    std::int32_t LogarithmScale = 0;

    friend bool operator==(const HistogramPlotProp& a, const HistogramPlotProp& b) {
        return penlode::HaveEqualMembers<17>(a, b);
    }
};

struct HistogramProp {
    CaptionProp Caption;
    HistogramVerAxisProp VerAxis;
    HistogramHorAxisProp HorAxis;
    HistogramPlotProp Plot;
    LegendProp Legend;

    friend bool operator==(const HistogramProp&, const HistogramProp&) = default;
};

} // namespace millichart
