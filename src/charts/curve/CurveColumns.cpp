#include "charts/curve/BasicCurve.h"
#include "charts/curve/CurvePlacement.h"
#include "penlode/DataLine.h"

#include <algorithm>
#include <cmath>
#include <limits>

/// Which of a line chart's times fall in one column of a surface.
namespace millichart {
namespace {

/// The first of the times from `first` on that stands at `place` or right of it; beyond `last` if none does.
std::int64_t FirstAt(float place, std::int64_t first, std::int64_t last, const TimeScale& across,
                     float shift) {
    std::int64_t end = last + 1;
    while (first < end) {
        const std::int64_t middle = first + (end - first) / 2;
        if (across.At(static_cast<std::int32_t>(middle)) + shift >= place) {
            end = middle;
        } else {
            first = middle + 1;
        }
    }
    return first;
}

} // namespace

/// A point exactly at a border may count to either column: it is one of its own.
std::vector<std::int32_t> CBasicCurve::DataColumns(const penlode::IGraphicsEngine& engine) const {
    std::vector<std::int32_t> starts;
    const auto* const surface = dynamic_cast<const penlode::IDataLineSurface*>(&engine);
    const bool isInRange =
        m_timeSpan.IsWhole && m_timeSpan.WholeMin >= INT32_MIN && m_timeSpan.WholeMax <= INT32_MAX;
    if (surface == nullptr || !isInRange || m_layout.Curves.empty()) {
        return starts;
    }
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const CurvePlacement& placement = m_layout.Curves.front().Placement();
    const float shift = placement.Shift.X;
    const TimeScale across(placement.Area, m_timeSpan);
    const float left = across.At(m_timeSpan.First()) + shift;
    const float right = across.At(m_timeSpan.Last()) + shift;
    std::int64_t time = m_timeSpan.WholeMin;
    for (const float place : surface->DataColumns(left, right)) {
        for (const float border : {place, std::nextafter(place, kInfinity)}) {
            time = FirstAt(border, time, m_timeSpan.WholeMax, across, shift);
            if (time <= m_timeSpan.WholeMax &&
                (starts.empty() ? time > m_timeSpan.WholeMin : time > starts.back())) {
                starts.push_back(static_cast<std::int32_t>(time));
            }
        }
    }
    return starts;
}

} // namespace millichart
