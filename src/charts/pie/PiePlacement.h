#pragma once

#include "charts/pie/PieLayout.h"
#include "charts/pie/PieProp.h"
#include "charts/pie/PieSlices.h"
#include "foundation/NumberFormat.h"

/// Where the circle of a pie or half pie and its labels stand.
namespace millichart {

/// What a circle and its labels are placed from.
struct PiePlan {
    penlode::PointF Center;
    float Diameter;
    float StartAngle;
    float TotalSweep; ///< kFullTurn or kHalfTurn
    const std::vector<double>& Values;
    const std::vector<std::string>& Names;
    const PieLabelProp& Label;
    const std::vector<penlode::PointF>& LabelOffsets; ///< the user's displacements; a missing one is (0, 0)
    NumberFormat Numbers;
};

/// `BasePieWidth` × total / `BaseValue`, or `FixedWidth` if `FixedSize` is non-zero. For a PieBasicProp or a
/// HalfPieBasicProp.
template <class Basic> float PieDiameter(const Basic& basic, const std::vector<double>& values) {
    return basic.FixedSize != 0 ? basic.FixedWidth
                                : static_cast<float>(basic.BasePieWidth * TotalOf(values) / basic.BaseValue);
}

/// Fills pie, label texts and label rectangles. False, and an empty pie at the centre, when there is nothing
/// to show.
bool PlacePie(const PiePlan& plan, PieLayout& layout);

} // namespace millichart
