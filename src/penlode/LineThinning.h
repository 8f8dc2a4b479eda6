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

/// A stretch of the device from its left edge on and up to its right.
struct Stretch {
    double Left;
    double Right;
};

inline Stretch ColumnAt(double x, const ThinningGrid& grid) {
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

/// Reports the places of the points that stay. `along` and `across` are a point's coordinates in which
/// columns and heights are told apart; `columnOf` is the stretch of `along` that is one column with that
/// point.
template <class Along, class Across, class ColumnOf, class Report>
void Scan(std::span<const PointF> points, Along along, Across across, ColumnOf columnOf, Report report) {
    Stretch column{};
    Extremes extremes;
    double low = 0.0;
    double high = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double x = along(points[i]);
        const double y = across(points[i]);
        if (i == 0 || !(x >= column.Left && x < column.Right)) {
            if (i > 0) {
                extremes.Report(i - 1, report);
            }
            column = columnOf(points[i]);
            extremes = {i, i, i};
            low = high = y;
        } else if (y < low) {
            low = y;
            extremes.Lowest = i;
        } else if (y > high) {
            high = y;
            extremes.Highest = i;
        }
    }
    if (!points.empty()) {
        extremes.Report(points.size() - 1, report);
    }
}

/// A column as it lies on the world's x axis, for transforms that leave columns upright. The point that it
/// was found for lies in it, whatever the rounding.
inline Stretch InWorld(const Stretch& column, const Matrix& m, double x) {
    const double a = (column.Left - m.Dx) / m.M11;
    const double b = (column.Right - m.Dx) / m.M11;
    return {std::min({a, b, x}),
            std::max({a, b, std::nextafter(x, std::numeric_limits<double>::infinity())})};
}

} // namespace thinning

/// Calls `visit` with each point that stays, in device units. The points are finite.
template <class Visit>
void ThinLine(std::span<const PointF> points, const Matrix& toDevice, const ThinningGrid& grid,
              Visit&& visit) {
    const auto report = [&](std::size_t place) { visit(Mapped(toDevice, points[place])); };
    if (toDevice.M12 == 0.0 && toDevice.M21 == 0.0 && toDevice.M11 != 0.0) {
        const auto columnOf = [&](PointF p) {
            const double x = Mapped(toDevice, p).X;
            return thinning::InWorld(thinning::ColumnAt(x, grid), toDevice, p.X);
        };
        thinning::Scan(
            points, [](PointF p) { return double{p.X}; }, [](PointF p) { return double{p.Y}; }, columnOf,
            report);
        return;
    }
    const auto columnOf = [&](PointF p) {
        const double x = Mapped(toDevice, p).X;
        return thinning::InWorld(thinning::ColumnAt(x, grid), {}, x);
    };
    thinning::Scan(
        points, [&](PointF p) { return Mapped(toDevice, p).X; },
        [&](PointF p) { return Mapped(toDevice, p).Y; }, columnOf, report);
}

} // namespace penlode
