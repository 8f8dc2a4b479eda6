#pragma once

#include "penlode/DeviceGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>

/// Thins a polyline to what a surface can show, without a copy of it.
///
///     full      . ''.:.' '. :            thinned   .  '  .'  '  :
///     columns  |       |     |                    |       |     |
///
/// Of the points that follow each other within one column the first, the lowest, the highest and the last
/// stay, in their order: whatever the column shows of the line lies between them. Up to four points in a
/// column stay as they are, and so do the polyline's ends.
namespace penlode {

/// A polyline of so many points is data: no frame, no step and no legend's sample has as many.
inline constexpr std::size_t kShortestDataLine = 65;

/// The columns by which a surface is divided, in device units.
struct ThinningGrid {
    double ColumnWidth;
    /// What is left or right of these is one column each: nothing of it can be seen but the lines that leave.
    double Left;
    double Right;
};

/// Columns at which documents are thinned: finer than pages are printed.
inline constexpr double kDocumentColumnsPerInch = 600.0;

namespace thinning {

/// Places in the list of a column's points.
struct Extremes {
    std::size_t First = 0;
    std::size_t Lowest = 0;
    std::size_t Highest = 0;

    /// Hands the column's points to `visit`, each once.
    template <class Visit> void Report(std::size_t last, Visit&& visit) const {
        const std::array<std::size_t, 4> places{First, std::min(Lowest, Highest), std::max(Lowest, Highest),
                                                last};
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (i == 0 || places[i] != places[i - 1]) {
                visit(places[i]);
            }
        }
    }
};

/// A stretch from its left edge on and up to its right.
template <class Number> struct Stretch {
    Number Left;
    Number Right;
};

/// The column in which x lies, in device units.
inline Stretch<double> ColumnAt(double x, const ThinningGrid& grid) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    if (x < grid.Left) {
        return {-kInfinity, grid.Left};
    }
    if (x >= grid.Right) {
        return {grid.Right, kInfinity};
    }
    const double column = std::floor(x / grid.ColumnWidth);
    return {column * grid.ColumnWidth, (column + 1.0) * grid.ColumnWidth};
}

/// The stretch between two places that holds x, whatever their rounding.
template <class Number> Stretch<Number> Holding(Number x, double a, double b) {
    constexpr Number kInfinity = std::numeric_limits<Number>::infinity();
    return {std::min(x, static_cast<Number>(std::min(a, b))),
            std::max(std::nextafter(x, kInfinity), static_cast<Number>(std::max(a, b)))};
}

/// Points as they are told apart when all columns stand upright in the world: as they are.
struct UprightView {
    const Matrix& ToDevice;
    const ThinningGrid& Grid;

    float Along(PointF p) const { return p.X; }

    float Across(PointF p) const { return p.Y; }

    Stretch<float> ColumnOf(PointF p) const {
        const auto [left, right] = ColumnAt(Mapped(ToDevice, p).X, Grid);
        return Holding(p.X, (left - ToDevice.Dx) / ToDevice.M11, (right - ToDevice.Dx) / ToDevice.M11);
    }
};

/// Under any other transform: as they lie on the device.
struct DeviceView {
    const Matrix& ToDevice;
    const ThinningGrid& Grid;

    double Along(PointF p) const { return Mapped(ToDevice, p).X; }

    double Across(PointF p) const { return Mapped(ToDevice, p).Y; }

    Stretch<double> ColumnOf(PointF p) const {
        const auto [left, right] = ColumnAt(Along(p), Grid);
        return Holding(Along(p), left, right);
    }
};

/// A column, its lowest and its highest point so far.
template <class Number> struct Box {
    Stretch<Number> Column;
    Number Low;
    Number High;
};

/// Points that are looked at without a branch between them, so that a compiler looks at several at once; g++
/// unrolls shorter loops instead.
inline constexpr std::size_t kBlock = 32;

/// How many of the next points, in whole blocks, lie in the box: of many millions nearly all. What is no
/// number lies nowhere.
template <class View, class Number>
std::size_t CountInside(std::span<const PointF> points, const Box<Number> box, const View& view) {
    std::size_t count = 0;
    for (; count + kBlock <= points.size(); count += kBlock) {
        const PointF* block = points.data() + count;
        unsigned inside = 1;
        for (std::size_t i = 0; i < kBlock; ++i) {
            inside &= static_cast<unsigned>(view.Along(block[i]) >= box.Column.Left) &
                      static_cast<unsigned>(view.Along(block[i]) < box.Column.Right) &
                      static_cast<unsigned>(view.Across(block[i]) >= box.Low) &
                      static_cast<unsigned>(view.Across(block[i]) <= box.High);
        }
        if (inside == 0) {
            break;
        }
    }
    return count;
}

/// Reports the places of the points that stay. False, and no more of them, at a point that is not finite.
template <class View, class Report>
bool Scan(std::span<const PointF> points, const View& view, const Report& report) {
    using Number = decltype(view.Along(PointF{}));
    Box<Number> box{};
    Extremes extremes;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0 && i % kBlock == 0) {
            i += CountInside(points.subspan(i), box, view);
            if (i == points.size()) {
                break;
            }
        }
        const Number x = view.Along(points[i]);
        const Number y = view.Across(points[i]);
        if (!std::isfinite(x) || !std::isfinite(y)) {
            return false;
        }
        if (i == 0 || x < box.Column.Left || x >= box.Column.Right) {
            if (i > 0) {
                extremes.Report(i - 1, report);
            }
            box = {view.ColumnOf(points[i]), y, y};
            extremes = {i, i, i};
        } else if (y < box.Low) {
            box.Low = y;
            extremes.Lowest = i;
        } else if (y > box.High) {
            box.High = y;
            extremes.Highest = i;
        }
    }
    if (!points.empty()) {
        extremes.Report(points.size() - 1, report);
    }
    return true;
}

} // namespace thinning

/// Calls `visit` with each point that stays, in device units. False when a point is not finite, after some of
/// those before it.
template <class Visit>
bool ThinLine(std::span<const PointF> points, const Matrix& toDevice, const ThinningGrid& grid,
              Visit&& visit) {
    const auto report = [&](std::size_t place) { visit(Mapped(toDevice, points[place])); };
    if (toDevice.M12 == 0.0 && toDevice.M21 == 0.0 && toDevice.M11 != 0.0) {
        return thinning::Scan(points, thinning::UprightView{toDevice, grid}, report);
    }
    return thinning::Scan(points, thinning::DeviceView{toDevice, grid}, report);
}

} // namespace penlode
