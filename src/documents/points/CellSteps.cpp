#include "documents/points/CellSteps.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace millichart::documents {
namespace {

/// Fewer times than this in a cell are not worth telling them apart from others.
constexpr std::int64_t kFewTimes = 16;
/// Cells that begin nowhere near where they should, such as a surface's own ends, are not so many.
constexpr std::size_t kMostOdd = 8;

/// Some cells are one time wide, where nobody knows on which side of a column's edge that time lies. Three
/// quarters of the widths are no wider than this one.
double UsualWidth(std::span<const std::int32_t> starts) {
    std::vector<double> widths;
    for (std::size_t i = 1; i < starts.size(); ++i) {
        widths.push_back(static_cast<double>(starts[i]) - static_cast<double>(starts[i - 1]));
    }
    const auto usual = widths.begin() + static_cast<std::ptrdiff_t>(widths.size() * 3 / 4);
    std::nth_element(widths.begin(), usual, widths.end());
    return *usual;
}

double Step(const CellSteps& steps, std::int64_t time) {
    return (static_cast<double>(time) - steps.Base) * steps.Scale + steps.Shift;
}

/// The straight line that is nearest to whole numbers, as many as there are usual widths up to each start.
void Fit(CellSteps& steps, std::span<const std::int32_t> starts) {
    const double usual = UsualWidth(starts);
    double sumX = 0.0;
    double sumY = 0.0;
    double sumXX = 0.0;
    double sumXY = 0.0;
    double count = 0.0;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        count +=
            i == 0
                ? 0.0
                : std::round((static_cast<double>(starts[i]) - static_cast<double>(starts[i - 1])) / usual);
        const double x = (static_cast<double>(starts[i]) - steps.Base) / usual;
        sumX += x;
        sumY += count;
        sumXX += x * x;
        sumXY += x * count;
    }
    const auto n = static_cast<double>(starts.size());
    const double slope = (n * sumXY - sumX * sumY) / (n * sumXX - sumX * sumX);
    steps.Scale = slope / usual;
    steps.Shift = (sumY - slope * sumX) / n;
}

/// Far more than what two ways of rounding differ by, and two times at least.
double Margin(const CellSteps& steps) {
    return std::max(2.0 * steps.Scale, 1e-9);
}

void TakeBracket(CellSteps& steps, std::span<const std::int32_t> starts) {
    std::vector<double> distances;
    for (const std::int32_t start : starts) {
        const double step = Step(steps, start);
        distances.push_back(std::abs(step - std::round(step)));
    }
    std::sort(distances.begin(), distances.end());
    const std::size_t odd = std::min(kMostOdd, distances.size() / 64);
    const double farthest = distances[distances.size() - 1 - odd];
    steps.Shift += farthest + Margin(steps);
    steps.Bracket = 2.0 * (farthest + Margin(steps));
}

void FindOdd(CellSteps& steps, std::span<const std::int32_t> starts) {
    const double margin = Margin(steps);
    for (const std::int32_t start : starts) {
        const double step = Step(steps, start);
        const double beyond = step - std::floor(step);
        // Rounding must not bring a time out of the bracket, either.
        if (beyond < margin / 2.0 || beyond > steps.Bracket - margin / 2.0) {
            steps.Odd.push_back(static_cast<std::int64_t>(std::floor(step - margin)));
            steps.Odd.push_back(static_cast<std::int64_t>(std::floor(step + margin)));
        }
    }
    std::sort(steps.Odd.begin(), steps.Odd.end());
    steps.Odd.erase(std::unique(steps.Odd.begin(), steps.Odd.end()), steps.Odd.end());
}

} // namespace

CellSteps StepsOf(std::span<const std::int32_t> starts, std::int64_t first, std::int64_t last) {
    CellSteps steps;
    const auto cells = static_cast<std::int64_t>(starts.size()) + 1;
    if (last - first < kFewTimes * cells) {
        steps.AreTimesAlone = true;
        return steps;
    }
    // With a single start there is no width; wherever it lies, times near it count one by one.
    steps.Base = starts.empty() ? static_cast<double>(first) : static_cast<double>(starts.front());
    if (starts.size() < 2) {
        steps.Scale = 1.0 / 8589934592.0; // no two times are a whole step apart
    } else {
        Fit(steps, starts);
    }
    steps.Shift += 1.0 - std::floor(Step(steps, first));
    if (!starts.empty()) {
        TakeBracket(steps, starts);
        FindOdd(steps, starts);
    }
    return steps;
}

} // namespace millichart::documents
