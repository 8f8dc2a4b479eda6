#pragma once

#include "charts/pie/HalfPieProp.h"
#include "charts/pie/PieFigure.h"
#include "foundation/Export.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <vector>

namespace millichart {

/// The half pie: its values as slices of the upper or the lower half of a circle, with labels, without a
/// legend. It is used as CBasicPie is, and sized alike: a half pie's circle is as large as a pie's of the
/// same total.
///
/// Setters only store; Layout computes every rectangle from what is stored; Draw and the getters read the
/// last layout. A plain value: copies share nothing. Lists may be shorter than the values: what is missing is
/// not drawn.
class MILLICHART_API CBasicHalfPie {
public:
    /// Copies the record. The label offsets become as many as its names: kept, dropped, or (0, 0) for new
    /// ones.
    void SetHalfPieProp(const HalfPieProp& prop);

    const HalfPieProp& GetHalfPieProp() const { return m_prop; }

    void SetComponentValue(const std::vector<double>& values) { m_values = values; }

    /// The centre of the full circle, in the middle of the half pie's flat side.
    void SetLocation(penlode::PointF location) { m_location = location; }

    penlode::PointF GetLocation() const { return m_location; }

    /// With no values, or values that add up to 0, everything is empty at the location.
    void Layout();

    /// The visible half and the labels together.
    penlode::RectF GetPositionAll() const { return m_layout.Whole; }

    /// `Pie` is the square of the full circle; there are no legend items.
    const PieLayout& GetLayout() const { return m_layout; }

    /// Nothing on a null engine.
    void Draw(penlode::IGraphicsEngine* engine) const;

    /// Where the movable parts stand: the square of the full circle and one rectangle per label. As there is
    /// no legend, `legend` is left as it is, here and below.
    void GetChildPosition(penlode::RectF& pie, std::vector<penlode::RectF>& labels,
                          std::vector<penlode::RectF>& legend) const;
    /// Where the user moved the labels. Each move is added to the label's offset and shows after the next
    /// Layout. The pie does not move.
    void SetChildPosition(const penlode::RectF& pie, const std::vector<penlode::RectF>& labels,
                          const std::vector<penlode::RectF>& legend);
    /// The user's displacements, which every Layout adds.
    void GetChildOffset(std::vector<penlode::PointF>& labels, std::vector<penlode::PointF>& legend) const;
    void SetChildOffset(const std::vector<penlode::PointF>& labels,
                        const std::vector<penlode::PointF>& legend);

protected:
    void DrawHalfPie(penlode::IGraphicsEngine* engine) const;

private:
    bool IsUpper() const { return m_prop.Basic.WhichPart == HalfPiePart::Upper; }

    float StartAngle() const { return IsUpper() ? 180.0F : 0.0F; }

    penlode::RectF VisibleHalf() const;

    HalfPieProp m_prop;
    std::vector<double> m_values;
    penlode::PointF m_location;
    PieLayout m_layout;
    std::vector<penlode::PointF> m_labelOffsets;
};

} // namespace millichart
