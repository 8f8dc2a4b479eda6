#pragma once

#include "penlode/Geometry.h"

#include <cstddef>
#include <functional>

namespace millichart {

/// What a chart consists of, for a user who points at it.
enum class PartKind {
    Plot,         ///< of a bar or line chart: its background and grids
    VerAxis,      ///< the line with its ticks
    HorAxis,      ///< the line with its ticks
    Slice,        ///< `Index`: of its value
    Bar,          ///< `Index`: the group, `Component`: the bar in it
    Curve,        ///< `Index`: the curve
    CurvePoint,   ///< `Index`: the curve, `Component`: of its value
    SliceLabel,   ///< `Index`: of its slice
    BarLabel,     ///< `Index` and `Component`: of its bar
    VerAxisLabel, ///< `Index`: from the lowest
    HorAxisLabel, ///< of a line chart; `Index`: from the left
    GroupName,    ///< below a bar chart's group `Index`
    VerCaption,
    HorCaption,
    Caption,      ///< of a bar or line chart; the title of a pie
    Legend,       ///< its box
    LegendSample, ///< the square or line before the name `Index`
    LegendName    ///< `Index`: of its slice, component or curve
};

/// A part of a chart. Indexes that say nothing of its kind are 0.
struct ChartPart {
    PartKind Kind = PartKind::Plot;
    std::size_t Index = 0;
    std::size_t Component = 0;
    std::size_t Part = 0; ///< of a composite chart: 0 for what is drawn first, 1 for the other

    friend bool operator==(const ChartPart&, const ChartPart&) = default;
};

/// A part and the upright rectangle round it, in mm of the page.
struct PlacedPart {
    ChartPart Part;
    penlode::RectF Box;

    friend bool operator==(const PlacedPart&, const PlacedPart&) = default;
};

/// Gets a chart's parts one at a time.
using PartVisitor = std::function<void(const PlacedPart& part)>;

/// So far beside a thin thing a user still hits it, in mm.
inline constexpr float kUsualReach = 1.0F;

} // namespace millichart
