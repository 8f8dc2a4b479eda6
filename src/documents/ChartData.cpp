#include "documents/ChartData.h"

#include <algorithm>

namespace millichart {

std::size_t BarData::Components() const {
    std::size_t count = ComponentNames.size();
    for (const std::vector<double>& group : Values) {
        count = std::max(count, group.size());
    }
    return count;
}

} // namespace millichart
