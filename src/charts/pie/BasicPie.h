#pragma once

#include "charts/pie/SlicedCircle.h"
#include "charts/reading/SlicesApart.h"
#include "foundation/ChartPart.h"
#include "penlode/IGraphicsEngine.h"

#include <optional>

namespace millichart {

class PartSink;

/// The pie chart: one slice per value, labels round it, a legend beside it.
///
///     CBasicPie pie;
///     pie.SetPieProp(prop);
///     pie.SetComponentValue({30.0, 70.0});
///     pie.SetLocation({50.0F, 50.0F});
///     pie.Layout();
///     pie.Draw(&engine);
///
/// Setters only store; Layout computes every rectangle from what is stored; Draw, the shapes and the texts
/// show the last layout with the record's present looks and the present values. A plain value: copies share
/// nothing. Lists may be shorter than the values: what is missing is not drawn.
class MILLICHART_API CBasicPie : public CSlicedCircle {
public:
    /// Copies the record. The label offsets become as many as its names: kept, dropped, or (0, 0) for new
    /// ones.
    void SetPieProp(const PieProp& prop);

    const PieProp& GetPieProp() const { return m_prop; }

    /// With no values, or values that add up to 0, everything is empty at the location.
    void Layout();

    /// Nothing on a null engine.
    void Draw(penlode::IGraphicsEngine* engine) const;

    /// The slices as they would be drawn now; none for a style that draws none.
    PieShapes GetShapes() const;

    /// The texts as they would be drawn now: labels, the title, then the legend's names.
    void VisitTexts(const TextVisitor& visit) const;

    /// GetPositionAll with the texts that reach out of it.
    penlode::RectF InkExtent() const { return InkExtentOf(*this); }

    /// The part at a point of the page, in mm, or of several the one that is drawn last; where there is none,
    /// the nearest within `reach`. Nothing beside the chart, or where a number is none.
    std::optional<PlacedPart> HitTest(penlode::PointF point, float reach = kUsualReach) const;

    /// All parts that can be seen, in the order in which they are drawn.
    void VisitParts(const PartVisitor& visit) const;

    /// As for every sliced circle, and the legend's rectangle, if there is one.
    void GetChildPosition(penlode::RectF& pie, std::vector<penlode::RectF>& labels,
                          std::vector<penlode::RectF>& legend) const;
    /// The legend moves too, when exactly one rectangle is given and a legend is laid out.
    void SetChildPosition(const penlode::RectF& pie, const std::vector<penlode::RectF>& labels,
                          const std::vector<penlode::RectF>& legend);
    /// The legend's offset is given when a legend is laid out.
    void GetChildOffset(std::vector<penlode::PointF>& labels, std::vector<penlode::PointF>& legend) const;
    /// The legend's offset is taken when exactly one is given.
    void SetChildOffset(const std::vector<penlode::PointF>& labels,
                        const std::vector<penlode::PointF>& legend);

protected:
    /// Where the top face of a pie in `rect` is drawn.
    penlode::RectF GetEllipseRect(const penlode::RectF& rect) const;
    /// The top face of a pie with depth, and the depth of its wall: 0.675 and 0.225 of the height.
    penlode::RectF Get3DEllipseRect(const penlode::RectF& rect, float& depth) const;
    void DrawPie2D(penlode::IGraphicsEngine* engine) const;
    void DrawPie3D(penlode::IGraphicsEngine* engine) const;

private:
    void ListParts(PartSink& sink) const;
    SliceRim Rim() const;
    void PlaceLegend();
    void SeatOnPie();
    PieShapes FlatShapes() const;
    PieShapes DeepShapes() const;

    PieProp m_prop;
    penlode::PointF m_legendOffset;
};

} // namespace millichart
