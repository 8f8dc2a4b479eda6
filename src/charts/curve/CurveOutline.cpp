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

} // namespace

CurveOutline::CurveOutline(const CurveTrace& trace, const CurveStyle& style)
    : m_trace(trace), m_breaks(style.NullValue == CurveNullValueStyle::Break),
      m_halfWidth(std::max(style.Width, 0.0F) * 0.5F),
      m_markerRadius(CurveMarker(style).IsDrawn() ? std::max(style.DotWidth, 0.0F) * 0.5F : -1.0F) {}

bool CurveOutline::HasPlace(std::size_t index) const {
    return !m_trace.HasUnplaced || penlode::IsFinite(m_trace.Points[index]);
}

RectF CurveOutline::Box() const {
    PointF least{kInfinity, kInfinity};
    PointF most{-kInfinity, -kInfinity};
    for (std::size_t i = 0; i < m_trace.Points.size(); ++i) {
        if (IsOnLine(i)) {
            const PointF point = m_trace.Points[i];
            least = {std::min(least.X, point.X), std::min(least.Y, point.Y)};
            most = {std::max(most.X, point.X), std::max(most.Y, point.Y)};
        }
    }
    return {least.X, least.Y, most.X - least.X, most.Y - least.Y};
}

double CurveOutline::DistanceToLineBefore(std::size_t index, PointD point) const {
    if (index == 0 || !IsOnLine(index - 1) || !IsOnLine(index)) {
        return kFarAway;
    }
    const double distance = DistanceToSegment(point, m_trace.Points[index - 1], m_trace.Points[index]);
    return std::max(distance - m_halfWidth, 0.0);
}

double CurveOutline::DistanceToMarker(std::size_t index, PointD point) const {
    return m_markerRadius < 0.0F || !IsValue(index) ? kFarAway
                                                    : DistanceToRect(point, MarkerAt(index, m_markerRadius));
}

double CurveOutline::Distance(PointD point, float reach) const {
    const Surrounding around(point, reach + std::max(m_halfWidth, m_markerRadius));
    double nearest = kFarAway;
    PointF last = m_trace.Points.empty() ? PointF{} : m_trace.Points.front();
    for (std::size_t i = 0; i < m_trace.Points.size(); ++i) {
        const PointF next = m_trace.Points[i];
        if (around.MayMeet(last, next)) {
            nearest = std::min({nearest, DistanceToLineBefore(i, point), DistanceToMarker(i, point)});
        }
        last = next;
    }
    return nearest;
}

RectF CurveOutline::MarkerAt(std::size_t index, float radius) const {
    const PointF at = m_trace.Points[index];
    return {at.X - radius, at.Y - radius, 2.0F * radius, 2.0F * radius};
}

PlacedPart CurveOutline::At(const ChartPart& part, PointD point) const {
    const PointF from{static_cast<float>(point.X), static_cast<float>(point.Y)};
    float least = kInfinity;
    std::size_t nearest = m_trace.Points.size();
    for (std::size_t i = 0; i < m_trace.Points.size(); ++i) {
        const PointF way = m_trace.Points[i] - from;
        const float square = way.X * way.X + way.Y * way.Y;
        if (square < least && IsValue(i)) {
            least = square;
            nearest = i;
        }
    }
    if (nearest == m_trace.Points.size()) {
        return {part, Box()};
    }
    return {{PartKind::CurvePoint, part.Index, nearest, part.Part},
            MarkerAt(nearest, std::max(m_halfWidth, m_markerRadius))};
}

} // namespace millichart
