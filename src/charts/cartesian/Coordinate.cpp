#include "charts/cartesian/Coordinate.h"

#include <algorithm>

namespace millichart {

void CCoordinate::ValuesToPositions(std::span<const double> values, std::span<float> positions) const {
    std::transform(values.begin(), values.end(), positions.begin(),
                   [this](double value) { return ValueToPosition(value); });
}

} // namespace millichart
