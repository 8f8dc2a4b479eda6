#pragma once

#include "charts/cartesian/Coordinate.h"
#include "charts/curve/CurveDataView.h"
#include "charts/curve/CurveStyle.h"
#include "foundation/Export.h"
#include "penlode/DataLine.h"
#include "penlode/Geometry.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace millichart {

/// The first and the last time of a chart. Whole ones are known in full beside those that are rounded.
struct MILLICHART_API TimeSpan {
    double Min = 0.0;
    double Max = 0.0;
    std::int64_t WholeMin = 0;
    std::int64_t WholeMax = 0;
    bool IsWhole = true;

    /// Within 32 bits; times with decimals inwards.
    std::int32_t First() const;
    std::int32_t Last() const;
};

/// What places a curve's values: the times span the area's width, the axis its height. Values have no place
/// without an axis.
struct CurvePlacement {
    penlode::RectF Area;
    TimeSpan Times;
    std::shared_ptr<const CCoordinate> Values;
    penlode::PointF Shift; ///< of everything, at the end
};

/// One curve on the page, in mm. Its points are made from the data as they are asked for; a list of them is
/// made once somebody reads one, and shared by the trace's copies.
class MILLICHART_API CurveTrace {
public:
    CurveTrace();
    /// `owner` keeps the data alive; without one, somebody else does for as long as the trace is used.
    CurveTrace(const CurveDataView& data, CurvePlacement placement, std::shared_ptr<const void> owner);

    /// Values that have a time.
    std::size_t Size() const { return m_size; }

    /// One a value that has a time; not finite where it has no place. A null value stands at the value 0.
    const std::vector<penlode::PointF>& Points() const;

    /// Parallel to the points.
    const std::vector<bool>& NullFlags() const;

    /// Is any value null?
    bool HasNull() const;

    bool IsNull(std::size_t index) const;

    /// The points from `first` on, as many as there is room for; those of null values not finite if they are
    /// gaps.
    void Place(std::size_t first, std::span<penlode::PointF> points, bool nullsAreGaps = false) const;

    /// The bounds of a block of penlode::DataLine::kBlock points, where they are known without placing each:
    /// false if not, or if a value is null or has no place.
    bool Bound(std::size_t first, std::size_t count, penlode::PointBounds& bounds) const;

    /// Calls `visit` with the index and the place of every point.
    template <class Visit> void ForEach(const Visit& visit) const {
        std::array<penlode::PointF, penlode::DataLine::kBlock> places;
        for (std::size_t first = 0; first < m_size; first += places.size()) {
            const std::span block = std::span(places).first(std::min(places.size(), m_size - first));
            Place(first, block);
            for (std::size_t i = 0; i < block.size(); ++i) {
                visit(first + i, block[i]);
            }
        }
    }

    const CurvePlacement& Placement() const { return m_placement; }

    /// Points already read stay where they are read.
    void Move(penlode::PointF by);

private:
    struct Lists;

    CurveDataView m_data;
    CurvePlacement m_placement;
    std::shared_ptr<const void> m_owner;
    std::size_t m_size = 0;
    std::shared_ptr<Lists> m_lists;
};

/// A curve as it is drawn. It leads into the chart's layout and is good until the next one.
struct CurveShape {
    CurveStyle Style;
    /// The lines up to each gap and after the last one, in order; some may have one point or none, which
    /// draws nothing.
    std::vector<std::span<const penlode::PointF>> Lines;
    /// Markers, if the style has any, stand at its points that are finite and not null.
    const CurveTrace* Trace = nullptr;
};

} // namespace millichart
