#pragma once

#include "charts/pie/PieFigure.h"
#include "charts/pie/PieProp.h"
#include "foundation/Export.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <vector>

namespace millichart {

/// The pie chart: one slice per value, labels round it, a legend beside it.
///
///     CBasicPie pie;
///     pie.SetPieProp(prop);
///     pie.SetComponentValue({30.0, 70.0});
///     pie.SetLocation({50.0F, 50.0F});
///     pie.Layout();
///     pie.Draw(&engine);
///
/// Setters only store; Layout computes every rectangle from what is stored; Draw and the getters read the
/// last layout. A plain value: copies share nothing. Lists may be shorter than the values: what is missing is
/// not drawn.
class MILLICHART_API CBasicPie {
public:
    /// Copies the record. The label offsets become as many as its names: kept, dropped, or (0, 0) for new
    /// ones.
    void SetPieProp(const PieProp& prop);

    const PieProp& GetPieProp() const { return m_prop; }

    void SetComponentValue(const std::vector<double>& values) { m_values = values; }

    /// The pie's centre.
    void SetLocation(penlode::PointF location) { m_location = location; }

    penlode::PointF GetLocation() const { return m_location; }

    /// With no values, or values that add up to 0, everything is empty at the location.
    void Layout();

    /// Pie, labels and legend together.
    penlode::RectF GetPositionAll() const { return m_layout.Whole; }

    const PieLayout& GetLayout() const { return m_layout; }

    /// Nothing on a null engine.
    void Draw(penlode::IGraphicsEngine* engine) const;

    /// Where the movable parts stand: the pie's square, one rectangle per label, and the legend's, if there
    /// is one.
    void GetChildPosition(penlode::RectF& pie, std::vector<penlode::RectF>& labels,
                          std::vector<penlode::RectF>& legend) const;
    /// Where the user moved them. Each move is added to the part's offset and shows after the next Layout.
    /// The pie does not move; the legend does when exactly one rectangle is given and a legend is laid out.
    void SetChildPosition(const penlode::RectF& pie, const std::vector<penlode::RectF>& labels,
                          const std::vector<penlode::RectF>& legend);
    /// The user's displacements, which every Layout adds. The legend's is given when a legend is laid out.
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
    void PlaceLegend();

    PieProp m_prop;
    std::vector<double> m_values;
    penlode::PointF m_location;
    PieLayout m_layout;
    std::vector<penlode::PointF> m_labelOffsets;
    penlode::PointF m_legendOffset;
};

} // namespace millichart
