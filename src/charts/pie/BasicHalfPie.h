#pragma once

#include "charts/pie/HalfPieProp.h"
#include "charts/pie/SlicedCircle.h"
#include "foundation/ChartPart.h"
#include "penlode/IGraphicsEngine.h"

#include <optional>

namespace millichart {

class PartSink;

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

    /// The part at a point of the page, in mm, or of several the one that is drawn last; where there is none,
    /// the nearest within `reach`. Nothing beside the chart, or where a number is none.
    std::optional<PlacedPart> HitTest(penlode::PointF point, float reach = kUsualReach) const;

    /// All parts that can be seen, in the order in which they are drawn.
    void VisitParts(const PartVisitor& visit) const;

protected:
    void DrawHalfPie(penlode::IGraphicsEngine* engine) const;

private:
    friend class CBasicHalfPieHalfPie;
    friend class CBasicHalfPieHistogram;

    void ListParts(PartSink& sink) const;

    bool IsUpper() const { return m_prop.Basic.WhichPart == HalfPiePart::Upper; }

    float StartAngle() const { return IsUpper() ? kHalfTurn : 0.0F; }

    penlode::RectF VisibleHalf() const;

    HalfPieProp m_prop;
};

} // namespace millichart
