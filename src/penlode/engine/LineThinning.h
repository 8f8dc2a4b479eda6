#pragma once

#include "penlode/engine/DataRun.h"
#include "penlode/engine/DeviceGeometry.h"
#include "penlode/engine/ListLine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

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

/// Where a block of points lies.
template <class Number> struct Bounds {
    Number Left;
    Number Right;
    Number Low;
    Number High;
};

inline constexpr std::size_t kBlock = DataLine::kBlock;

/// A line's points as a walk along it asks for them, a block at a time.
class Points {
public:
    explicit Points(const DataLine& line) : m_line(line) {}

    std::size_t Size() const { return m_line.Size(); }

    const DataLine& Line() const { return m_line; }

    PointF operator[](std::size_t place) {
        if (place < m_first || place >= m_end) {
            m_first = place;
            m_end = std::min(place + kBlock, m_line.Size());
            m_line.Place(m_first, std::span(m_points).first(m_end - m_first));
        }
        return m_points[place - m_first];
    }

private:
    const DataLine& m_line;
    std::array<PointF, kBlock> m_points;
    std::size_t m_first = 0;
    std::size_t m_end = 0;
};

/// False if one of a block's points is not finite.
inline bool BoundsOf(const DataLine& line, std::size_t first, const UprightView& /*view*/,
                     Bounds<float>& bounds) {
    PointBounds found;
    if (!line.Bound(first, kBlock, found)) {
        return false;
    }
    bounds = {found.Left, found.Right, found.Low, found.High};
    return true;
}

/// Under a transform that turns them, points are walked one by one.
inline bool BoundsOf(const DataLine& /*line*/, std::size_t /*first*/, const DeviceView& /*view*/,
                     Bounds<double>& /*bounds*/) {
    return false;
}

/// Points that follow each other in one column. Of the lowest and the highest it is known from which place
/// on the first of them is found.
template <class View> class Column {
public:
    using Number = decltype(std::declval<View>().Along(PointF{}));

    Column(PointF point, std::size_t first, const View& view)
        : m_view(&view), m_interval(view.ColumnOf(point)), m_first(first), m_lowest(first), m_highest(first),
          m_low(view.Across(point)), m_high(m_low) {}

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
    template <class Visit> void Report(Points& points, std::size_t last, Visit&& visit) const {
        const std::size_t lowest = Find(points, m_low, m_lowest);
        const std::size_t highest = Find(points, m_high, m_highest);
        const std::array<std::size_t, 4> places{m_first, std::min(lowest, highest), std::max(lowest, highest),
                                                last};
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (i == 0 || places[i] != places[i - 1]) {
                visit(points[places[i]]);
            }
        }
    }

private:
    std::size_t Find(Points& points, Number across, std::size_t place) const {
        while (m_view->Across(points[place]) != across) {
            ++place;
        }
        return place;
    }

    const View* m_view;
    Interval<Number> m_interval;
    std::size_t m_first;
    std::size_t m_lowest;
    std::size_t m_highest;
    Number m_low;
    Number m_high;
};

/// Reports the points that stay, from `first` on up to one that is not finite, whose place it gives, or else
/// the line's size. What stays of a column is reported when it has ended.
template <class View, class Report>
std::size_t Scan(const DataLine& line, std::size_t first, const View& view, const Report& report) {
    using Number = typename Column<View>::Number;
    Points ahead(line);
    Points behind(line); // where a column's lowest and highest are looked for
    std::optional<Column<View>> column;
    std::size_t i = first;
    while (i < line.Size()) {
        Bounds<Number> bounds;
        if (column && i + kBlock <= line.Size() && BoundsOf(line, i, view, bounds) &&
            column->Holds(bounds.Left, bounds.Right)) {
            column->Take(i, bounds.Low, bounds.High);
            i += kBlock;
            continue;
        }
        const std::size_t end = std::min(i + kBlock, line.Size());
        for (; i < end; ++i) {
            const PointF point = ahead[i];
            const auto x = view.Along(point);
            const auto y = view.Across(point);
            if (!std::isfinite(x) || !std::isfinite(y)) {
                if (column) {
                    column->Report(behind, i - 1, report);
                }
                return i;
            }
            if (column && column->Holds(x, x)) {
                column->Take(i, y, y);
                continue;
            }
            if (column) {
                column->Report(behind, i - 1, report);
            }
            column.emplace(point, i, view);
        }
    }
    if (column) {
        column->Report(behind, line.Size() - 1, report);
    }
    return line.Size();
}

} // namespace thinning

/// Are columns upright in the world too?
inline bool KeepsColumns(const Matrix& toDevice) {
    return toDevice.M12 == 0.0 && toDevice.M21 == 0.0 && toDevice.M11 != 0.0;
}

/// Calls `visit` with each point of the run that stays, in device units, and finds the run's end. Some of its
/// points may have been visited when there is a gap.
template <class Visit>
void ThinLine(DataRun& run, const Matrix& toDevice, const ThinningGrid& grid, Visit&& visit) {
    const auto report = [&](PointF point) { visit(Mapped(toDevice, point)); };
    run.End = KeepsColumns(toDevice)
                  ? thinning::Scan(run.Line, run.First, thinning::UprightView{toDevice, grid}, report)
                  : thinning::Scan(run.Line, run.First, thinning::DeviceView{toDevice, grid}, report);
}

/// The places between two others, ascending, at which columns of a width begin; none where columns do not
/// stand upright, or would be too many to list.
inline std::vector<float> ColumnsBetween(float left, float right, const Matrix& toDevice, double width) {
    constexpr double kMost = 1e6;
    std::vector<float> places;
    const double a = Mapped(toDevice, PointF{left, 0.0F}).X / width;
    const double b = Mapped(toDevice, PointF{right, 0.0F}).X / width;
    if (!KeepsColumns(toDevice) || !(std::abs(a - b) < kMost)) {
        return places;
    }
    for (double column = std::floor(std::min(a, b)); column <= std::max(a, b) + 1.0; ++column) {
        places.push_back(static_cast<float>((column * width - toDevice.Dx) / toDevice.M11));
    }
    std::sort(places.begin(), places.end());
    return places;
}

} // namespace penlode
