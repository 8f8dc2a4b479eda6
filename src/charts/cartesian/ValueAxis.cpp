#include "charts/cartesian/ValueAxis.h"

#include "charts/cartesian/LogarithmCoordinate.h"
#include "charts/cartesian/NaturalCoordinate.h"

#include <algorithm>
#include <limits>

namespace millichart {
namespace {

constexpr float kNowhere = std::numeric_limits<float>::quiet_NaN();

} // namespace

bool ValueAxis::ChooseScale(bool logarithmic, float length) {
    const bool isLogarithmic = dynamic_cast<const CLogarithmCoordinate*>(m_axis.get()) != nullptr;
    if (m_axis != nullptr && isLogarithmic == logarithmic) {
        return false;
    }
    if (logarithmic) {
        m_axis = std::make_shared<CLogarithmCoordinate>();
    } else {
        m_axis = std::make_shared<CNaturalCoordinate>();
    }
    m_axis->SetLength(length);
    return true;
}

void ValueAxis::AutoRange(double largest) {
    if (m_axis != nullptr) {
        m_axis->AutoRange(largest);
    }
}

void ValueAxis::SetNaturalRange(double min, double max, double step, double minorStep) {
    if (m_axis != nullptr) {
        m_axis->SetRange(min, max, step, minorStep);
    }
}

void ValueAxis::GetNaturalRange(double& min, double& max, double& step, double& minorStep) const {
    if (m_axis != nullptr) {
        m_axis->GetRange(min, max, step, minorStep);
    }
}

void ValueAxis::SetLogarithmRange(double min, double max) {
    if (m_axis != nullptr) {
        m_axis->SetRange(min, max);
    }
}

void ValueAxis::GetLogarithmRange(double& min, double& max) const {
    if (m_axis != nullptr) {
        m_axis->GetRange(min, max);
    }
}

std::shared_ptr<const CCoordinate> ValueAxis::Frozen() const {
    return m_axis == nullptr ? nullptr : m_axis->Clone();
}

float ValueAxis::ValueToPosition(double value) const {
    return m_axis == nullptr ? kNowhere : m_axis->ValueToPosition(value);
}

void ValueAxis::ValuesToPositions(std::span<const double> values, std::span<float> positions) const {
    if (m_axis != nullptr) {
        m_axis->ValuesToPositions(values, positions);
    } else {
        std::fill(positions.begin(), positions.end(), kNowhere);
    }
}

std::vector<float> ValueAxis::MajorTicks() const {
    std::vector<float> positions;
    if (m_axis != nullptr) {
        m_axis->GetMajorTickPositions(positions);
    }
    return positions;
}

std::vector<float> ValueAxis::MinorTicks() const {
    std::vector<float> positions;
    if (m_axis != nullptr) {
        m_axis->GetMinorTickPositions(positions);
    }
    return positions;
}

std::vector<double> ValueAxis::MajorTickValues() const {
    std::vector<double> values;
    if (m_axis != nullptr) {
        m_axis->GetMajorTickValues(values);
    }
    return values;
}

std::vector<std::string> ValueAxis::TickLabels(const NumberFormat& numbers) const {
    std::vector<std::string> labels;
    if (m_axis != nullptr) {
        m_axis->GetTickLabels(labels, numbers);
    }
    return labels;
}

} // namespace millichart
