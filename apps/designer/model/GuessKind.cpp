#include "documents/NewDocument.h"
#include "model/Editor.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace designer {
namespace {

constexpr std::size_t kManyRows = 30;
constexpr std::size_t kFewSlices = 8;

/// Percentages, maybe rounded, or parts of one.
bool AreShares(const std::vector<double>& values) {
    constexpr double kRounded = 0.005;
    const bool arePositive =
        std::all_of(values.begin(), values.end(), [](double value) { return value > 0.0; });
    const double total = std::accumulate(values.begin(), values.end(), 0.0);
    return arePositive && values.size() > 1 && values.size() <= kFewSlices &&
           (std::abs(total / 100.0 - 1.0) < kRounded || std::abs(total - 1.0) < kRounded);
}

const char* NameOfKind(const millichart::CurveData& data) {
    const std::size_t rows = data.Values.empty() ? 0 : data.Values.front().size();
    if (rows > kManyRows || (rows > 1 && data.Origin.Dates)) {
        return "curve";
    }
    return data.Values.size() == 1 && AreShares(data.Values.front()) ? "pie" : "histogram";
}

} // namespace

/// As lines they can be read whatever they are.
const millichart::ChartKind& GuessKind(const millichart::TableInput& table) {
    const millichart::ChartDocument lines =
        millichart::NewDocument(*millichart::FindChartKind("curve"), {table});
    const auto& content = std::get<millichart::CurveDocument>(lines.Content);
    return *millichart::FindChartKind(NameOfKind(content.Data));
}

} // namespace designer
