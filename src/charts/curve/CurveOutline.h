#pragma once

#include "charts/curve/CurveTrace.h"
#include "charts/parts/PartShape.h"

namespace millichart {

/// A curve: its lines and its markers. What is hit is the nearest of its points that has a value. Its points
/// are walked once a question; nothing is kept of them.
class CurveOutline : public PartShape {
public:
    /// The trace must outlive it.
    CurveOutline(const CurveTrace& trace, const CurveStyle& style);

    /// Of the points that a line runs through; not finite if there is none.
    penlode::RectF Box() const override;
    double Distance(penlode::PointD point, float reach) const override;
    PlacedPart At(const ChartPart& part, penlode::PointD point) const override;

private:
    bool IsNull(std::size_t index) const { return m_trace.HasNull && m_trace.NullFlags[index]; }

    bool HasPlace(std::size_t index) const;

    /// Does the line go through a point, or round it?
    bool IsOnLine(std::size_t index) const { return HasPlace(index) && !(m_breaks && IsNull(index)); }

    /// Has it a value of its own?
    bool IsValue(std::size_t index) const { return HasPlace(index) && !IsNull(index); }

    /// Of the line that ends at a point.
    double DistanceToLineBefore(std::size_t index, penlode::PointD point) const;
    double DistanceToMarker(std::size_t index, penlode::PointD point) const;
    penlode::RectF MarkerAt(std::size_t index, float radius) const;

    const CurveTrace& m_trace;
    bool m_breaks;
    float m_halfWidth;
    float m_markerRadius; ///< negative without markers
};

} // namespace millichart
