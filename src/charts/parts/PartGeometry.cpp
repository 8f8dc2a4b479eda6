#include "charts/parts/PartGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace millichart {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

namespace {

constexpr double kFullCircle = 360.0;
constexpr double kRadian = kFullCircle / (2.0 * std::numbers::pi);

double KnownOrFar(double distance) {
    return distance <= kFarAway ? distance : kFarAway;
}

/// Which side of the line through both the point is on.
double SideOf(PointD point, PointF from, PointF to) {
    const double dx = static_cast<double>(to.X) - from.X;
    const double dy = static_cast<double>(to.Y) - from.Y;
    return dx * (point.Y - from.Y) - dy * (point.X - from.X);
}

/// A quad without area holds nothing.
bool Holds(const Quad& corners, PointD point) {
    std::size_t left = 0;
    std::size_t right = 0;
    bool hasArea = false;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PointF from = corners[i];
        const PointF to = corners[(i + 1) % corners.size()];
        const double side = SideOf(point, from, to);
        left += side >= 0.0 ? 1 : 0;
        right += side <= 0.0 ? 1 : 0;
        const PointF next = corners[(i + 2) % corners.size()];
        hasArea = hasArea || SideOf({next.X, next.Y}, from, to) != 0.0;
    }
    return hasArea && (left == corners.size() || right == corners.size());
}

} // namespace

RectF Upright(const RectF& rect) {
    return {std::min(rect.X, rect.Right()), std::min(rect.Y, rect.Bottom()), std::fabs(rect.Width),
            std::fabs(rect.Height)};
}

RectF Grown(const RectF& rect, float by) {
    return {rect.X - by, rect.Y - by, rect.Width + 2.0F * by, rect.Height + 2.0F * by};
}

bool Holds(const RectF& rect, PointD point) {
    return point.X >= rect.X && point.X <= rect.Right() && point.Y >= rect.Y && point.Y <= rect.Bottom();
}

double DistanceToRect(PointD point, const RectF& rect) {
    const double beside = std::max({rect.X - point.X, point.X - rect.Right(), 0.0});
    const double above = std::max({rect.Y - point.Y, point.Y - rect.Bottom(), 0.0});
    return KnownOrFar(std::hypot(beside, above));
}

double DistanceToSegment(PointD point, PointF from, PointF to) {
    const double dx = static_cast<double>(to.X) - from.X;
    const double dy = static_cast<double>(to.Y) - from.Y;
    const double square = dx * dx + dy * dy;
    const double along = (point.X - from.X) * dx + (point.Y - from.Y) * dy;
    const double part = square > 0.0 ? std::clamp(along / square, 0.0, 1.0) : 0.0;
    return KnownOrFar(std::hypot(point.X - from.X - part * dx, point.Y - from.Y - part * dy));
}

double DistanceToQuad(PointD point, const Quad& corners) {
    if (Holds(corners, point)) {
        return 0.0;
    }
    double nearest = kFarAway;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        nearest = std::min(nearest, DistanceToSegment(point, corners[i], corners[(i + 1) % corners.size()]));
    }
    return nearest;
}

bool IsOnSweep(double angle, double start, double sweep) {
    const double first = sweep < 0.0 ? start + sweep : start;
    const double way = std::fmod(angle - first, kFullCircle);
    return (way < 0.0 ? way + kFullCircle : way) <= std::fabs(sweep);
}

double AngleSeen(const RectF& ellipse, PointD point) {
    const double angle = std::atan2(point.Y - (ellipse.Y + ellipse.Height * 0.5),
                                    point.X - (ellipse.X + ellipse.Width * 0.5)) *
                         kRadian;
    return angle < 0.0 ? angle + kFullCircle : angle;
}

bool IsInEllipse(const RectF& ellipse, PointD point) {
    const double across = (point.X - ellipse.X) / ellipse.Width * 2.0 - 1.0;
    const double down = (point.Y - ellipse.Y) / ellipse.Height * 2.0 - 1.0;
    return across * across + down * down <= 1.0;
}

} // namespace millichart
