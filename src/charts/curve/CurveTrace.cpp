#include "charts/curve/CurveTrace.h"

#include "charts/curve/CurvePlacement.h"
#include "charts/curve/CurveProp.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <mutex>
#include <numeric>
#include <type_traits>
#include <utility>

namespace millichart {

using penlode::PointF;

namespace {

constexpr std::size_t kBlock = penlode::DataLine::kBlock;
constexpr double kLeast = INT32_MIN;
constexpr double kMost = INT32_MAX;

std::int32_t Clamped(std::int64_t time) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(time, INT32_MIN, INT32_MAX));
}

template <class Number> struct Extremes {
    Number Least;
    Number Most;
};

constexpr std::size_t kLanes = kBlock / 4;

template <class Number> Number Lesser(Number a, Number b) {
    return a < b ? a : b;
}

template <class Number> Number Greater(Number a, Number b) {
    return a > b ? a : b;
}

/// The least and the most of two halves of the lanes, and so on down to one.
template <std::size_t Half, class Number>
void Fold(std::array<Number, kLanes>& least, std::array<Number, kLanes>& most) {
    for (std::size_t k = 0; k < Half; ++k) {
        least[k] = Lesser(least[k], least[k + Half]);
        most[k] = Greater(most[k], most[k + Half]);
    }
    if constexpr (Half > 1) {
        Fold<Half / 2>(least, most);
    }
}

/// Of a whole block; may be false only if one is not finite, or so great that their sum is not. Numbers are
/// looked at in lanes that do not depend on each other, where one running minimum would be a chain.
template <class Number> bool FindExtremes(const Number* list, Extremes<Number>& found) {
    const Number* const second = list + kLanes;
    const Number* const third = second + kLanes;
    const Number* const fourth = third + kLanes;
    std::array<Number, kLanes> least;
    std::array<Number, kLanes> most;
    for (std::size_t k = 0; k < kLanes; ++k) {
        least[k] = Lesser(Lesser(list[k], second[k]), Lesser(third[k], fourth[k]));
    }
    for (std::size_t k = 0; k < kLanes; ++k) {
        most[k] = Greater(Greater(list[k], second[k]), Greater(third[k], fourth[k]));
    }
    Fold<kLanes / 2>(least, most);
    found = {least[0], most[0]};
    if constexpr (std::is_floating_point_v<Number>) {
        // Comparisons pass over what is no number.
        std::array<Number, kLanes> sums;
        for (std::size_t k = 0; k < kLanes; ++k) {
            sums[k] = (list[k] + second[k]) + (third[k] + fourth[k]);
        }
        return std::isfinite(std::accumulate(sums.begin(), sums.end(), Number{0}));
    }
    return true;
}

/// Times ascend, mostly.
template <class Time> bool Ascend(const Time* times, std::size_t count) {
    unsigned descents = 0;
    for (std::size_t i = 1; i < count; ++i) {
        descents |= static_cast<unsigned>(!(times[i - 1] <= times[i]));
    }
    return descents == 0;
}

/// Calls `use` with both lists.
template <class Use> decltype(auto) WithLists(const CurveDataView& data, const Use& use) {
    return std::visit([&use](const auto& values, const auto& times) { return use(values, times); },
                      data.Values, data.Times);
}

void PositionsOf(const CCoordinate* axis, std::span<const double> values, std::span<float> distances) {
    if (axis != nullptr) {
        axis->ValuesToPositions(values, distances);
    } else {
        std::fill(distances.begin(), distances.end(), std::numeric_limits<float>::quiet_NaN());
    }
}

/// How far up from the plot's bottom the values are, at most a block of them. A null value stands at 0.
template <class Value>
void DistancesOf(std::span<const Value> values, const CCoordinate* axis, std::span<float> distances) {
    // Counting to the end is faster than looking for the first.
    const auto nulls =
        std::count_if(values.begin(), values.end(), [](Value value) { return IsCurveNull(value); });
    if constexpr (std::is_same_v<Value, double>) {
        if (nulls == 0) {
            PositionsOf(axis, values, distances);
            return;
        }
    }
    std::array<double, kBlock> placed;
    for (std::size_t i = 0; i < values.size(); ++i) {
        placed[i] = IsCurveNull(values[i]) ? 0.0 : static_cast<double>(values[i]);
    }
    PositionsOf(axis, std::span(placed).first(values.size()), distances);
}

template <class Value, class Time>
void PlaceBlock(std::span<const Value> values, std::span<const Time> times, const CurvePlacement& placement,
                std::span<PointF> points) {
    std::array<float, kBlock> distances;
    DistancesOf(values, placement.Values.get(), std::span(distances).first(values.size()));
    const TimeScale across(placement.Area, placement.Times);
    const float bottom = placement.Area.Y + placement.Area.Height;
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {across.At(times[i]), bottom - distances[i]};
    }
    if (placement.Shift != PointF{}) {
        for (PointF& point : points) {
            point = point + placement.Shift;
        }
    }
}

