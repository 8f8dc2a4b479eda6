#include "charts/curve/CurvePlacement.h"

#include "charts/curve/CurveProp.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace millichart {

using penlode::PointF;

namespace {

/// Values are placed so many at a time: what is known of them on the way then stays in the processor's
/// nearest memory, the list of points is neither read nor filled first, and the processor fetches the next
/// values while it still computes with the last.
constexpr std::size_t kRun = 64;

/// How far up from the plot's bottom the values are. `first` is the index of the first of them.
void TakeDistances(std::span<const double> values, std::size_t first, const ValueAxis& axis,
                   std::span<float> distances, CurveTrace& curve) {
    // Counting to the end is faster than looking for the first.
    if (std::count_if(values.begin(), values.end(), IsCurveNull) == 0) {
        axis.ValuesToPositions(values, distances);
        return;
    }
    curve.HasNull = true;
    std::array<double, kRun> placed;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool isNull = IsCurveNull(values[i]);
        curve.NullFlags[first + i] = isNull;
        placed[i] = isNull ? 0.0 : values[i];
    }
    axis.ValuesToPositions(std::span(placed).first(values.size()), distances);
}

/// Points at the times, `distances` up from the plot's bottom.
void TakePoints(std::span<const std::int32_t> times, std::span<const float> distances,
                const CurveScales& scales, std::span<PointF> points, CurveTrace& curve) {
    const TimeScale across(scales.Area, scales.Times);
    const float bottom = scales.Area.Y + scales.Area.Height;
    unsigned unplaced = std::isfinite(across.At(scales.Times.Max)) ? 0 : 1;
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {across.At(times[i]), bottom - distances[i]};
    }
    for (const float distance : distances) {
        unplaced |= std::isfinite(bottom - distance) ? 0U : 1U;
    }
    curve.HasUnplaced |= unplaced != 0;
}

/// Most times ascend, which is seen in fewer steps than it takes to find the least and the greatest.
TimeSpan TimeSpanOf(std::span<const std::int32_t> times) {
    unsigned descents = 0;
    for (std::size_t i = 1; i < times.size(); ++i) {
        descents |= static_cast<unsigned>(times[i] < times[i - 1]);
    }
    if (descents == 0) {
        return {times.front(), times.back()};
    }
    const auto [least, greatest] = std::minmax_element(times.begin(), times.end());
    return {*least, *greatest};
}

/// The list as long as it was, but no longer than `size`, with room for so many and not for very many more.
void MakeRoom(std::vector<PointF>& points, std::size_t size) {
    if (points.capacity() < size || points.capacity() / 2 > size) {
        points = {};
    }
    points.reserve(size);
    points.resize(std::min(points.size(), size));
}

} // namespace

TimeSpan TimeSpanOf(std::span<const std::vector<std::int32_t>> curves, TimeSpan previous) {
    TimeSpan span = previous;
    bool isFirst = true;
    for (const std::vector<std::int32_t>& times : curves) {
        if (isFirst && !times.empty()) {
            span = {times.front(), times.front()};
            isFirst = false;
        }
        if (!times.empty()) {
            const TimeSpan own = TimeSpanOf(times);
            span = {std::min(span.Min, own.Min), std::max(span.Max, own.Max)};
        }
    }
    return span;
}

void PlaceCurve(std::span<const double> values, std::span<const std::int32_t> times,
                const CurveScales& scales, CurveTrace& curve) {
    MakeRoom(curve.Points, values.size());
    curve.NullFlags.assign(values.size(), false);
    curve.HasNull = false;
    curve.HasUnplaced = false;
    std::array<float, kRun> distances;
    for (std::size_t first = 0; first < values.size(); first += kRun) {
        const std::size_t count = std::min(kRun, values.size() - first);
        const std::span run = std::span(distances).first(count);
        TakeDistances(values.subspan(first, count), first, scales.Values, run, curve);
        curve.Points.resize(std::max(curve.Points.size(), first + count));
        TakePoints(times.subspan(first, count), run, scales, std::span(curve.Points).subspan(first, count),
                   curve);
    }
}

} // namespace millichart
