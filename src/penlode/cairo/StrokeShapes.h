#pragma once

#include "penlode/engine/DeviceGeometry.h"

#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <utility>

namespace penlode {

/// The convex shapes that cover a stroked polyline together: a rectangle for each segment and, on the outer
/// side of each corner, a wedge up to the miter's tip or cut off. Caps are flat.
class StrokeShapes {
public:
    /// The miter limit is in half widths.
    StrokeShapes(double width, double miterLimit) : m_radius(width / 2.0), m_miterLimit(miterLimit) {}

    /// Hands each shape's corners to `visit`; they lead along its bottom to the right and along its top to
    /// the left.
    template <class Visit> void ForEach(std::span<const PointD> points, Visit&& visit) const {
        std::optional<PointD> before;
        PointD from = points.front();
        for (const PointD to : points.subspan(1)) {
            const PointD step{to.X - from.X, to.Y - from.Y};
            const double length = std::sqrt(step.X * step.X + step.Y * step.Y);
            if (length < kMinStep) {
                continue;
            }
            const PointD direction{step.X / length, step.Y / length};
            const PointD across = Across(direction);
            visit(std::array{Plus(from, across, m_radius), Plus(to, across, m_radius),
                             Plus(to, across, -m_radius), Plus(from, across, -m_radius)});
            if (before) {
                VisitJoin(*before, direction, from, visit);
            }
            before = direction;
            from = to;
        }
    }

private:
    /// Points nearer than this are one: the direction from one to the other would mean nothing.
    static constexpr double kMinStep = 1.0 / 512.0;

    /// Where a line turns back sharply, a wedge closes its tip. Wedges of fewer square pixels are left out:
    /// dense lines are full of them, and nobody sees them.
    static constexpr double kMinTip = 1.0 / 64.0;

    static PointD Plus(PointD a, PointD b, double factor) { return {a.X + b.X * factor, a.Y + b.Y * factor}; }

    /// A quarter turn of a direction.
    static PointD Across(PointD direction) { return {-direction.Y, direction.X}; }

    /// The wedge of a corner at which direction `a` turns into `b`.
    template <class Visit> void VisitJoin(PointD a, PointD b, PointD corner, Visit&& visit) const {
        const double turn = a.X * b.Y - a.Y * b.X;
        const double along = a.X * b.X + a.Y * b.Y;
        const bool isPointed = m_miterLimit * m_miterLimit * (1.0 + along) >= 2.0;
        if (!isPointed && m_radius * m_radius * std::abs(turn) / 2.0 < kMinTip) {
            return;
        }
        const double outwards = turn > 0.0 ? -m_radius : m_radius;
        PointD first = Plus(corner, Across(a), outwards);
        PointD second = Plus(corner, Across(b), outwards);
        if (turn > 0.0) {
            std::swap(first, second);
        }
        if (isPointed) {
            const PointD both{Across(a).X + Across(b).X, Across(a).Y + Across(b).Y};
            visit(std::array{corner, first, Plus(corner, both, outwards / (1.0 + along)), second});
        } else {
            visit(std::array{corner, first, second});
        }
    }

    double m_radius;
    double m_miterLimit;
};

} // namespace penlode
