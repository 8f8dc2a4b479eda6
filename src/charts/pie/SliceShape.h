#pragma once

#include "charts/parts/PartShape.h"
#include "charts/pie/PieLayout.h"

namespace millichart {

/// Is anything drawn of a slice?
bool CanBeSeen(const PieSlice& slice, const PieShapes& shapes);

/// A slice: a sector of the face's ellipse, and the walls below its rim.
class SliceShape : public PartShape {
public:
    /// Of a slice that can be seen. Both must outlive it.
    SliceShape(const PieSlice& slice, const PieShapes& shapes) : m_slice(slice), m_shapes(shapes) {}

    penlode::RectF Box() const override;
    double Distance(penlode::PointD point, float reach) const override;

private:
    bool IsInSector(penlode::PointD point) const;
    bool IsOnWall(const PieWall& wall, penlode::PointD point) const;
    /// Lines that together run round the sector and its walls.
    template <class Visit> void VisitOutline(const Visit& visit) const;

    const PieSlice& m_slice;
    const PieShapes& m_shapes;
};

} // namespace millichart
