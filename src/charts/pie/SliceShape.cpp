#include "charts/pie/SliceShape.h"

#include "penlode/GraphicsPath.h"
#include "penlode/engine/Finite.h"

#include <algorithm>
#include <cmath>

namespace millichart {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

namespace {

double SweepOf(const PieSlice& slice) {
    return std::clamp(slice.SweepAngle, -kFullTurn, kFullTurn);
}

/// Points of an ellipse from one angle to a larger one, a degree apart; quarters of it are among them.
template <class Visit> void WalkRim(const RectF& ellipse, double from, double to, const Visit& visit) {
    visit(PointOnEllipse(ellipse, from));
    for (double angle = std::floor(from) + 1.0; angle < to; angle += 1.0) {
        visit(PointOnEllipse(ellipse, angle));
    }
    visit(PointOnEllipse(ellipse, to));
}

PointF Lowered(PointF point, float depth) {
    return {point.X, point.Y + depth};
}

} // namespace

bool CanBeSeen(const PieSlice& slice, const PieShapes& shapes) {
    const bool hasPlace = penlode::IsFinite(shapes.Face) && shapes.Face.Width > 0.0F &&
                          shapes.Face.Height > 0.0F && penlode::AreFinite(slice.StartAngle, slice.SweepAngle);
    return hasPlace && (shapes.Outline != nullptr || (slice.Fill && slice.SweepAngle != 0.0F));
}

bool SliceShape::IsInSector(PointD point) const {
    return IsInEllipse(m_shapes.Face, point) &&
           IsOnSweep(AngleSeen(m_shapes.Face, point), m_slice.StartAngle, SweepOf(m_slice));
}

/// A wall hangs from the front half of the rim, which has one point above any other.
bool SliceShape::IsOnWall(const PieWall& wall, PointD point) const {
    const RectF& face = m_shapes.Face;
    const double across = (point.X - face.X) / face.Width * 2.0 - 1.0;
    if (!(std::fabs(across) <= 1.0)) {
        return false;
    }
    const PointD rim{point.X, face.Y + face.Height * 0.5 * (1.0 + std::sqrt(1.0 - across * across))};
    const double angle = AngleSeen(face, rim);
    return angle >= wall.From && angle <= wall.To && point.Y >= rim.Y && point.Y <= rim.Y + m_shapes.Depth;
}

template <class Visit> void SliceShape::VisitOutline(const Visit& visit) const {
    const RectF& face = m_shapes.Face;
    const double sweep = SweepOf(m_slice);
    const double start = std::fmod(static_cast<double>(m_slice.StartAngle), static_cast<double>(kFullTurn));
    const PointF center = face.Center();
    PointF last = center;
    WalkRim(face, std::min(start, start + sweep), std::max(start, start + sweep), [&](PointF point) {
        visit(last, point);
        last = point;
    });
    visit(last, center);
    for (const PieWall& wall : m_slice.FrontWalls()) {
        std::optional<PointF> above;
        WalkRim(face, wall.From, wall.To, [&](PointF point) {
            if (above) {
                visit(Lowered(*above, m_shapes.Depth), Lowered(point, m_shapes.Depth));
            } else {
                visit(point, Lowered(point, m_shapes.Depth));
            }
            above = point;
        });
        visit(*above, Lowered(*above, m_shapes.Depth));
    }
}

RectF SliceShape::Box() const {
    const PointF center = m_shapes.Face.Center();
    PointF least = center;
    PointF most = center;
    const auto take = [&](PointF point) {
        least = {std::min(least.X, point.X), std::min(least.Y, point.Y)};
        most = {std::max(most.X, point.X), std::max(most.Y, point.Y)};
    };
    VisitOutline([&take](PointF from, PointF to) {
        take(from);
        take(to);
    });
    return {least.X, least.Y, most.X - least.X, most.Y - least.Y};
}

double SliceShape::Distance(PointD point, float reach) const {
    RectF all = m_shapes.Face;
    all.Height += m_shapes.Depth;
    if (!Holds(Grown(all, reach), point)) {
        return kFarAway;
    }
    const auto walls = m_slice.FrontWalls();
    if (IsInSector(point) ||
        std::any_of(walls.begin(), walls.end(), [&](const PieWall& wall) { return IsOnWall(wall, point); })) {
        return 0.0;
    }
    double nearest = kFarAway;
    VisitOutline(
        [&](PointF from, PointF to) { nearest = std::min(nearest, DistanceToSegment(point, from, to)); });
    return nearest;
}

} // namespace millichart
