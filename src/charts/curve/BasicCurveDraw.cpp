#include "charts/cartesian/CartesianDrawing.h"
#include "charts/curve/BasicCurve.h"
#include "charts/curve/CurveMarker.h"
#include "charts/curve/CurvePlacement.h"
#include "charts/curve/CurveStyle.h"
#include "charts/reading/Contrast.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;

namespace {

bool IsPlaced(PointF point) {
    return std::isfinite(point.X) && std::isfinite(point.Y);
}

using Line = std::span<const PointF>;

/// Points and which of them are null. A point without a flag of its own is not.
struct Points {
    const std::vector<PointF>& List;
    const std::vector<bool>& Nulls;

    bool IsNull(std::size_t index) const { return index < Nulls.size() && Nulls[index]; }
};

bool Breaks(const CurveStyle& style) {
    return style.NullValue == CurveNullValueStyle::Break;
}

/// The points up to each gap, and those after the last one, straight from the list; the empty runs too.
std::vector<Line> LinesOf(const Points& points, bool breaks) {
    const Line all(points.List);
    std::vector<Line> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if ((breaks && points.IsNull(i)) || !IsPlaced(all[i])) {
            lines.push_back(all.subspan(start, i - start));
            start = i + 1;
        }
    }
    lines.push_back(all.subspan(start));
    return lines;
}

penlode::Pen PenOf(const CurveStyle& style) {
    penlode::Pen pen(style.LineColor, style.Width);
    pen.SetDashStyle(static_cast<penlode::DashStyle>(style.Dash));
    return pen;
}

/// The lines of a curve, up to each gap and behind the last one. An engine of this library makes the points
/// as it needs them; for any other, each line is a list for as long as it is drawn.
void DrawTrace(IGraphicsEngine& engine, const CurveTrace& trace, const CurveStyle& style) {
    const penlode::Pen pen = PenOf(style);
    const CurveLine line(trace, Breaks(style));
    auto* const surface = dynamic_cast<penlode::IDataLineSurface*>(&engine);
    std::size_t end = 0;
    for (std::size_t first = 0; first <= line.Size(); first = end + 1) {
        if (surface != nullptr) {
            surface->DrawDataLine(&pen, line, first, end);
        } else {
            end = penlode::DrawAsList(engine, pen, line, first);
        }
    }
}

void DrawMarkers(IGraphicsEngine& engine, const CurveTrace& trace, const CurveStyle& style) {
    const CurveMarker marker(style);
    if (!marker.IsDrawn()) {
        return;
    }
    trace.ForEach([&](std::size_t index, PointF at) {
        if (IsPlaced(at) && !trace.IsNull(index)) {
            marker.Draw(engine, at);
        }
    });
}

} // namespace

void CBasicCurve::Draw(IGraphicsEngine* engine) const {
    if (engine == nullptr || m_layout.Curves.empty()) {
        return;
    }
    if (m_prop.Plot.ShowBackground != 0) {
        FillRect(*engine, {m_prop.Plot.PlotBackgroundColor}, m_layout.Plot);
    }
    if (GridsAreBehind(m_options)) {
        DrawHorGrids(*engine);
        DrawVerGrids(*engine);
    }
    DrawVerAxis(engine);
    DrawHorAxis(engine);
    DrawPlot(engine);
    DrawCaption(engine);
    DrawLegend(engine);
}

void CBasicCurve::DrawVerAxis(IGraphicsEngine* engine) const {
    const CurveVerAxisProp& axis = m_prop.VerAxis;
    if (axis.ShowVerAxis == 0) {
        return;
    }
    const TextVisitor draw = CTextPropertyOperation::DrawingOn(*engine);
    DrawVerAxisLine(*engine, axis, m_layout);
    VisitVerLabels(draw, axis, m_layout);
    if (!GridsAreBehind(m_options)) {
        DrawHorGrids(*engine);
    }
    VisitVerCaption(draw, m_options, axis, m_layout);
}

void CBasicCurve::DrawHorGrids(IGraphicsEngine& engine) const {
    const CurveVerAxisProp& axis = m_prop.VerAxis;
    const float width = m_layout.Plot.Width;
    if (axis.ShowVerAxis != 0 && axis.ShowHorMinorGrid != 0) {
        DrawHorGrid(engine, GridPen(axis.HorMinorGridPen.Get(), m_options), m_layout.VerMinorTicks, width);
    }
    if (axis.ShowVerAxis != 0 && axis.ShowHorMajorGrid != 0) {
        DrawHorGrid(engine, GridPen(axis.HorMajorGridPen.Get(), m_options), m_layout.VerMajorTicks, width);
    }
}

void CBasicCurve::DrawVerGrids(IGraphicsEngine& engine) const {
    const CurveHorAxisProp& axis = m_prop.HorAxis;
    if (axis.ShowHorAxis != 0 && axis.ShowVerGrid != 0) {
        DrawVerGrid(engine, GridPen(axis.VerGridPen.Get(), m_options), m_layout.HorTicks,
                    m_layout.Plot.Height, StepOf(axis.VerGridStep));
    }
}

void CBasicCurve::DrawHorAxis(IGraphicsEngine* engine) const {
    const CurveHorAxisProp& axis = m_prop.HorAxis;
    if (axis.ShowHorAxis == 0) {
        return;
    }
    const RectF& plot = m_layout.Plot;
    const TextVisitor draw = CTextPropertyOperation::DrawingOn(*engine);
    DrawHorAxisLine(*engine, axis.HorAxisPen.Get(), plot);
    DrawHorTicks(*engine, axis.HorAxisPen.Get(), m_layout.HorTicks, TickOf(axis.ScaleStyle, kMajorTickLength),
                 StepOf(axis.ScaleStep));
    VisitHorLabels(draw);
    if (!GridsAreBehind(m_options)) {
        DrawVerGrids(*engine);
    }
    VisitHorCaption(draw, m_options, axis, m_layout);
}

