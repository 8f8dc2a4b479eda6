#include "charts/pie/BasicHalfPie.h"

#include "charts/pie/PiePlacement.h"
#include "charts/pie/PieSlices.h"
#include "charts/pie/SliceLabels.h"
#include "foundation/TextPropertyOperation.h"

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::RectF;

void CBasicHalfPie::SetHalfPieProp(const HalfPieProp& prop) {
    m_prop = prop;
    m_labelOffsets.resize(m_prop.Basic.ComponentName.size());
}

void CBasicHalfPie::Layout() {
    m_layout.Whole = {m_location.X, m_location.Y, 0.0F, 0.0F};
    const HalfPieBasicProp& basic = m_prop.Basic;
    if (PlacePie({m_location, PieDiameter(basic, m_values), StartAngle(), kHalfTurn, m_values,
                  basic.ComponentName, m_prop.Label, m_labelOffsets, NumberFormat(m_options)},
                 m_layout)) {
        if (m_options.SliceLabels == SliceLabelFit::Apart) {
            const float radius = m_layout.Pie.Width * 0.5F;
            KeepLabelsApart({m_layout.Pie.Center(), radius, radius, 0.0F, IsUpper(), !IsUpper()},
                            {StartAngle(), SliceSweeps(m_values, kHalfTurn), m_prop.Label, m_labelOffsets},
                            m_layout);
        }
        TakeWhole(VisibleHalf(), m_prop.Label.PieLabelTextProperty);
        PlaceTitle(IsUpper() ? TitleSide::Above : TitleSide::Below);
    }
}

void CBasicHalfPie::VisitTexts(const TextVisitor& visit) const {
    VisitLabels(m_prop.Label, visit);
    VisitTitle(visit);
}

RectF CBasicHalfPie::VisibleHalf() const {
    const RectF& circle = m_layout.Pie;
    const float height = circle.Height * 0.5F;
    return {circle.X, IsUpper() ? circle.Y : circle.Y + height, circle.Width, height};
}

PieShapes CBasicHalfPie::GetShapes() const {
    const HalfPieBasicProp& basic = m_prop.Basic;
    return {m_layout.Pie, 0.0F, basic.DrawSepLine == 1 ? basic.PenSepLine.Get() : nullptr,
            FlatSlices(StartAngle(), SliceSweeps(m_values, kHalfTurn), FillsFor(basic))};
}

void CBasicHalfPie::Draw(IGraphicsEngine* engine) const {
    if (engine == nullptr) {
        return;
    }
    DrawHalfPie(engine);
    DrawLeadLines(*engine, m_prop.Label, m_layout.LeadLines);
    VisitTexts(CTextPropertyOperation::DrawingOn(*engine));
}

void CBasicHalfPie::DrawHalfPie(IGraphicsEngine* engine) const {
    DrawSlices(*engine, GetShapes());
}

} // namespace millichart
