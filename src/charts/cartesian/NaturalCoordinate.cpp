#include "charts/cartesian/NaturalCoordinate.h"

#include <algorithm>
#include <cmath>

namespace millichart {
namespace {

struct RoundMaximum {
    double Value;
    double Power; ///< of ten, at which it was found
};

RoundMaximum RoundAbove(double value) {
    for (double power = 1.0;; power *= 10.0) {
        for (int digit = 1; digit <= 10; ++digit) {
            if (digit * power > value) {
                return {digit * power, power};
            }
        }
    }
}

/// A value's place, in a form that is made inline in the loops over many.
float PlaceOf(double value, double min, double max, double length) {
    return static_cast<float>((value - min) * length / (max - min));
}

bool IsStep(double step) {
    return std::isfinite(step) && step > 0.0;
}

} // namespace

void CNaturalCoordinate::AutoRange(double largest) {
    const RoundMaximum maximum = RoundAbove(std::isfinite(largest) ? largest : 0.0);
    SetRange(0.0, maximum.Value, maximum.Power, maximum.Power / 10.0);
}

void CNaturalCoordinate::SetRange(double min, double max, double step, double minorStep) {
    m_min = min;
    m_max = max;
    m_step = step;
    m_minorStep = minorStep;
    RebuildTicks();
}

void CNaturalCoordinate::GetRange(double& min, double& max, double& step, double& minorStep) const {
    min = m_min;
    max = m_max;
    step = m_step;
    minorStep = m_minorStep;
}

/// By repeated addition, so that rounding drops or keeps the last tick as everywhere else a range is walked.
void CNaturalCoordinate::RebuildTicks() {
    m_ticks.clear();
    if (!IsStep(m_step) || !std::isfinite(m_min) || !std::isfinite(m_max)) {
        return;
    }
    for (double value = m_min; value <= m_max; value += m_step) {
        if (m_ticks.size() == kMaxTicks) {
            m_ticks.clear();
            return;
        }
        m_ticks.push_back(value);
    }
}

float CNaturalCoordinate::ValueToPosition(double value) const {
    return PlaceOf(value, m_min, m_max, m_length);
}

void CNaturalCoordinate::GetMajorTickPositions(std::vector<float>& positions) const {
    positions.clear();
    for (const double tick : m_ticks) {
        positions.push_back(ValueToPosition(tick));
    }
}

void CNaturalCoordinate::GetMinorTickPositions(std::vector<float>& positions) const {
    positions.clear();
    if (!IsStep(m_minorStep)) {
        return;
    }
    for (std::size_t i = 0; i < m_ticks.size(); ++i) {
        const double end = i + 1 < m_ticks.size() ? m_ticks[i + 1] : m_max;
        // Multiplied, so that ten steps of 0.1 make no eleventh mark.
        for (double k = 0.0; m_ticks[i] + k * m_minorStep < end; k += 1.0) {
            if (positions.size() == kMaxTicks) {
                positions.clear();
                return;
            }
            positions.push_back(ValueToPosition(m_ticks[i] + k * m_minorStep));
        }
    }
}

void CNaturalCoordinate::GetTickLabels(std::vector<std::string>& labels, const NumberFormat& numbers) const {
    labels = numbers.StepLabels(m_ticks, m_step);
}

void CNaturalCoordinate::ValuesToPositions(std::span<const double> values, std::span<float> positions) const {
    std::transform(values.begin(), values.end(), positions.begin(),
                   [min = m_min, max = m_max, length = m_length](double value) {
                       return PlaceOf(value, min, max, length);
                   });
}

} // namespace millichart
