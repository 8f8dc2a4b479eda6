#include "charts/cartesian/CartesianDrawing.h"
#include "charts/histogram/BasicHistogram.h"
#include "charts/reading/Contrast.h"
#include "charts/reading/Shade.h"
#include "foundation/Hatching.h"
#include "foundation/NumberFormat.h"
#include "penlode/engine/Finite.h"

#include <algorithm>
#include <array>

namespace millichart {

using penlode::Color;
using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;

namespace {

using Quad = std::array<PointF, 4>;

void FillQuad(IGraphicsEngine& engine, const penlode::SolidBrush& brush, const Quad& corners) {
    engine.FillPolygon(&brush, corners.data(), static_cast<std::int32_t>(corners.size()));
}

void DrawFromTo(IGraphicsEngine& engine, const penlode::Pen* pen, PointF from, PointF to) {
    engine.DrawLine(pen, from.X, from.Y, to.X, to.Y);
}

/// A grid line that runs from its tick back along a side wall or the floor, and on along the back wall.
void DrawBentLine(IGraphicsEngine& engine, const penlode::Pen* sidePen, const penlode::Pen* backPen,
                  PointF tick, PointF depth, PointF alongBack) {
    DrawFromTo(engine, sidePen, tick, tick + depth);
    DrawFromTo(engine, backPen, tick + depth, tick + alongBack + depth);
}

PointF TopLeft(const RectF& rect) {
    return rect.TopLeft();
}

PointF BottomLeft(const RectF& rect) {
    return {rect.X, rect.Y + rect.Height};
}

PointF TopRight(const RectF& rect) {
    return {rect.X + rect.Width, rect.Y};
}

PointF BottomRight(const RectF& rect) {
    return {rect.X + rect.Width, rect.Y + rect.Height};
}

} // namespace

void CBasicHistogram::Draw(IGraphicsEngine* engine) const {
    if (engine == nullptr || IsEmpty()) {
        return;
    }
    DrawBackground(engine);
    DrawVerAxis(engine);
    DrawHorAxis(engine);
    DrawPlot(engine);
    DrawCaption(engine);
    CLegendOperation::Draw(*engine, m_prop.Legend, m_prop.Plot.ComponentName, FillsOfBars(),
                           m_layout.LegendItemRects, m_layout.Legend);
}

void CBasicHistogram::DrawBackground(IGraphicsEngine* engine) const {
    if (m_prop.Plot.PieStyle == BarStyle::Flat) {
        DrawFlatBackground(*engine);
    } else {
        DrawDeepBackground(*engine);
    }
}

void CBasicHistogram::DrawFlatBackground(IGraphicsEngine& engine) const {
    const HistogramPlotProp& prop = m_prop.Plot;
    const RectF& plot = m_layout.Plot;
    if (prop.ShowBackground != 0) {
        FillRect(engine, {prop.PlotBackgroundColor}, plot);
    }
    if (GridsAreBehind(m_options)) {
        DrawFlatGrids(engine);
    }
    if (prop.ShowEdge != 0) {
        engine.DrawRectangle(prop.EdgePen.Get(), plot.X, plot.Y, plot.Width, plot.Height);
    }
    if (!GridsAreBehind(m_options)) {
        DrawFlatGrids(engine);
    }
}

void CBasicHistogram::DrawFlatGrids(IGraphicsEngine& engine) const {
    const RectF& plot = m_layout.Plot;
    const HistogramVerAxisProp& ver = m_prop.VerAxis;
    if (ver.ShowVerAxis != 0 && ver.ShowHorMinorGrid != 0) {
        DrawHorGrid(engine, GridPen(ver.HorMinorGridPen.Get(), m_options), m_layout.VerMinorTicks,
                    plot.Width);
    }
    if (ver.ShowVerAxis != 0 && ver.ShowHorMajorGrid != 0) {
        DrawHorGrid(engine, GridPen(ver.HorMajorGridPen.Get(), m_options), m_layout.VerMajorTicks,
                    plot.Width);
    }
    if (m_prop.HorAxis.ShowHorAxis != 0 && m_prop.HorAxis.ShowVerGrid != 0) {
        DrawVerGrid(engine, GridPen(m_prop.HorAxis.VerGridPen.Get(), m_options), m_layout.HorTicks,
                    plot.Height);
    }
}

void CBasicHistogram::DrawDeepBackground(IGraphicsEngine& engine) const {
    PointF depth;
    Calc3DComponentBackSurfaceOffset(depth.X, depth.Y);
    const RectF& plot = m_layout.Plot;
    const RectF back = penlode::Translated(plot, depth);
    if (m_prop.Plot.ShowBackground != 0) {
        DrawDeepWalls(engine, back);
    }
    if (GridsAreBehind(m_options)) {
        DrawDeepGrids(engine, depth);
    }
    if (m_prop.Plot.ShowEdge != 0) {
        const penlode::Pen* pen = m_prop.Plot.EdgePen.Get();
        engine.DrawRectangle(pen, back.X, back.Y, back.Width, back.Height);
        DrawFromTo(engine, pen, TopLeft(plot), TopLeft(back));
        DrawFromTo(engine, pen, BottomLeft(plot), BottomLeft(back));
        DrawFromTo(engine, pen, BottomRight(plot), BottomRight(back));
    }
    if (!GridsAreBehind(m_options)) {
        DrawDeepGrids(engine, depth);
    }
}

/// The back, the left wall and the floor; the front stays open.
void CBasicHistogram::DrawDeepWalls(IGraphicsEngine& engine, const RectF& back) const {
    const RectF& plot = m_layout.Plot;
    const penlode::SolidBrush brush{m_prop.Plot.PlotBackgroundColor};
    FillRect(engine, brush, back);
    FillQuad(engine, brush, {TopLeft(plot), BottomLeft(plot), BottomLeft(back), TopLeft(back)});
    FillQuad(engine, brush, {BottomLeft(plot), BottomRight(plot), BottomRight(back), BottomLeft(back)});
}

/// A major line shows its own pen on the left wall only, and the minor pen on the back.
void CBasicHistogram::DrawDeepGrids(IGraphicsEngine& engine, PointF depth) const {
    const HistogramVerAxisProp& ver = m_prop.VerAxis;
    const penlode::Pen* minorPen = GridPen(ver.HorMinorGridPen.Get(), m_options);
    const PointF across{m_layout.Plot.Width, 0.0F};
    if (ver.ShowVerAxis != 0 && ver.ShowHorMinorGrid != 0) {
        for (const PointF tick : m_layout.VerMinorTicks) {
            DrawBentLine(engine, minorPen, minorPen, tick, depth, across);
        }
    }
    if (ver.ShowVerAxis != 0 && ver.ShowHorMajorGrid != 0) {
        for (const PointF tick : m_layout.VerMajorTicks) {
            DrawBentLine(engine, GridPen(ver.HorMajorGridPen.Get(), m_options), minorPen, tick, depth,
                         across);
        }
    }
    const HistogramHorAxisProp& hor = m_prop.HorAxis;
    if (hor.ShowHorAxis != 0 && hor.ShowVerGrid != 0) {
        const penlode::Pen* pen = GridPen(hor.VerGridPen.Get(), m_options);
        for (const PointF tick : m_layout.HorTicks) {
            DrawBentLine(engine, pen, pen, tick, depth, {0.0F, -m_layout.Plot.Height});
        }
    }
}

void CBasicHistogram::DrawVerAxis(IGraphicsEngine* engine) const {
    if (m_prop.VerAxis.ShowVerAxis == 0) {
        return;
    }
    const TextVisitor draw = CTextPropertyOperation::DrawingOn(*engine);
    DrawVerAxisLine(*engine, m_prop.VerAxis, m_layout);
    VisitVerLabels(draw, m_prop.VerAxis, m_layout);
    VisitVerCaption(draw, m_options, m_prop.VerAxis, m_layout);
}

void CBasicHistogram::DrawHorAxis(IGraphicsEngine* engine) const {
    const HistogramHorAxisProp& axis = m_prop.HorAxis;
    if (axis.ShowHorAxis == 0) {
        return;
    }
    const penlode::Pen* pen = axis.HorAxisPen.Get();
    DrawHorAxisLine(*engine, pen, m_layout.Plot);
    TickSpan tick = TickOf(axis.ScaleStyle, kMajorTickLength);
    if (axis.ScaleStyle == ScaleStyle::Cross) {
        std::swap(tick.From, tick.To);
    }
    DrawHorTicks(*engine, pen, m_layout.HorTicks, tick);
    const TextVisitor draw = CTextPropertyOperation::DrawingOn(*engine);
    VisitGroupNames(draw);
    VisitHorCaption(draw, m_options, axis, m_layout);
}

/// All bars first, so that none covers a label.
void CBasicHistogram::DrawPlot(IGraphicsEngine* engine) const {
    VisitBars([&](const BarShape& bar) {
        if (m_prop.Plot.PieStyle == BarStyle::Flat) {
            DrawComponent2D(engine, bar.Front, bar.Fill);
        } else {
            DrawComponent3D(engine, bar.Front, bar.Fill);
        }
        HatchRectangle(*engine, bar.Front, bar.Hatch);
    });
    DrawBaseLine(*engine);
    VisitBarLabels(CTextPropertyOperation::DrawingOn(*engine));
}

/// Where bars stand on 0 and that is not an edge of the plot.
void CBasicHistogram::DrawBaseLine(IGraphicsEngine& engine) const {
    const RectF& plot = m_layout.Plot;
    const std::optional<float> y = m_layout.BaseLine;
    if (y && m_prop.HorAxis.ShowHorAxis != 0 && *y > plot.Y && *y < plot.Bottom()) {
        DrawFromTo(engine, m_prop.HorAxis.HorAxisPen.Get(), {plot.X, *y}, {plot.Right(), *y});
    }
}

BarShapes CBasicHistogram::GetShapes() const {
    BarShapes shapes;
    Calc3DComponentBackSurfaceOffset(shapes.Depth.X, shapes.Depth.Y);
    VisitBars([&shapes](const BarShape& bar) { shapes.Bars.push_back(bar); });
    return shapes;
}

void CBasicHistogram::VisitTexts(const TextVisitor& visit) const {
    if (IsEmpty()) {
        return;
    }
    VisitVerLabels(visit, m_prop.VerAxis, m_layout);
    VisitVerCaption(visit, m_options, m_prop.VerAxis, m_layout);
    VisitGroupNames(visit);
    VisitHorCaption(visit, m_options, m_prop.HorAxis, m_layout);
    VisitBarLabels(visit);
    VisitCaption(visit, m_options, m_prop.Caption, m_layout);
    CLegendOperation::VisitNames(visit, m_prop.Legend, m_prop.Plot.ComponentName, m_layout.LegendItemRects,
                                 kLegendSquareFactor, m_layout.Legend);
}

/// The bars of the last layout that have a place and still have both a name and a value.
template <class Visit> void CBasicHistogram::VisitFronts(const Visit& visit) const {
    const std::size_t groups = std::min(m_layout.ComponentRects.size(), m_values.size());
    for (std::size_t group = 0; group < groups; ++group) {
        const std::vector<RectF>& fronts = m_layout.ComponentRects[group];
        const std::size_t bars =
            std::min({fronts.size(), m_prop.Plot.ComponentName.size(), m_values[group].size()});
        for (const std::size_t i : DrawingOrder(group, bars)) {
            if (penlode::IsFinite(fronts[i])) {
                visit(group, i, fronts[i]);
            }
        }
    }
}

std::vector<Fill> CBasicHistogram::FillsOfBars() const {
    return FillsOf(m_options, m_prop.Plot.ComponentColor, m_prop.Plot.ComponentName.size());
}

template <class Visit> void CBasicHistogram::VisitBars(const Visit& visit) const {
    const std::vector<Fill> fills = FillsOfBars();
    VisitFronts([&](std::size_t group, std::size_t i, const RectF& front) {
        if (i < fills.size()) {
            visit({group, i, front, fills[i].Color, fills[i].Hatch});
        }
    });
}

void CBasicHistogram::VisitGroupNames(const TextVisitor& visit) const {
    const HistogramHorAxisProp& axis = m_prop.HorAxis;
    const bool areShown = axis.ShowHorAxis != 0 && ShowsGroupNames();
    const std::size_t names = std::min(m_layout.GroupNameRects.size(), m_groupNames.size());
    if (areShown && !m_layout.FittedNames.empty()) {
        VisitFittedNames(visit, TextRole::GroupName, axis.GroupNameTextProperty, m_layout);
        return;
    }
    for (std::size_t i = 0; areShown && i < names; ++i) {
        CTextPropertyOperation::Visit(visit, {TextRole::GroupName, i}, m_groupNames[i],
                                      axis.GroupNameTextProperty, m_layout.GroupNameRects[i].Center());
    }
}

/// On the bar's top side by side, at its right when stacked.
void CBasicHistogram::VisitBarLabels(const TextVisitor& visit) const {
    if (!m_layout.ValueLabels.empty()) {
        VisitFittedLabels(visit);
        return;
    }
    const HistogramPlotProp& prop = m_prop.Plot;
    const bool isStacked = prop.Juxtaposition == 0;
    VisitFronts([&](std::size_t group, std::size_t i, const RectF& bar) {
        const PointF at = isStacked ? PointF{bar.X + bar.Width, bar.Y + bar.Height * 0.5F}
                                    : PointF{bar.X + bar.Width * 0.5F, bar.Y};
        const std::string text = ComponentInfo(group, i);
        if (!text.empty()) {
            CTextPropertyOperation::Visit(visit, {TextRole::BarLabel, group, i}, text,
                                          prop.ComponentInfoTextProperty, at,
                                          isStacked ? TextAnchor::LeftCenter : TextAnchor::BottomCenter);
        }
    });
}

void CBasicHistogram::VisitFittedLabels(const TextVisitor& visit) const {
    const bool isOnGround = m_options.Contrast == ChartContrast::Kept && m_prop.Plot.ShowBackground != 0;
    const std::vector<Fill> fills = FillsOfBars();
    VisitFronts([&](std::size_t group, std::size_t i, const RectF&) {
        const PlacedValue& label = m_layout.ValueLabels[group][i];
        if (!label.IsShown) {
            return;
        }
        const auto contrasting = [&](ChartText&& text) {
            if (label.IsInside && i < fills.size()) {
                text.Color = ReadableOn(fills[i].Color);
            } else if (isOnGround) {
                text.Color = ReadableOver(text.Color, m_prop.Plot.PlotBackgroundColor);
            }
            visit(std::move(text));
        };
        CTextPropertyOperation::Visit(contrasting, {TextRole::BarLabel, group, i}, ComponentInfo(group, i),
                                      m_prop.Plot.ComponentInfoTextProperty, label.Center);
    });
}

/// Empty for a label that shows nothing.
std::string CBasicHistogram::ComponentInfo(std::size_t group, std::size_t component) const {
    const HistogramPlotProp& prop = m_prop.Plot;
    std::string text;
    if (prop.ShowComponentName != 0) {
        text = prop.ComponentName[component];
    }
    if (prop.ShowComponentName != 0 && prop.ShowComponentValue != 0) {
        text += prop.ConponentInfoSeparator + (prop.ConponentInfoInSingleRow == 0 ? "\n" : "");
    }
    if (prop.ShowComponentValue != 0) {
        text += NumberFormat(m_options).ValueText(m_values[group][component], 0);
    }
    return Decorated(text, prop.ComponentInfoTextProperty);
}

void CBasicHistogram::DrawComponent2D(IGraphicsEngine* engine, const RectF& bar, Color color) const {
    FillRect(*engine, {color}, bar);
}

/// Front, top, right side. The front keeps its colour's alpha; the faces in shadow are opaque.
void CBasicHistogram::DrawComponent3D(IGraphicsEngine* engine, const RectF& bar, Color color) const {
    PointF depth;
    Calc3DComponentBackSurfaceOffset(depth.X, depth.Y);
    const RectF back = penlode::Translated(bar, depth);
    FillRect(*engine, {color}, bar);
    FillQuad(*engine, {ShadeOf(color, ShadedFace::BarTop, m_options)},
             {TopLeft(bar), TopRight(bar), TopRight(back), TopLeft(back)});
    FillQuad(*engine, {ShadeOf(color, ShadedFace::BarSide, m_options)},
             {TopRight(bar), BottomRight(bar), BottomRight(back), TopRight(back)});
}

void CBasicHistogram::DrawCaption(IGraphicsEngine* engine) const {
    VisitCaption(CTextPropertyOperation::DrawingOn(*engine), m_options, m_prop.Caption, m_layout);
}

} // namespace millichart
