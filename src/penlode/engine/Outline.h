#pragma once

#include "penlode/GraphicsPath.h"

#include <span>
#include <variant>

namespace penlode {

/// What a drawing operation strokes or fills, in world coordinates and as it was given, so that an engine can
/// draw each kind in its own way: a box on whole pixels, a circle as a circle. All numbers are finite. What
/// is pointed to lasts as long as the call.
struct Outline {
    /// A shape that has no extent where it needs one: it shows nothing.
    struct Nothing {};

    struct Line {
        PointF From;
        PointF To;
    };

    /// Neither side is negative; one that is filled has both.
    struct Rectangle {
        RectF Box;
    };

    /// The boxes of an ellipse, an arc and a pie have width and height.
    struct Ellipse {
        RectF Box;
    };

    struct Arc {
        RectF Box;
        float StartAngle;
        float SweepAngle;
    };

    struct Pie {
        RectF Box;
        float StartAngle;
        float SweepAngle;
    };

    /// Of three points at least, if it is filled.
    struct Polygon {
        std::span<const PointF> Points;
    };

    struct Polyline {
        std::span<const PointF> Points;
    };

    struct Curve {
        std::span<const PointF> Points;
    };

    struct Path {
        const GraphicsPath* Whole;
    };

    std::variant<Nothing, Line, Rectangle, Ellipse, Arc, Pie, Polygon, Polyline, Curve, Path> Shape;
};

/// The kinds that are drawn as paths.
inline GraphicsPath PathOf(const Outline::Ellipse& ellipse) {
    GraphicsPath path;
    path.AddEllipse(ellipse.Box);
    return path;
}

inline GraphicsPath PathOf(const Outline::Arc& arc) {
    GraphicsPath path;
    path.AddArc(arc.Box, arc.StartAngle, arc.SweepAngle);
    return path;
}

inline GraphicsPath PathOf(const Outline::Pie& pie) {
    GraphicsPath path;
    path.AddPie(pie.Box, pie.StartAngle, pie.SweepAngle);
    return path;
}

inline GraphicsPath PathOf(const Outline::Curve& curve) {
    GraphicsPath path;
    path.AddCurve(curve.Points);
    return path;
}

inline const GraphicsPath& PathOf(const Outline::Path& path) {
    return *path.Whole;
}

} // namespace penlode
