#include "documents/ChartData.h"

#include <algorithm>
#include <cmath>

namespace millichart {

std::size_t BarData::Components() const {
    std::size_t count = ComponentNames.size();
    for (const std::vector<double>& group : Values) {
        count = std::max(count, group.size());
    }
    return count;
}

bool operator==(const BarData& a, const BarData& b) {
    const auto isSame = [](double x, double y) { return x == y || (std::isnan(x) && std::isnan(y)); };
    const auto areSame = [&isSame](const std::vector<double>& x, const std::vector<double>& y) {
        return std::equal(x.begin(), x.end(), y.begin(), y.end(), isSame);
    };
    return a.GroupNames == b.GroupNames && a.ComponentNames == b.ComponentNames && a.Origin == b.Origin &&
           std::equal(a.Values.begin(), a.Values.end(), b.Values.begin(), b.Values.end(), areSame);
}

} // namespace millichart
