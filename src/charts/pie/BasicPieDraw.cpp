#include "charts/pie/BasicPie.h"
#include "charts/pie/PieSlices.h"
#include "charts/pie/SliceLabels.h"
#include "foundation/TextPropertyOperation.h"

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::RectF;

namespace {

constexpr float kHeightUsed = 0.9F;
constexpr float kDepthShare = 0.25F;

} // namespace

RectF CBasicPie::GetEllipseRect(const RectF& rect) const {
    float depth = 0.0F;
    switch (m_prop.Basic.PieStyle) {
    case PieStyle::Flat:
        return rect;
    case PieStyle::WithDepth:
        return Get3DEllipseRect(rect, depth);
    default:
        return {};
    }
}

RectF CBasicPie::Get3DEllipseRect(const RectF& rect, float& depth) const {
    const float used = rect.Height * kHeightUsed;
    depth = kDepthShare * used;
    return {rect.X, rect.Y, rect.Width, used - depth};
}

PieShapes CBasicPie::FlatShapes() const {
    const PieBasicProp& basic = m_prop.Basic;
    return {GetEllipseRect(m_layout.Pie), 0.0F, basic.DrawSepLine == 1 ? basic.PenSepLine.Get() : nullptr,
            FlatSlices(basic.StartAngle, SliceSweeps(m_values, kFullTurn), FillsFor(basic))};
}

PieShapes CBasicPie::DeepShapes() const {
    const PieBasicProp& basic = m_prop.Basic;
    PieShapes shapes;
    shapes.Face = Get3DEllipseRect(m_layout.Pie, shapes.Depth);
    shapes.Slices =
        DeepSlices(basic.StartAngle, SliceSweeps(m_values, kFullTurn), FillsFor(basic), m_options);
    return shapes;
}

PieShapes CBasicPie::GetShapes() const {
    switch (m_prop.Basic.PieStyle) {
    case PieStyle::Flat:
        return FlatShapes();
    case PieStyle::WithDepth:
        return DeepShapes();
    default:
        return {};
    }
}

void CBasicPie::DrawPie2D(IGraphicsEngine* engine) const {
    DrawSlices(*engine, FlatShapes());
}

void CBasicPie::DrawPie3D(IGraphicsEngine* engine) const {
    DrawSlices(*engine, DeepShapes());
}

void CBasicPie::VisitTexts(const TextVisitor& visit) const {
    VisitLabels(m_prop.Label, visit);
    VisitTitle(visit);
    CLegendOperation::VisitNames(visit, m_prop.Legend, m_prop.Basic.ComponentName, m_layout.LegendItemRects,
                                 kLegendSquareFactor, m_layout.Legend);
}

void CBasicPie::Draw(IGraphicsEngine* engine) const {
    if (engine == nullptr) {
        return;
    }
    if (m_prop.Basic.PieStyle == PieStyle::Flat) {
        DrawPie2D(engine);
    } else if (m_prop.Basic.PieStyle == PieStyle::WithDepth) {
        DrawPie3D(engine);
    }
    DrawLeadLines(*engine, m_prop.Label, m_layout.LeadLines);
    VisitLabels(m_prop.Label, CTextPropertyOperation::DrawingOn(*engine));
    VisitTitle(CTextPropertyOperation::DrawingOn(*engine));
    CLegendOperation::Draw(*engine, m_prop.Legend, m_prop.Basic.ComponentName, FillsFor(m_prop.Basic),
                           m_layout.LegendItemRects, m_layout.Legend);
}

} // namespace millichart
