#include "penlode/svg/SvgGeometry.h"

#include "penlode/EngineArguments.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace penlode::svg {
namespace {

/// Chains of turns leave noise of this size, far below a thousandth of a millimetre on any page.
constexpr double kNoise = 1e-7;

constexpr double kLargestFactor = 1e30;

/// Above any float, and far from the limits of double.
constexpr double kLargestPlace = 1e40;

bool IsFinite(PointF p) {
    return AreFinite(p.X, p.Y);
}

struct FiniteCheck {
    bool operator()(const GraphicsPath::Line& line) const { return IsFinite(line.From) && IsFinite(line.To); }

    bool operator()(const GraphicsPath::Arc& arc) const {
        return penlode::IsFinite(arc.Ellipse) && AreFinite(arc.StartAngle, arc.SweepAngle);
    }

    bool operator()(const GraphicsPath::Bezier& bezier) const {
        return std::all_of(bezier.Points.begin(), bezier.Points.end(), IsFinite);
    }
};

} // namespace

PointD OnPage(const Matrix& m, PointD p) {
    const double x = std::clamp(p.X, -kLargestPlace, kLargestPlace);
    const double y = std::clamp(p.Y, -kLargestPlace, kLargestPlace);
    return {std::clamp(x * m.M11 + y * m.M21 + m.Dx, -kFarthest, kFarthest),
            std::clamp(x * m.M12 + y * m.M22 + m.Dy, -kFarthest, kFarthest)};
}

PointD OnPage(const Matrix& transform, PointF point) {
    return OnPage(transform, PointD{point.X, point.Y});
}

std::vector<PointD> MapAll(const Matrix& transform, std::span<const PointF> points) {
    std::vector<PointD> mapped;
    mapped.reserve(points.size());
    for (const PointF point : points) {
        mapped.push_back(OnPage(transform, point));
    }
    return mapped;
}

bool CanMap(const Matrix& m) {
    const double largest = std::max(
        {std::abs(m.M11), std::abs(m.M12), std::abs(m.M21), std::abs(m.M22), std::abs(m.Dx), std::abs(m.Dy)});
    return m.IsInvertible() && largest < kLargestFactor;
}

MappedAxes AxesUnder(const Matrix& m) {
    return {std::hypot(m.M11, m.M12), std::hypot(m.M21, m.M22),
            std::atan2(m.M12, m.M11) * 180.0 / std::numbers::pi, m.Determinant() < 0.0};
}

bool KeepsRightAngles(const Matrix& m) {
    const MappedAxes axes = AxesUnder(m);
    return std::abs(m.M11 * m.M21 + m.M12 * m.M22) <= kNoise * axes.X * axes.Y;
}

bool KeepsAxesNearly(const Matrix& m) {
    const MappedAxes axes = AxesUnder(m);
    const bool upright = std::abs(m.M12) <= kNoise * axes.X && std::abs(m.M21) <= kNoise * axes.Y;
    return upright || (std::abs(m.M11) <= kNoise * axes.X && std::abs(m.M22) <= kNoise * axes.Y);
}

bool KeepsShapes(const Matrix& m) {
    const double scale = m.LengthFactor();
    return std::abs(m.M11 - m.M22) <= kNoise * scale && std::abs(m.M12 + m.M21) <= kNoise * scale;
}

std::vector<PointF> CornersOf(const RectF& r) {
    return {{r.X, r.Y}, {r.Right(), r.Y}, {r.Right(), r.Bottom()}, {r.X, r.Bottom()}};
}

bool IsFinitePath(const GraphicsPath& path) {
    return std::all_of(path.Figures().begin(), path.Figures().end(), [](const GraphicsPath::Figure& figure) {
        return std::all_of(figure.Pieces.begin(), figure.Pieces.end(),
                           [](const GraphicsPath::Piece& piece) { return std::visit(FiniteCheck{}, piece); });
    });
}

} // namespace penlode::svg
