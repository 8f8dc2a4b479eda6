#include "charts/curve/CurvePlacement.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

namespace millichart {
namespace {

template <class Time> struct Ends {
    Time First;
    Time Last;
};

template <class Time> bool IsTime(Time time) {
    if constexpr (std::is_floating_point_v<Time>) {
        return std::isfinite(time);
    } else {
        return true;
    }
}

/// Most times ascend, which is seen in fewer steps than it takes to find the least and the greatest.
template <class Time> std::optional<Ends<Time>> EndsOf(std::span<const Time> times) {
    unsigned descents = 0;
    for (std::size_t i = 1; i < times.size(); ++i) {
        descents |= static_cast<unsigned>(!(times[i - 1] <= times[i]));
    }
    if (times.empty()) {
        return std::nullopt;
    }
    if (descents == 0 && IsTime(times.front()) && IsTime(times.back())) {
        return Ends<Time>{times.front(), times.back()};
    }
    std::optional<Ends<Time>> ends;
    for (const Time time : times) {
        if (IsTime(time)) {
            ends = ends ? Ends<Time>{std::min(ends->First, time), std::max(ends->Last, time)}
                        : Ends<Time>{time, time};
        }
    }
    return ends;
}

template <class Time> TimeSpan SpanBetween(Time first, Time last) {
    if constexpr (std::is_floating_point_v<Time>) {
        return {first, last, 0, 0, false};
    } else {
        return {static_cast<double>(first), static_cast<double>(last), first, last, true};
    }
}

TimeSpan United(const TimeSpan& a, const TimeSpan& b) {
    return a.IsWhole && b.IsWhole
               ? SpanBetween(std::min(a.WholeMin, b.WholeMin), std::max(a.WholeMax, b.WholeMax))
               : SpanBetween(std::min(a.Min, b.Min), std::max(a.Max, b.Max));
}

} // namespace

std::size_t SizeOf(const CurveDataView& data) {
    return std::visit(
        [](const auto& values, const auto& times) { return std::min(values.size(), times.size()); },
        data.Values, data.Times);
}

TimeSpan TimeSpanOf(std::span<const CurveDataView> curves, const TimeSpan& previous) {
    std::optional<TimeSpan> span;
    for (const CurveDataView& curve : curves) {
        std::visit(
            [&span](const auto& times) {
                if (const auto ends = EndsOf(times)) {
                    const TimeSpan own = SpanBetween(ends->First, ends->Last);
                    span = span ? United(*span, own) : own;
                }
            },
            curve.Times);
    }
    return span.value_or(previous);
}

void CurveLine::Place(std::size_t first, std::span<penlode::PointF> points) const {
    constexpr float kNowhere = std::numeric_limits<float>::quiet_NaN();
    m_trace.Place(first, points);
    for (std::size_t i = 0; m_breaks && i < points.size(); ++i) {
        if (m_trace.IsNull(first + i)) {
            points[i] = {kNowhere, kNowhere};
        }
    }
}

bool CurveLine::Bound(std::size_t first, std::size_t count, penlode::PointBounds& bounds) const {
    return m_trace.Bound(first, count, bounds) || DataLine::Bound(first, count, bounds);
}

} // namespace millichart
