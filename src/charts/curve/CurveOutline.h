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
    /// A point of the curve.
    struct Place {
        std::size_t Index;
        penlode::PointF At;
    };

    /// Does the line go through a point, or round it?
    bool IsOnLine(const Place& place) const;

    /// Has it a value of its own?
    bool IsValue(const Place& place) const;

    double DistanceToLine(const Place& from, const Place& to, penlode::PointD point) const;
    double DistanceToMarker(const Place& place, penlode::PointD point) const;

    const CurveTrace& m_trace;
    bool m_breaks;
    float m_halfWidth;
    float m_markerRadius; ///< negative without markers
};

} // namespace millichart
