#include "charts/pie/BasicPie.h"

#include "charts/pie/PiePlacement.h"
#include "charts/pie/SliceLabels.h"
#include "charts/reading/LegendSeat.h"
#include "foundation/LegendSide.h"

#include <utility>

namespace millichart {

using penlode::PointF;
using penlode::RectF;

void CBasicPie::SetPieProp(const PieProp& prop) {
    m_prop = prop;
    m_labelOffsets.resize(m_prop.Basic.ComponentName.size());
}

void CBasicPie::Layout() {
    m_layout.Whole = {m_location.X, m_location.Y, 0.0F, 0.0F};
    m_layout.LegendItemRects.clear();
    m_layout.Legend = {};
    const PieBasicProp& basic = m_prop.Basic;
    if (PlacePie({m_location, PieDiameter(basic, m_values), basic.StartAngle, kFullTurn, m_values,
                  basic.ComponentName, m_prop.Label, m_labelOffsets, NumberFormat(m_options)},
                 m_layout)) {
        if (m_options.SliceLabels == SliceLabelFit::Apart) {
            KeepLabelsApart(
                Rim(), {basic.StartAngle, SliceSweeps(m_values, kFullTurn), m_prop.Label, m_labelOffsets},
                m_layout);
        }
        TakeWhole(m_layout.Pie, m_prop.Label.PieLabelTextProperty);
        PlaceLegend();
        PlaceTitle(TitleSide::Above);
    }
}

SliceRim CBasicPie::Rim() const {
    float depth = 0.0F;
    const bool isDeep = m_prop.Basic.PieStyle == PieStyle::WithDepth;
    const RectF face = isDeep ? Get3DEllipseRect(m_layout.Pie, depth) : m_layout.Pie;
    return {face.Center(), face.Width * 0.5F, face.Height * 0.5F, depth};
}

void CBasicPie::PlaceLegend() {
    if (m_options.Legend == LegendSeat::OnPlot) {
        SeatOnPie();
        return;
    }
    if (m_prop.Legend.ShowLegend == 0) {
        return;
    }
    m_layout.LegendItemRects = CLegendOperation::PlaceItems(m_prop.Legend, m_prop.Basic.ComponentName,
                                                            m_layout.Whole, kLegendSquareFactor);
    for (RectF& item : m_layout.LegendItemRects) {
        item = penlode::Translated(item, m_legendOffset);
        m_layout.Whole = penlode::Union(m_layout.Whole, item);
    }
}

void CBasicPie::SeatOnPie() {
    const SliceRim rim = Rim();
    const RectF seen{rim.Center.X - rim.Across, rim.Center.Y - rim.Up, 2.0F * rim.Across,
                     2.0F * rim.Up + rim.Depth};
    // Rows may be as wide as the title.
    const RectF whole = IsInRows(m_prop.Legend.LegendPos) ? WholeUnderTitle() : m_layout.Whole;
    SeatedLegend legend =
        Translated(SeatLegend(m_prop.Legend, m_prop.Basic.ComponentName, kLegendSquareFactor, seen, whole,
                              m_options.Air == ChartAir::ThirdOfLine),
                   m_legendOffset);
    if (!legend.Items.empty()) {
        m_layout.Whole = penlode::Union(m_layout.Whole, legend.Box);
    }
    m_layout.LegendItemRects = std::move(legend.Items);
    m_layout.Legend = std::move(legend);
}

void CBasicPie::GetChildPosition(RectF& pie, std::vector<RectF>& labels, std::vector<RectF>& legend) const {
    CSlicedCircle::GetChildPosition(pie, labels, legend);
    legend.clear();
    if (!m_layout.LegendItemRects.empty()) {
        legend.push_back(LegendBoxOf(m_layout.LegendItemRects, m_layout.Legend));
    }
}

void CBasicPie::SetChildPosition(const RectF& pie, const std::vector<RectF>& labels,
                                 const std::vector<RectF>& legend) {
    CSlicedCircle::SetChildPosition(pie, labels, legend);
    if (legend.size() == 1 && !m_layout.LegendItemRects.empty()) {
        const PointF from = LegendBoxOf(m_layout.LegendItemRects, m_layout.Legend).TopLeft();
        m_legendOffset = m_legendOffset + (legend.front().TopLeft() - from);
    }
}

void CBasicPie::GetChildOffset(std::vector<PointF>& labels, std::vector<PointF>& legend) const {
    CSlicedCircle::GetChildOffset(labels, legend);
    legend.clear();
    if (!m_layout.LegendItemRects.empty()) {
        legend.push_back(m_legendOffset);
    }
}

void CBasicPie::SetChildOffset(const std::vector<PointF>& labels, const std::vector<PointF>& legend) {
    CSlicedCircle::SetChildOffset(labels, legend);
    if (legend.size() == 1) {
        m_legendOffset = legend.front();
    }
}

} // namespace millichart