/// Of a whole block, from the least and the greatest of its values and times alone, as an axis that keeps
/// their order places the others between them.
template <class Value, class Time>
bool BoundBlock(const Value* values, const Time* times, const CurvePlacement& placement,
                penlode::PointBounds& bounds) {
    Extremes<Value> value;
    Extremes<Time> time{times[0], times[kBlock - 1]};
    if (!FindExtremes(values, value) || IsCurveNull(value.Least)) {
        return false;
    }
    if (!Ascend(times, kBlock) && !FindExtremes(times, time)) {
        return false;
    }
    std::array<PointF, 2> corners;
    PlaceBlock<Value, Time>(std::array{value.Least, value.Most}, std::array{time.Least, time.Most}, placement,
                            corners);
    bounds = {std::min(corners[0].X, corners[1].X), std::max(corners[0].X, corners[1].X),
              std::min(corners[0].Y, corners[1].Y), std::max(corners[0].Y, corners[1].Y)};
    return std::isfinite(bounds.Left) && std::isfinite(bounds.Right) && std::isfinite(bounds.Low) &&
           std::isfinite(bounds.High);
}

} // namespace

struct CurveTrace::Lists {
    std::once_flag PointsOnce;
    std::vector<PointF> Points;
    std::once_flag FlagsOnce;
    std::vector<bool> NullFlags;
};

std::int32_t TimeSpan::First() const {
    return IsWhole ? Clamped(WholeMin) : static_cast<std::int32_t>(std::clamp(std::ceil(Min), kLeast, kMost));
}

std::int32_t TimeSpan::Last() const {
    return IsWhole ? Clamped(WholeMax)
                   : static_cast<std::int32_t>(std::clamp(std::floor(Max), kLeast, kMost));
}

CurveTrace::CurveTrace() : m_lists(std::make_shared<Lists>()) {}

CurveTrace::CurveTrace(const CurveDataView& data, CurvePlacement placement, std::shared_ptr<const void> owner)
    : m_data(data), m_placement(std::move(placement)), m_owner(std::move(owner)), m_size(SizeOf(data)),
      m_lists(std::make_shared<Lists>()) {}

void CurveTrace::Move(PointF by) {
    m_placement.Shift = by;
    m_lists = std::make_shared<Lists>();
}

const std::vector<PointF>& CurveTrace::Points() const {
    std::call_once(m_lists->PointsOnce, [this] {
        m_lists->Points.resize(m_size);
        for (std::size_t first = 0; first < m_size; first += kBlock) {
            Place(first, std::span(m_lists->Points).subspan(first, std::min(kBlock, m_size - first)));
        }
    });
    return m_lists->Points;
}

const std::vector<bool>& CurveTrace::NullFlags() const {
    std::call_once(m_lists->FlagsOnce, [this] {
        m_lists->NullFlags.resize(m_size);
        for (std::size_t i = 0; i < m_size; ++i) {
            m_lists->NullFlags[i] = IsNull(i);
        }
    });
    return m_lists->NullFlags;
}

bool CurveTrace::HasNull() const {
    return std::visit(
        [this](const auto& values) {
            return std::any_of(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(m_size),
                               [](auto value) { return IsCurveNull(value); });
        },
        m_data.Values);
}

bool CurveTrace::IsNull(std::size_t index) const {
    return std::visit([index](const auto& values) { return IsCurveNull(values[index]); }, m_data.Values);
}

void CurveTrace::Place(std::size_t first, std::span<PointF> points, bool nullsAreGaps) const {
    constexpr float kNowhere = std::numeric_limits<float>::quiet_NaN();
    WithLists(m_data, [&](const auto& values, const auto& times) {
        for (std::size_t done = 0; done < points.size(); done += kBlock) {
            const std::size_t count = std::min(kBlock, points.size() - done);
            PlaceBlock(values.subspan(first + done, count), times.subspan(first + done, count), m_placement,
                       points.subspan(done, count));
        }
        for (std::size_t i = 0; nullsAreGaps && i < points.size(); ++i) {
            if (IsCurveNull(values[first + i])) {
                points[i] = {kNowhere, kNowhere};
            }
        }
    });
}

bool CurveTrace::Bound(std::size_t first, std::size_t count, penlode::PointBounds& bounds) const {
    const CCoordinate* const axis = m_placement.Values.get();
    return count == kBlock && axis != nullptr && axis->KeepsOrder() &&
           WithLists(m_data, [&](const auto& values, const auto& times) {
               return BoundBlock(values.data() + first, times.data() + first, m_placement, bounds);
           });
}

} // namespace millichart
