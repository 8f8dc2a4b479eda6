#pragma once

#include "charts/cartesian/Coordinate.h"

namespace millichart {

/// A linear value axis. Before a range is set it has no ticks, and its values have no finite place.
class MILLICHART_API CNaturalCoordinate final : public CCoordinate {
public:
    using CCoordinate::GetRange;
    using CCoordinate::GetTickLabels;
    using CCoordinate::SetRange;

    /// From 0 to the first of 1, 2 ... 10 times a power of ten (1 or more) that is greater than `largest`:
    /// 37 gives 40 in steps of 10, 40 gives 50, 10 gives 20, anything below 1 gives 1. What is not finite is
    /// taken as 0.
    void AutoRange(double largest) override;

    void SetLength(float length) override { m_length = length; }

    void SetRange(double min, double max, double step, double minorStep) override;
    void GetRange(double& min, double& max, double& step, double& minorStep) const override;
    float ValueToPosition(double value) const override;
    void GetMajorTickPositions(std::vector<float>& positions) const override;
    /// From each major tick a, the places of a + k × minor step up to the next one or the range's end. The
    /// first falls on the major tick itself.
    void GetMinorTickPositions(std::vector<float>& positions) const override;

    void GetMajorTickValues(std::vector<double>& values) const override { values = m_ticks; }

    /// Without exact numbers: whole numbers if the largest tick is at least 1, else two decimals.
    void GetTickLabels(std::vector<std::string>& labels, const NumberFormat& numbers) const override;

    bool KeepsOrder() const override { return true; }

    std::unique_ptr<CCoordinate> Clone() const override {
        return std::make_unique<CNaturalCoordinate>(*this);
    }

    void ValuesToPositions(std::span<const double> values, std::span<float> positions) const override;

private:
    void RebuildTicks();

    double m_min = -1.0;
    double m_max = -1.0;
    double m_step = -1.0;
    double m_minorStep = -1.0;
    std::vector<double> m_ticks; ///< major, ascending
    double m_length = 0.0;
};

} // namespace millichart
