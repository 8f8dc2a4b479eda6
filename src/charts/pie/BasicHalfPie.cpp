#include "charts/pie/BasicHalfPie.h"

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;

namespace {

constexpr float kHalfTurn = 180.0F;

} // namespace

void CBasicHalfPie::SetHalfPieProp(const HalfPieProp& prop) {
    m_prop = prop;
    m_labelOffsets.resize(m_prop.Basic.ComponentName.size());
}

void CBasicHalfPie::Layout() {
    m_layout.Whole = {m_location.X, m_location.Y, 0.0F, 0.0F};
    const HalfPieBasicProp& basic = m_prop.Basic;
    const float diameter = PieDiameter(basic.FixedSize, basic.FixedWidth, basic.BaseValue, basic.BasePieWidth,
                                       TotalOf(m_values));
    if (LayOutFigure({m_location, diameter, StartAngle(), kHalfTurn, m_values, basic.ComponentName,
                      m_prop.Label, m_labelOffsets},
                     m_layout)) {
        m_layout.Whole = FigureExtent(VisibleHalf(), m_layout.LabelRects);
    }
}

RectF CBasicHalfPie::VisibleHalf() const {
    const RectF& circle = m_layout.Pie;
    const float height = circle.Height * 0.5F;
    return {circle.X, IsUpper() ? circle.Y : circle.Y + height, circle.Width, height};
}

void CBasicHalfPie::Draw(IGraphicsEngine* engine) const {
    if (engine == nullptr) {
        return;
    }
    DrawHalfPie(engine);
    DrawPieLabels(*engine, m_layout, m_prop.Label);
}

void CBasicHalfPie::DrawHalfPie(IGraphicsEngine* engine) const {
    const HalfPieBasicProp& basic = m_prop.Basic;
    DrawFlatSlices(*engine, m_layout.Pie, StartAngle(), SliceSweeps(m_values, kHalfTurn),
                   basic.ComponentColor, basic.DrawSepLine == 1 ? basic.PenSepLine.Get() : nullptr);
}

void CBasicHalfPie::GetChildPosition(RectF& pie, std::vector<RectF>& labels, std::vector<RectF>&) const {
    pie = m_layout.Pie;
    labels = m_layout.LabelRects;
}

void CBasicHalfPie::SetChildPosition(const RectF&, const std::vector<RectF>& labels,
                                     const std::vector<RectF>&) {
    AddMoves(m_labelOffsets, m_layout.LabelRects, labels);
}

void CBasicHalfPie::GetChildOffset(std::vector<PointF>& labels, std::vector<PointF>&) const {
    labels = m_labelOffsets;
}

void CBasicHalfPie::SetChildOffset(const std::vector<PointF>& labels, const std::vector<PointF>&) {
    m_labelOffsets = labels;
}

} // namespace millichart
