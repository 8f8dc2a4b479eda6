#pragma once

#include "charts/pie/HalfPieProp.h"
#include "charts/pie/SlicedCircle.h"
#include "penlode/IGraphicsEngine.h"

namespace millichart {

/// The half pie: its values as slices of the upper or the lower half of a circle, with labels, without a
/// legend. It is used as CBasicPie is, and sized alike: a half pie's circle is as large as a pie's of the
/// same total.
///
/// Setters only store; Layout computes every rectangle from what is stored; Draw, the shapes and the texts
/// show the last layout with the record's present looks and the present values. A plain value: copies share
/// nothing. Lists may be shorter than the values: what is missing is not drawn.
class MILLICHART_API CBasicHalfPie : public CSlicedCircle {
public:
    /// Copies the record. The label offsets become as many as its names: kept, dropped, or (0, 0) for new
    /// ones.
    void SetHalfPieProp(const HalfPieProp& prop);

    const HalfPieProp& GetHalfPieProp() const { return m_prop; }

    /// With no values, or values that add up to 0, everything is empty at the location.
    void Layout();

    /// Nothing on a null engine.
    void Draw(penlode::IGraphicsEngine* engine) const;

    /// The slices as they would be drawn now, flat ones.
    PieShapes GetShapes() const;

    /// The texts as they would be drawn now: labels, then the title.
    void VisitTexts(const TextVisitor& visit) const;

    /// GetPositionAll with the texts that reach out of it.
    penlode::RectF InkExtent() const { return InkExtentOf(*this); }

protected:
    void DrawHalfPie(penlode::IGraphicsEngine* engine) const;

private:
    bool IsUpper() const { return m_prop.Basic.WhichPart == HalfPiePart::Upper; }

    float StartAngle() const { return IsUpper() ? kHalfTurn : 0.0F; }

    penlode::RectF VisibleHalf() const;

    HalfPieProp m_prop;
};

} // namespace millichart
