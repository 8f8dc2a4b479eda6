#include "charts/cartesian/LogarithmCoordinate.h"

#include "charts/cartesian/PowerOfTen.h"

#include <algorithm>
#include <cmath>

namespace millichart {
namespace {

constexpr double kBase = 10.0;
constexpr double kDecadesShown = 100.0;

/// The power of ten above a value of 1 or more: 9.99 gives 10, and 10 gives 100.
double DecadeAbove(double value) {
    int divisions = 0;
    for (double rest = value; rest >= 1.0; rest /= kBase) {
        ++divisions;
    }
    return PowerOfTen(divisions);
}

/// The power of ten at or above a value between 0 and 1.
double DecadeAtOrAbove(double value) {
    int exponent = 0;
    while (PowerOfTen(exponent - 1) >= value) {
        --exponent;
    }
    return PowerOfTen(exponent);
}

} // namespace

void CLogarithmCoordinate::AutoRange(double largest) {
    const double value = std::isfinite(largest) && largest > 0.0 ? largest : 1.0;
    const double max = value >= 1.0 ? DecadeAbove(value) : DecadeAtOrAbove(value);
    SetRange(std::min(max / kDecadesShown, 1.0), max);
}

void CLogarithmCoordinate::SetRange(double min, double max) {
    m_min = min;
    m_max = max;
    RebuildTicks();
}

void CLogarithmCoordinate::GetRange(double& min, double& max) const {
    min = m_min;
    max = m_max;
}

void CLogarithmCoordinate::RebuildTicks() {
    m_ticks.clear();
    if (m_min > 0.0 && std::isfinite(m_max)) {
        for (double value = m_min; value <= m_max; value *= kBase) {
            m_ticks.push_back(value);
        }
    }
}

float CLogarithmCoordinate::ValueToPosition(double value) const {
    float position = 0.0F;
    ValuesToPositions({&value, 1}, {&position, 1});
    return position;
}

void CLogarithmCoordinate::ValuesToPositions(std::span<const double> values,
                                             std::span<float> positions) const {
    const double start = std::log10(m_min);
    const double decades = std::log10(m_max) - start;
    std::transform(values.begin(), values.end(), positions.begin(), [&](double value) {
        return static_cast<float>((std::log10(value) - start) * m_length / decades);
    });
}

void CLogarithmCoordinate::GetMajorTickPositions(std::vector<float>& positions) const {
    positions.clear();
    for (const double tick : m_ticks) {
        positions.push_back(ValueToPosition(tick));
    }
}

void CLogarithmCoordinate::GetMinorTickPositions(std::vector<float>& positions) const {
    positions.clear();
    for (std::size_t i = 0; i + 1 < m_ticks.size(); ++i) {
        for (double value = m_ticks[i]; value < m_ticks[i + 1]; value += m_ticks[i]) {
            positions.push_back(ValueToPosition(value));
        }
    }
}

void CLogarithmCoordinate::GetTickLabels(std::vector<std::string>& labels,
                                         const NumberFormat& numbers) const {
    labels = numbers.DecadeLabels(m_ticks);
}

} // namespace millichart
