#pragma once

#include "charts/cartesian/Coordinate.h"

namespace millichart {

/// A value axis of powers of ten. Both ends of its range must be above 0, or it has no ticks and its values
/// have no finite place.
class MILLICHART_API CLogarithmCoordinate final : public CCoordinate {
public:
    using CCoordinate::GetRange;
    using CCoordinate::GetTickLabels;
    using CCoordinate::SetRange;

    /// Up to the power of ten above `largest` (5000 gives 10000, 10 gives 100; below 1, the power at or above
    /// it) from two decades below that, but not from above 1. What is not above 0 or not finite is taken as
    /// 1.
    void AutoRange(double largest) override;

    void SetLength(float length) override { m_length = length; }

    void SetRange(double min, double max) override;
    void GetRange(double& min, double& max) const override;
    float ValueToPosition(double value) const override;
    /// The range's lower end and its multiples by 10.
    void GetMajorTickPositions(std::vector<float>& positions) const override;
    /// The multiples of each major tick up to the next; the first falls on the major tick itself.
    void GetMinorTickPositions(std::vector<float>& positions) const override;

    void GetMajorTickValues(std::vector<double>& values) const override { values = m_ticks; }

    /// Without exact numbers: each with the decimals that its power of ten needs: 0.001, 100.
    void GetTickLabels(std::vector<std::string>& labels, const NumberFormat& numbers) const override;

    std::unique_ptr<CCoordinate> Clone() const override {
        return std::make_unique<CLogarithmCoordinate>(*this);
    }

    void ValuesToPositions(std::span<const double> values, std::span<float> positions) const override;

private:
    void RebuildTicks();

    double m_min = -1.0;
    double m_max = -1.0;
    std::vector<double> m_ticks; ///< major, ascending
    double m_length = 0.0;
};

} // namespace millichart