void CBasicCurve::VisitTexts(const TextVisitor& visit) const {
    if (m_layout.Curves.empty()) {
        return;
    }
    VisitVerLabels(visit, m_prop.VerAxis, m_layout);
    VisitVerCaption(visit, m_options, m_prop.VerAxis, m_layout);
    VisitHorLabels(visit);
    VisitHorCaption(visit, m_options, m_prop.HorAxis, m_layout);
    VisitCaption(visit, m_options, m_prop.Caption, m_layout);
    CLegendOperation::VisitNames(visit, m_prop.Legend, m_prop.Plot.CurveName, m_layout.LegendItemRects,
                                 kLegendSampleFactor, m_layout.Legend);
}

std::size_t CBasicCurve::StepOf(std::int32_t step) const {
    return m_layout.LabelsBelow == HorLabels::Made ? 1 : static_cast<std::size_t>(std::max(step, 1));
}

void CBasicCurve::VisitHorLabels(const TextVisitor& visit) const {
    const CurveHorAxisProp& axis = m_prop.HorAxis;
    const bool areShown = axis.ShowHorAxis != 0 && ShowsHorLabels();
    if (areShown && !m_layout.FittedNames.empty()) {
        VisitFittedNames(visit, TextRole::HorAxisLabel, axis.HorLabelTextProperty, m_layout);
        return;
    }
    const std::vector<std::string>& labels = HorLabelTexts();
    const std::size_t count = std::min(m_layout.HorLabelRects.size(), labels.size());
    for (std::size_t i = 0; areShown && i < count; i += StepOf(axis.LabelStep)) {
        CTextPropertyOperation::Visit(visit, {TextRole::HorAxisLabel, i}, labels[i],
                                      axis.HorLabelTextProperty, m_layout.HorLabelRects[i].Center());
    }
}

void CBasicCurve::DrawPlot(IGraphicsEngine* engine) const {
    const CurvePlotProp& prop = m_prop.Plot;
    const RectF& plot = m_layout.Plot;
    if (prop.ShowEdge != 0) {
        engine->DrawRectangle(prop.EdgePen.Get(), plot.X, plot.Y, plot.Width, plot.Height);
    }
    for (std::size_t i = 0; i < std::min(prop.CurveName.size(), m_layout.Curves.size()); ++i) {
        const CurveStyle style = StyleOf(prop, i, m_options);
        DrawTrace(*engine, m_layout.Curves[i], style);
        DrawMarkers(*engine, m_layout.Curves[i], style);
    }
}

std::vector<CurveShape> CBasicCurve::GetShapes() const {
    std::vector<CurveShape> shapes;
    const std::size_t curves = std::min(m_prop.Plot.CurveName.size(), m_layout.Curves.size());
    for (std::size_t i = 0; i < curves; ++i) {
        const CurveTrace& trace = m_layout.Curves[i];
        const CurveStyle style = StyleOf(m_prop.Plot, i, m_options);
        shapes.push_back({style, LinesOf({trace.Points(), trace.NullFlags()}, Breaks(style)), &trace});
    }
    return shapes;
}

void CBasicCurve::DrawLine(IGraphicsEngine* engine, const std::vector<PointF>& line,
                           const std::vector<PointF>& markers, const std::vector<bool>& nulls,
                           penlode::Color color, float width, std::int32_t dashStyle, std::int32_t dotStyle,
                           penlode::Color dotColor, float dotWidth, std::int32_t nullStyle) const {
    const CurveStyle style{color, width, dashStyle, dotStyle, dotColor, dotWidth, nullStyle};
    const penlode::Pen pen = PenOf(style);
    for (const Line& run : LinesOf({line, nulls}, Breaks(style))) {
        engine->DrawLines(&pen, run.data(), static_cast<std::int32_t>(run.size()));
    }
    const CurveMarker marker(style);
    const Points flagged{markers, nulls};
    for (std::size_t i = 0; marker.IsDrawn() && i < markers.size(); ++i) {
        if (IsPlaced(markers[i]) && !flagged.IsNull(i)) {
            marker.Draw(*engine, markers[i]);
        }
    }
}

void CBasicCurve::DrawLegend(IGraphicsEngine* engine) const {
    CLegendOperation::Draw(
        *engine, m_prop.Legend, m_prop.Plot.CurveName, m_layout.LegendItemRects, kLegendSampleFactor,
        [&](std::size_t index, const RectF& item) { DrawSample(*engine, index, item); }, m_layout.Legend);
}

/// A piece of the curve with a marker on it. The marker is drawn twice, as a line of two points has two.
void CBasicCurve::DrawSample(IGraphicsEngine& engine, std::size_t index, const RectF& item) const {
    const float middle = item.Y + item.Height * 0.5F;
    const PointF center{item.X + item.Height, middle};
    const CurveStyle style = StyleOf(m_prop.Plot, index, m_options);
    DrawLine(&engine, {{item.X, middle}, {item.X + kLegendSampleFactor * item.Height, middle}},
             {center, center}, {false, false}, style.LineColor, style.Width, style.Dash, style.Dot,
             style.DotColor, style.DotWidth, style.NullValue);
}

void CBasicCurve::DrawCaption(IGraphicsEngine* engine) const {
    VisitCaption(CTextPropertyOperation::DrawingOn(*engine), m_options, m_prop.Caption, m_layout);
}

} // namespace millichart
