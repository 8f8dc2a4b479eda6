#include "charts/cartesian/ValueAxis.h"

#include "foundation/LogarithmCoordinate.h"
#include "foundation/NaturalCoordinate.h"

#include <limits>

namespace millichart {

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

float ValueAxis::ValueToPosition(double value) const {
    return m_axis == nullptr ? std::numeric_limits<float>::quiet_NaN() : m_axis->ValueToPosition(value);
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

std::vector<std::string> ValueAxis::TickLabels() const {
    std::vector<std::string> labels;
    if (m_axis != nullptr) {
        m_axis->GetTickLabels(labels);
    }
    return labels;
}

} // namespace millichart
