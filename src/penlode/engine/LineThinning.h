#pragma once

#include "penlode/engine/DeviceGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>
#include <utility>

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
inline constexpr std::size_t kMinDataLinePoints = 65;

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

/// An interval from its left edge on and up to its right.
template <class Number> struct Interval {
    Number Left;
    Number Right;
};

/// The column in which x lies, in device units.
inline Interval<double> ColumnAt(double x, const ThinningGrid& grid) {
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

/// The interval between two places that holds x, whatever their rounding.
template <class Number> Interval<Number> Holding(Number x, double a, double b) {
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

    Interval<float> ColumnOf(PointF p) const {
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

    Interval<double> ColumnOf(PointF p) const {
        const auto [left, right] = ColumnAt(Along(p), Grid);
        return Holding(Along(p), left, right);
    }
};

/// Points that are looked at without a branch between them, so that a compiler looks at several at once.
inline constexpr std::size_t kBlock = 32;

/// Where a block of points lies.
template <class Number> struct Bounds {
    Number Left;
    Number Right;
    Number Low;
    Number High;
    bool AreFinite;
};

/// The least and the most of two halves of a list, and so on down to one x and one y: a loop over places that
/// do not depend on each other, where a running minimum would be a chain.
template <std::size_t Half, class Number>
void Fold(std::array<Number, kBlock>& least, std::array<Number, kBlock>& most) {
    for (std::size_t k = 0; k < Half; ++k) {
        least[k] = least[k] < least[k + Half] ? least[k] : least[k + Half];
        most[k] = most[k] > most[k + Half] ? most[k] : most[k + Half];
    }
    if constexpr (Half > 2) {
        Fold<Half / 2>(least, most);
    }
}

template <class View> auto BoundsOf(const PointF* block, const View& view) {
    using Number = decltype(view.Along(PointF{}));
    std::array<Number, 2 * kBlock> places; // x and y by turns, as they lie in memory
    for (std::size_t i = 0; i < kBlock; ++i) {
        places[2 * i] = view.Along(block[i]);
        places[2 * i + 1] = view.Across(block[i]);
    }
    std::array<Number, kBlock> least;
    std::array<Number, kBlock> most;
    unsigned unordered = 0; // comparisons pass over what is no number
    for (std::size_t k = 0; k < kBlock; ++k) {
        least[k] = places[k] < places[k + kBlock] ? places[k] : places[k + kBlock];
        most[k] = places[k] > places[k + kBlock] ? places[k] : places[k + kBlock];
        unordered |= static_cast<unsigned>(std::isunordered(places[k], places[k + kBlock]));
    }
    Fold<kBlock / 2>(least, most);
    Bounds<Number> bounds{least[0], most[0], least[1], most[1], unordered == 0};
    for (const Number bound : {bounds.Left, bounds.Right, bounds.Low, bounds.High}) {
        bounds.AreFinite = bounds.AreFinite && std::isfinite(bound);
    }
    return bounds;
}

/// Points that follow each other in one column. Of the lowest and the highest it is known from which place
/// on the first of them is found.
template <class View> class Column {
public:
    using Number = decltype(std::declval<View>().Along(PointF{}));

    Column(std::span<const PointF> points, const View& view, std::size_t first)
        : m_points(points), m_view(&view), m_interval(view.ColumnOf(points[first])), m_first(first),
          m_lowest(first), m_highest(first), m_low(view.Across(points[first])), m_high(m_low) {}

    bool Holds(Number left, Number right) const {
        return left >= m_interval.Left && right < m_interval.Right;
    }

    /// What lies from `place` on reaches from `low` to `high`.
    void Take(std::size_t place, Number low, Number high) {
        if (low < m_low) {
            m_low = low;
            m_lowest = place;
        }
        if (high > m_high) {
            m_high = high;
            m_highest = place;
        }
    }

    /// Hands the column's points that stay to `visit`, each once.
    template <class Visit> void Report(std::size_t last, Visit&& visit) const {
        const std::size_t lowest = Find(m_low, m_lowest);
        const std::size_t highest = Find(m_high, m_highest);
        const std::array<std::size_t, 4> places{m_first, std::min(lowest, highest), std::max(lowest, highest),
                                                last};
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (i == 0 || places[i] != places[i - 1]) {
                visit(places[i]);
            }
        }
    }

private:
    std::size_t Find(Number across, std::size_t place) const {
        while (m_view->Across(m_points[place]) != across) {
            ++place;
        }
        return place;
    }

    std::span<const PointF> m_points;
    const View* m_view;
    Interval<Number> m_interval;
    std::size_t m_first;
    std::size_t m_lowest;
    std::size_t m_highest;
    Number m_low;
    Number m_high;
};

/// Takes the points from `first` to `end` one by one. False at a point that is not finite.
template <class View, class Report>
bool TakeEach(std::span<const PointF> points, std::size_t first, std::size_t end, const View& view,
              Column<View>& column, const Report& report) {
    for (std::size_t i = first; i < end; ++i) {
        const auto x = view.Along(points[i]);
        const auto y = view.Across(points[i]);
        if (!std::isfinite(x) || !std::isfinite(y)) {
            return false;
        }
        if (column.Holds(x, x)) {
            column.Take(i, y, y);
        } else {
            column.Report(i - 1, report);
            column = Column<View>(points, view, i);
        }
    }
    return true;
}

/// Reports the places of the points that stay. False, and no more of them, at a point that is not finite.
template <class View, class Report>
bool Scan(std::span<const PointF> points, const View& view, const Report& report) {
    if (points.empty()) {
        return true;
    }
    Column<View> column(points, view, 0);
    for (std::size_t i = 0; i < points.size(); i += kBlock) {
        const std::size_t end = std::min(i + kBlock, points.size());
        if (end == i + kBlock) {
            const auto bounds = BoundsOf(points.data() + i, view);
            if (bounds.AreFinite && column.Holds(bounds.Left, bounds.Right)) {
                column.Take(i, bounds.Low, bounds.High);
                continue;
            }
        }
        if (!TakeEach(points, i, end, view, column, report)) {
            return false;
        }
    }
    column.Report(points.size() - 1, report);
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
