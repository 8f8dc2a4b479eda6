#include "documents/points/WholeSpans.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace millichart::documents {
namespace {

constexpr std::size_t kMostSpans = 100;

std::int64_t Between(const TimeSpan& before, const TimeSpan& after) {
    return static_cast<std::int64_t>(after.First) - before.Last - 1;
}

/// Joins neighbours with at most so many times between them.
std::vector<TimeSpan> Joined(const std::vector<TimeSpan>& spans, std::int64_t between) {
    std::vector<TimeSpan> joined;
    for (const TimeSpan& span : spans) {
        if (!joined.empty() && Between(joined.back(), span) <= between) {
            joined.back().Last = std::max(joined.back().Last, span.Last);
        } else {
            joined.push_back(span);
        }
    }
    return joined;
}

} // namespace

std::vector<TimeSpan> JoinedSpans(std::vector<TimeSpan> spans) {
    std::sort(spans.begin(), spans.end(),
              [](const TimeSpan& a, const TimeSpan& b) { return a.First < b.First; });
    spans = Joined(spans, 0);
    if (spans.size() <= kMostSpans) {
        return spans;
    }
    std::vector<std::int64_t> between;
    for (std::size_t i = 1; i < spans.size(); ++i) {
        between.push_back(Between(spans[i - 1], spans[i]));
    }
    const auto most = between.begin() + static_cast<std::ptrdiff_t>(between.size() - kMostSpans);
    std::nth_element(between.begin(), most, between.end());
    return Joined(spans, *most);
}

} // namespace millichart::documents
