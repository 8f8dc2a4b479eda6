#pragma once

#include "charts/cartesian/CartesianLayout.h"
#include "charts/cartesian/VerAxisProp.h"
#include "charts/reading/Air.h"
#include "foundation/CaptionProp.h"
#include "foundation/ChartOptions.h"
#include "foundation/Legend.h"

#include <string>
#include <vector>

/// What stands round the plot of a bar or line chart that is to read well: placed once more, after the
/// classical layout, box by box from the plot outwards, so that none lies over another and all lie in the
/// whole.
namespace millichart {

/// Do the options ask for another place of anything round the plot?
bool ReadsFrame(const ChartOptions& options);

/// The names below the plot. Rectangles and sizes are the classical ones, and become those of the names as
/// they read.
struct NamesBelow {
    const std::vector<std::string>& Names;
    const std::vector<penlode::PointF>& Stands; ///< on the plot's lower edge, one a name
    const TextProperty& Look;
    bool AreOnScale; ///< see NamesToFit
    std::vector<penlode::RectF>& Rects;
};

struct FramePlan {
    const ChartOptions& Options;
    const CaptionProp& Caption;
    const VerAxisProp& VerAxis;
    const std::string& HorCaption; ///< as it is shown; its size is in the layout
    const TextProperty& HorCaptionLook;
    const LegendProp& Legend;
    const std::vector<std::string>& LegendNames;
    float SwatchFactor;
    penlode::PointF Depth; ///< from the plot to its back
};

/// Places everything round the plot of a classical layout, legend included, and unites the whole with it. The
/// plot stays where it is.
void PlaceReadably(const FramePlan& plan, NamesBelow names, CartesianLayout& layout);

} // namespace millichart
