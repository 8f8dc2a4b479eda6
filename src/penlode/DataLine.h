#pragma once

#include "penlode/Export.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsTypes.h"

#include <cstddef>
#include <span>
#include <vector>

namespace penlode {

class IGraphicsEngine;
class Pen;

/// Where points lie: the least and the greatest of their coordinates.
struct PointBounds {
    float Left;
    float Right;
    float Low;
    float High;
};

/// A polyline that is no list: its points are made of data as somebody asks for them. All that is asked of it
/// may be asked of the same line on several threads.
class PENLODE_API DataLine {
public:
    /// So many points at most are asked for at once.
    static constexpr std::size_t kBlock = 64;

    DataLine() = default;
    DataLine(const DataLine&) = delete;
    DataLine& operator=(const DataLine&) = delete;
    virtual ~DataLine();

    virtual std::size_t Size() const = 0;

    /// The points from `first` on, in page units; not finite at a gap. There are as many.
    virtual void Place(std::size_t first, std::span<PointF> points) const = 0;

    /// The bounds of the points that `Place` would give; false if one of them is a gap. Other answers than
    /// these may save the work of placing every point.
    virtual bool Bound(std::size_t first, std::size_t count, PointBounds& bounds) const;

    PointF At(std::size_t place) const;
};

/// The bounds of at most kBlock points; false if one of them is not finite.
PENLODE_API bool BoundsOf(std::span<const PointF> points, PointBounds& bounds);

/// The place of the first gap at `first` or behind; the line's size if there is none.
PENLODE_API std::size_t FindGap(const DataLine& line, std::size_t first);

/// As DrawLines with the points from `first` up to the first gap, whose place it gives, or else the line's
/// size.
PENLODE_API std::size_t DrawAsList(IGraphicsEngine& engine, const Pen& pen, const DataLine& line,
                                   std::size_t first);

/// What the engines of this library can beside IGraphicsEngine; one of theirs is asked by a dynamic_cast.
class PENLODE_API IDataLineSurface {
public:
    virtual ~IDataLineSurface();

    /// As DrawLines with the points from `first` up to the first gap, whose place, or else the line's size,
    /// is put into `end`. No list of them is made.
    virtual Status DrawDataLine(const Pen* pen, const DataLine& line, std::size_t first,
                                std::size_t& end) = 0;

    /// Between two places across the page, the ascending places at which a column of this surface begins: of
    /// the points that follow each other in one, a line of many shows the first, the lowest, the highest and
    /// the last. Points at such a place itself may count to either. Nothing where columns do not stand
    /// upright under the present transform.
    virtual std::vector<float> DataColumns(float left, float right) const = 0;
};

} // namespace penlode
