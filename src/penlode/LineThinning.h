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

/// A stretch of one column, from its left edge on and up to its right, both in columns.
struct Column {
    double Left = 0.0;
    double Right = 0.0;

    bool Holds(double x) const { return x >= Left && x < Right; }
};

inline Column ColumnOf(double x, double first, double last) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    if (x < first) {
        return {-kInfinity, first};
    }
    if (x >= last) {
        return {last, kInfinity};
    }
    return {std::floor(x), std::floor(x) + 1.0};
}

/// The places in the list of a column's points.
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

} // namespace thinning

/// Calls `visit` with each point that stays, in device units. The points are finite.
template <class Visit>
void ThinLine(std::span<const PointF> points, const Matrix& toDevice, const ThinningGrid& grid,
              Visit&& visit) {
    const Matrix toColumns = toDevice * Matrix::Scale(1.0 / grid.ColumnWidth, 1.0);
    const double first = std::floor(grid.Left / grid.ColumnWidth);
    const double last = std::ceil(grid.Right / grid.ColumnWidth);
    const auto report = [&](std::size_t place) { visit(Mapped(toDevice, points[place])); };
    thinning::Column column;
    thinning::Extremes extremes;
    double low = 0.0;
    double high = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PointD p = Mapped(toColumns, points[i]);
        if (i == 0 || !column.Holds(p.X)) {
            if (i > 0) {
                extremes.Report(i - 1, report);
            }
            column = thinning::ColumnOf(p.X, first, last);
            extremes = {i, i, i};
            low = high = p.Y;
        } else if (p.Y < low) {
            low = p.Y;
            extremes.Lowest = i;
        } else if (p.Y > high) {
            high = p.Y;
            extremes.Highest = i;
        }
    }
    if (!points.empty()) {
        extremes.Report(points.size() - 1, report);
    }
}

} // namespace penlode
