#pragma once

#include "penlode/Geometry.h"

#include <array>

/// How far points are from plain figures, in mm. A number that is none gives no distance below infinity.
namespace millichart {

/// Of something that is not there.
inline constexpr double kFarAway = 1e300;

/// The same rectangle with extents that are not negative.
penlode::RectF Upright(const penlode::RectF& rect);

/// Grown by `by` on every side.
penlode::RectF Grown(const penlode::RectF& rect, float by);

/// Does it hold the point, edges included? A negative extent holds nothing.
bool Holds(const penlode::RectF& rect, penlode::PointD point);

/// 0 inside.
double DistanceToRect(penlode::PointD point, const penlode::RectF& rect);

/// To the nearest point of the line between both ends.
double DistanceToSegment(penlode::PointD point, penlode::PointF from, penlode::PointF to);

/// A convex figure of four corners, either way round.
using Quad = std::array<penlode::PointF, 4>;

/// 0 inside.
double DistanceToQuad(penlode::PointD point, const Quad& corners);

/// Is an angle on the way from `start` over `sweep`? Degrees of any size and either sign.
bool IsOnSweep(double angle, double start, double sweep);

/// The angle at which a point is seen from the ellipse's centre, clockwise on screen: 0 up to 360.
double AngleSeen(const penlode::RectF& ellipse, penlode::PointD point);

/// Is it in the ellipse, its rim included?
bool IsInEllipse(const penlode::RectF& ellipse, penlode::PointD point);

} // namespace millichart
