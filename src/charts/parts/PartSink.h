#pragma once

#include "charts/parts/PartShape.h"
#include "foundation/ChartPart.h"
#include "foundation/ChartText.h"
#include "foundation/Legend.h"
#include "penlode/Geometry.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// A chart lists its parts once, in the order in which they are drawn; what becomes of them is a sink's.
namespace millichart {

class PartSink {
public:
    virtual ~PartSink() = default;

    /// In which part of a composite chart all that follows stands.
    void BeginPart(std::size_t part) { m_part = part; }

    void Add(ChartPart part, const PartShape& shape);

    /// All texts but a legend's names, which stand in their items; none that cannot be seen.
    TextVisitor Texts();

    /// The box, then of each item what stands before its name and, if it has one, its name.
    void AddLegend(const LegendProp& prop, const std::vector<std::string>& names,
                   const std::vector<penlode::RectF>& items, float swatchFactor, const LegendFrame& frame);

protected:
    virtual void Take(const ChartPart& part, const PartShape& shape) = 0;

private:
    std::size_t m_part = 0;
};

/// Hands each part on with its box, if that has a place.
class PartLister : public PartSink {
public:
    /// `visit` must outlive it.
    explicit PartLister(const PartVisitor& visit) : m_visit(visit) {}

private:
    void Take(const ChartPart& part, const PartShape& shape) override;

    const PartVisitor& m_visit;
};

/// Finds the part at a point: of those that hold it the last one, or else the nearest within reach. A plot is
/// the ground for those that follow: it is found where none of them is.
class PartFinder : public PartSink {
public:
    /// A reach that is negative, or no number, is none.
    PartFinder(penlode::PointF point, float reach);

    const std::optional<PlacedPart>& Found() const { return m_found ? m_found : m_ground; }

private:
    void Take(const ChartPart& part, const PartShape& shape) override;

    penlode::PointD m_point;
    float m_reach;
    double m_distance; ///< of what was found
    std::optional<PlacedPart> m_found;
    std::optional<PlacedPart> m_ground;
};

/// The part of a chart at a point; `list` gives a sink all of its parts.
template <class List>
std::optional<PlacedPart> FindPart(penlode::PointF point, float reach, const List& list) {
    PartFinder finder(point, reach);
    list(finder);
    return finder.Found();
}

} // namespace millichart
