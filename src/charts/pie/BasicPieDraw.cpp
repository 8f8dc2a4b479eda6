#include "charts/pie/BasicPie.h"

namespace millichart {

using penlode::Color;
using penlode::IGraphicsEngine;
using penlode::RectF;

namespace {

constexpr float kFullTurn = 360.0F;
constexpr float kHeightUsed = 0.9F;
constexpr float kDepthShare = 0.25F;
constexpr std::uint32_t kWallShade = 60;

/// A part of a slice's rim that faces the viewer, from one angle to another within 0 to 180 degrees.
struct Wall {
    float From;
    float To;
};

/// The walls of a slice that begins at `start` and sweeps `sweep`: what of its rim lies on the front half of
/// the ellipse. A slice that reaches round the back may show two. Angles outside the ranges have none.
std::vector<Wall> FrontWalls(float start, float sweep) {
    const float overrun = start + sweep - kFullTurn;
    if (start >= 0.0F && start < 180.0F && sweep >= 0.0F && sweep <= kFullTurn) {
        if (sweep < 180.0F - start) {
            return {{start, start + sweep}};
        }
        if (sweep <= kFullTurn - start) {
            return {{start, 180.0F}};
        }
        return {{start, 180.0F}, {0.0F, overrun}};
    }
    if (start >= 180.0F && start < kFullTurn && sweep > kFullTurn - start && sweep <= kFullTurn) {
        return {{0.0F, sweep < 540.0F - start ? overrun : 180.0F}};
    }
    return {};
}

/// Along the top face's rim one way, down, and back along the bottom's.
void FillWall(IGraphicsEngine& engine, const Wall& wall, const RectF& top, float depth, Color color) {
    penlode::GraphicsPath path;
    path.AddArc(top, wall.From, wall.To - wall.From);
    path.AddArc(penlode::Translated(top, {0.0F, depth}), wall.To, wall.From - wall.To);
    const penlode::SolidBrush brush{color};
    engine.FillPath(&brush, &path);
}

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

void CBasicPie::Draw(IGraphicsEngine* engine) const {
    if (engine == nullptr) {
        return;
    }
    if (m_prop.Basic.PieStyle == PieStyle::Flat) {
        DrawPie2D(engine);
    } else if (m_prop.Basic.PieStyle == PieStyle::WithDepth) {
        DrawPie3D(engine);
    }
    DrawPieLabels(*engine, m_layout, m_prop.Label);
    CLegendOperation::Draw(engine, m_prop.Legend, m_prop.Basic.ComponentName, m_prop.Basic.ComponentColor,
                           m_layout.LegendItemRects);
}

void CBasicPie::DrawPie2D(IGraphicsEngine* engine) const {
    const PieBasicProp& basic = m_prop.Basic;
    DrawFlatSlices(*engine, GetEllipseRect(m_layout.Pie), basic.StartAngle, SliceSweeps(m_values, kFullTurn),
                   basic.ComponentColor, basic.DrawSepLine == 1 ? basic.PenSepLine.Get() : nullptr);
}

/// Each slice's wall is painted right after its top face. Walls lie wholly below the top face's rim, so no
/// slice needs to be painted before another.
void CBasicPie::DrawPie3D(IGraphicsEngine* engine) const {
    const PieBasicProp& basic = m_prop.Basic;
    float depth = 0.0F;
    const RectF top = Get3DEllipseRect(m_layout.Pie, depth);
    const std::vector<float> sweeps = SliceSweeps(m_values, kFullTurn);
    float angle = basic.StartAngle;
    for (std::size_t i = 0; i < sweeps.size(); ++i) {
        const float start = angle < kFullTurn ? angle : angle - kFullTurn;
        if (i < basic.ComponentColor.size()) {
            const penlode::SolidBrush brush{basic.ComponentColor[i]};
            engine->FillPie(&brush, top, angle, sweeps[i]);
            for (const Wall& wall : FrontWalls(start, sweeps[i])) {
                FillWall(*engine, wall, top, depth, penlode::Shaded(basic.ComponentColor[i], kWallShade));
            }
        }
        angle = start + sweeps[i];
    }
}

} // namespace millichart
