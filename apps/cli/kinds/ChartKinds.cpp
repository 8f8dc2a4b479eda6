#include "kinds/Chart.h"
#include "kinds/CurveChart.h"
#include "kinds/HalfPieChart.h"
#include "kinds/HalfPieHalfPieChart.h"
#include "kinds/HalfPieHistogramChart.h"
#include "kinds/HistogramChart.h"
#include "kinds/PieChart.h"

#include <algorithm>

namespace cli {
namespace {

constexpr ChartKind kKinds[] = {kPieKind,       kHalfPieKind, kHalfPieHalfPieKind, kHalfPieHistogramKind,
                                kHistogramKind, kCurveKind};

} // namespace

std::span<const ChartKind> ChartKinds() {
    return kKinds;
}

const ChartKind* FindChartKind(const std::string& name) {
    const auto found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                    [&name](const ChartKind& kind) { return kind.Name == name; });
    return found == std::end(kKinds) ? nullptr : found;
}

std::string ChartKindNames() {
    std::string names;
    for (const ChartKind& kind : kKinds) {
        names += (names.empty() ? "\"" : ", \"") + std::string(kind.Name) + "\"";
    }
    return names;
}

} // namespace cli
