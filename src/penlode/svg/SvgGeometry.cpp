#include "penlode/svg/SvgGeometry.h"

#include "penlode/engine/GuardBand.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace penlode::svg {
namespace {

constexpr double kMaxFactor = 1e30;

constexpr double kFarAway = 1e5;

/// Above any float, and far from the limits of double.
constexpr double kMaxPlace = 1e40;

} // namespace

PointD Placed(const Matrix& m, PointD p) {
    return Mapped(m, PointD{std::clamp(p.X, -kMaxPlace, kMaxPlace), std::clamp(p.Y, -kMaxPlace, kMaxPlace)});
}

PointD OnPage(const Matrix& m, PointD p) {
    return BoxD{-kMaxDistance, -kMaxDistance, kMaxDistance, kMaxDistance}.Nearest(Placed(m, p));
}

PointD OnPage(const Matrix& transform, PointF point) {
    return OnPage(transform, PointD{point.X, point.Y});
}

std::vector<PointD> MapAll(const Matrix& transform, std::span<const PointF> points) {
    std::vector<PointD> mapped;
    mapped.reserve(points.size());
    for (const PointF point : points) {
        mapped.push_back(Placed(transform, {point.X, point.Y}));
    }
    return mapped;
}

bool IsFar(PointD p) {
    return !(std::abs(p.X) <= kFarAway && std::abs(p.Y) <= kFarAway);
}

bool AnyFar(std::span<const PointD> points) {
    return std::any_of(points.begin(), points.end(), IsFar);
}

std::vector<PointD> CutIfFar(const PageMap& map, std::vector<PointD> polygon) {
    return AnyFar(polygon) ? ClippedPolygon(std::move(polygon), map.Surroundings()) : polygon;
}

std::vector<PointD> AreaOnPage(const PageMap& map, std::span<const PointF> polygon) {
    return CutIfFar(map, MapAll(map.ToPage, polygon));
}

bool CanMap(const Matrix& m) {
    const double largest = std::max(
        {std::abs(m.M11), std::abs(m.M12), std::abs(m.M21), std::abs(m.M22), std::abs(m.Dx), std::abs(m.Dy)});
    return m.IsInvertible() && largest < kMaxFactor;
}

MappedAxes AxesUnder(const Matrix& m) {
    return {std::hypot(m.M11, m.M12), std::hypot(m.M21, m.M22),
            std::atan2(m.M12, m.M11) * 180.0 / std::numbers::pi, m.Determinant() < 0.0};
}

bool KeepsRightAngles(const Matrix& m) {
    const MappedAxes axes = AxesUnder(m);
    return std::abs(m.M11 * m.M21 + m.M12 * m.M22) <= kTurnNoise * axes.X * axes.Y;
}

bool KeepsShapes(const Matrix& m) {
    const double scale = m.LengthFactor();
    return std::abs(m.M11 - m.M22) <= kTurnNoise * scale && std::abs(m.M12 + m.M21) <= kTurnNoise * scale;
}

} // namespace penlode::svg
