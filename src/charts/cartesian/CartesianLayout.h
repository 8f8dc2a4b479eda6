#pragma once

#include "charts/reading/NamesThatFit.h"
#include "foundation/Legend.h"
#include "penlode/Geometry.h"

#include <string>
#include <vector>

namespace millichart {

/// Where the shared parts of a bar or line chart stand, in mm of the page.
struct CartesianLayout {
    penlode::RectF Whole; ///< legend included
    penlode::RectF Caption;
    penlode::RectF VerCaption;
    penlode::RectF HorCaption;
    penlode::RectF Plot;
    penlode::SizeF VerCaptionSize;
    penlode::SizeF HorCaptionSize;
    std::vector<penlode::PointF> VerMajorTicks;  ///< on the plot's left edge
    std::vector<penlode::PointF> VerMinorTicks;  ///< on the plot's left edge
    std::vector<std::string> VerLabelTexts;      ///< one per major tick, or none; prefix and postfix included
    std::vector<penlode::RectF> VerLabelRects;   ///< parallel to the texts
    std::vector<penlode::SizeF> VerLabelSizes;   ///< parallel to the texts
    std::vector<penlode::PointF> HorTicks;       ///< on the plot's bottom edge
    std::vector<penlode::RectF> LegendItemRects; ///< one per name that is shown, or none
    LegendFrame Legend;                          ///< of a legend that sits on its plot
    /// The names or labels below the plot that are drawn, where options say how; else none.
    std::vector<FittedName> FittedNames;
};

} // namespace millichart
