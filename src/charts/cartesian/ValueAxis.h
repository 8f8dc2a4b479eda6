#pragma once

#include "charts/cartesian/Coordinate.h"
#include "foundation/Export.h"

#include <memory>

namespace millichart {

/// The value axis that a bar or line chart holds. There is none until a scale is chosen; what needs one then
/// changes nothing and gives no ticks and no place. Copies share one axis: a range set on either is seen by
/// both, until one of them changes its scale.
class MILLICHART_API ValueAxis {
public:
    /// Takes a new axis of `length` mm if there is none of that scale yet. Tells whether it did; the axis
    /// then has no range.
    bool ChooseScale(bool logarithmic, float length);

    void AutoRange(double largest);
    void SetNaturalRange(double min, double max, double step, double minorStep);
    void GetNaturalRange(double& min, double& max, double& step, double& minorStep) const;
    void SetLogarithmRange(double min, double max);
    void GetLogarithmRange(double& min, double& max) const;

    /// The axis as it is now, which later changes leave alone; null without one.
    std::shared_ptr<const CCoordinate> Frozen() const;

    float ValueToPosition(double value) const;
    /// Of each value; `positions` is as long as `values`.
    void ValuesToPositions(std::span<const double> values, std::span<float> positions) const;
    std::vector<float> MajorTicks() const;
    std::vector<float> MinorTicks() const;
    /// The values at the major ticks.
    std::vector<double> MajorTickValues() const;
    std::vector<std::string> TickLabels(const NumberFormat& numbers) const;

private:
    std::shared_ptr<CCoordinate> m_axis;
};

} // namespace millichart
