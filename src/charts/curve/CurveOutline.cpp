#include "charts/curve/CurveOutline.h"

#include "charts/curve/CurveMarker.h"
#include "penlode/engine/Finite.h"

#include <algorithm>
#include <limits>

namespace millichart {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

/// What lies around a point, in single precision, as most of a curve's points are only held against it.
struct Surrounding {
    float Left;
    float Top;
    float Right;
    float Bottom;

    Surrounding(PointD point, float reach)
        : Left(static_cast<float>(point.X) - reach), Top(static_cast<float>(point.Y) - reach),
          Right(static_cast<float>(point.X) + reach), Bottom(static_cast<float>(point.Y) + reach) {}

    bool MayMeet(PointF a, PointF b) const {
        return (a.X >= Left || b.X >= Left) && (a.X <= Right || b.X <= Right) && (a.Y >= Top || b.Y >= Top) &&
               (a.Y <= Bottom || b.Y <= Bottom);
    }
};

RectF MarkerAt(PointF at, float radius) {
    return {at.X - radius, at.Y - radius, 2.0F * radius, 2.0F * radius};
}

} // namespace

CurveOutline::CurveOutline(const CurveTrace& trace, const CurveStyle& style)
    : m_trace(trace), m_breaks(style.NullValue == CurveNullValueStyle::Break),
      m_halfWidth(std::max(style.Width, 0.0F) * 0.5F),
      m_markerRadius(CurveMarker(style).IsDrawn() ? std::max(style.DotWidth, 0.0F) * 0.5F : -1.0F) {}

bool CurveOutline::IsOnLine(const Place& place) const {
    return penlode::IsFinite(place.At) && !(m_breaks && m_trace.IsNull(place.Index));
}

bool CurveOutline::IsValue(const Place& place) const {
    return penlode::IsFinite(place.At) && !m_trace.IsNull(place.Index);
}

RectF CurveOutline::Box() const {
    PointF least{kInfinity, kInfinity};
    PointF most{-kInfinity, -kInfinity};
    m_trace.ForEach([&](std::size_t index, PointF point) {
        if (IsOnLine({index, point})) {
            least = {std::min(least.X, point.X), std::min(least.Y, point.Y)};
            most = {std::max(most.X, point.X), std::max(most.Y, point.Y)};
        }
    });
    return {least.X, least.Y, most.X - least.X, most.Y - least.Y};
}

double CurveOutline::DistanceToLine(const Place& from, const Place& to, PointD point) const {
    if (from.Index == to.Index || !IsOnLine(from) || !IsOnLine(to)) {
        return kFarAway;
    }
    return std::max(DistanceToSegment(point, from.At, to.At) - m_halfWidth, 0.0);
}

double CurveOutline::DistanceToMarker(const Place& place, PointD point) const {
    return m_markerRadius < 0.0F || !IsValue(place)
               ? kFarAway
               : DistanceToRect(point, MarkerAt(place.At, m_markerRadius));
}

double CurveOutline::Distance(PointD point, float reach) const {
    const Surrounding around(point, reach + std::max(m_halfWidth, m_markerRadius));
    double nearest = kFarAway;
    Place last{};
    m_trace.ForEach([&](std::size_t index, PointF at) {
        const Place next{index, at};
        last = index == 0 ? next : last;
        if (around.MayMeet(last.At, at)) {
            nearest = std::min({nearest, DistanceToLine(last, next, point), DistanceToMarker(next, point)});
        }
        last = next;
    });
    return nearest;
}

PlacedPart CurveOutline::At(const ChartPart& part, PointD point) const {
    const PointF from{static_cast<float>(point.X), static_cast<float>(point.Y)};
    float least = kInfinity;
    Place nearest{m_trace.Size(), {}};
    m_trace.ForEach([&](std::size_t index, PointF at) {
        const PointF way = at - from;
        const float square = way.X * way.X + way.Y * way.Y;
        if (square < least && IsValue({index, at})) {
            least = square;
            nearest = {index, at};
        }
    });
    if (nearest.Index == m_trace.Size()) {
        return {part, Box()};
    }
    return {{PartKind::CurvePoint, part.Index, nearest.Index, part.Part},
            MarkerAt(nearest.At, std::max(m_halfWidth, m_markerRadius))};
}

} // namespace millichart
