#include "charts/cartesian/CartesianDrawing.h"
#include "charts/curve/BasicCurve.h"
#include "charts/curve/CurveMarker.h"
#include "charts/curve/CurveStyle.h"
#include "foundation/TextPropertyOperation.h"

#include <algorithm>
#include <cmath>

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;

namespace {

std::size_t StepOf(std::int32_t step) {
    return static_cast<std::size_t>(std::max(step, 1));
}

bool IsPlaced(PointF point) {
    return std::isfinite(point.X) && std::isfinite(point.Y);
}

/// Points and which of them are null; whether any is, and whether any has no place, is known beforehand.
struct Points {
    const std::vector<PointF>& List;
    const std::vector<bool>& Nulls;
    bool HasNull;
    bool HasUnplaced;

    bool IsNull(std::size_t index) const { return HasNull && index < Nulls.size() && Nulls[index]; }

    bool HasNoPlace(std::size_t index) const { return HasUnplaced && !IsPlaced(List[index]); }
};

Points PointsOf(const CurveFigure& curve) {
    return {curve.Points, curve.NullFlags, curve.HasNull, curve.HasUnplaced};
}

/// The points up to each gap, and those after the last one, straight from the list. Every run makes a call,
/// the empty ones too.
void DrawRuns(IGraphicsEngine& engine, const Points& line, const CurveStyle& style) {
    penlode::Pen pen(style.LineColor, style.Width);
    pen.SetDashStyle(static_cast<penlode::DashStyle>(style.Dash));
    const bool breaks = style.NullValue == CurveNullValueStyle::Break;
    const auto drawRun = [&](std::size_t start, std::size_t end) {
        engine.DrawLines(&pen, line.List.data() + start, static_cast<std::int32_t>(end - start));
    };
    std::size_t start = 0;
    const std::size_t searched = line.HasUnplaced || (breaks && line.HasNull) ? line.List.size() : 0;
    for (std::size_t i = 0; i < searched; ++i) {
        if ((breaks && line.IsNull(i)) || line.HasNoPlace(i)) {
            drawRun(start, i);
            start = i + 1;
        }
    }
    drawRun(start, line.List.size());
}

void DrawMarkers(IGraphicsEngine& engine, const Points& markers, const CurveStyle& style) {
    const CurveMarker marker(style);
    for (std::size_t i = 0; marker.IsDrawn() && i < markers.List.size(); ++i) {
        if (!markers.IsNull(i) && !markers.HasNoPlace(i)) {
            marker.Draw(engine, markers.List[i]);
        }
    }
}

} // namespace

void CBasicCurve::Draw(IGraphicsEngine* engine) const {
    if (engine == nullptr) {
        return;
    }
    if (m_prop.Plot.ShowBackground != 0) {
        FillRect(*engine, {m_prop.Plot.PlotBackgroundColor}, m_layout.Plot);
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
    DrawVerAxisLine(*engine, axis, m_layout);
    DrawVerLabels(*engine, axis, m_layout);
    if (axis.ShowHorMinorGrid != 0) {
        DrawHorGrid(*engine, axis.HorMinorGridPen.Get(), m_layout.VerMinorTicks, m_layout.Plot.Width);
    }
    if (axis.ShowHorMajorGrid != 0) {
        DrawHorGrid(*engine, axis.HorMajorGridPen.Get(), m_layout.VerMajorTicks, m_layout.Plot.Width);
    }
    DrawCaptionText(*engine, axis.ShowVerCaption, axis.VerCaption, axis.VerCaptionTextProperty,
                    m_layout.VerCaption);
}

void CBasicCurve::DrawHorAxis(IGraphicsEngine* engine) const {
    const CurveHorAxisProp& axis = m_prop.HorAxis;
    if (axis.ShowHorAxis == 0) {
        return;
    }
    const RectF& plot = m_layout.Plot;
    DrawHorAxisLine(*engine, axis.HorAxisPen.Get(), plot);
    DrawHorTicks(*engine, axis.HorAxisPen.Get(), m_layout.HorTicks, TickOf(axis.ScaleStyle, kMajorTickLength),
                 StepOf(axis.ScaleStep));
    DrawHorLabels(*engine);
    if (axis.ShowVerGrid != 0) {
        DrawVerGrid(*engine, axis.VerGridPen.Get(), m_layout.HorTicks, plot.Height, StepOf(axis.VerGridStep));
    }
    DrawCaptionText(*engine, axis.ShowHorCaption, axis.HorCaption, axis.HorCaptionTextProperty,
                    m_layout.HorCaption);
}

void CBasicCurve::DrawHorLabels(IGraphicsEngine& engine) const {
    const CurveHorAxisProp& axis = m_prop.HorAxis;
    const std::size_t count = std::min(m_layout.HorLabelRects.size(), m_labels.size());
    for (std::size_t i = 0; axis.ShowLabel != 0 && i < count; i += StepOf(axis.LabelStep)) {
        CTextPropertyOperation::DrawTextAtCenter(&engine, m_labels[i], axis.HorLabelTextProperty,
                                                 m_layout.HorLabelRects[i].Center());
    }
}

void CBasicCurve::DrawPlot(IGraphicsEngine* engine) const {
    const CurvePlotProp& prop = m_prop.Plot;
    const RectF& plot = m_layout.Plot;
    if (prop.ShowEdge != 0) {
        engine->DrawRectangle(prop.EdgePen.Get(), plot.X, plot.Y, plot.Width, plot.Height);
    }
    const std::size_t curves = std::min(prop.CurveName.size(), m_layout.Curves.size());
    for (std::size_t i = 0; i < curves; ++i) {
        const Points curve = PointsOf(m_layout.Curves[i]);
        const CurveStyle style = StyleOf(prop, i);
        DrawRuns(*engine, curve, style);
        DrawMarkers(*engine, curve, style);
    }
}

void CBasicCurve::DrawLine(IGraphicsEngine* engine, const std::vector<PointF>& line,
                           const std::vector<PointF>& markers, const std::vector<bool>& nulls,
                           penlode::Color color, float width, std::int32_t dashStyle, std::int32_t dotStyle,
                           penlode::Color dotColor, float dotWidth, std::int32_t nullStyle) const {
    const CurveStyle style{color, width, dashStyle, dotStyle, dotColor, dotWidth, nullStyle};
    DrawRuns(*engine, {line, nulls, true, true}, style);
    DrawMarkers(*engine, {markers, nulls, true, true}, style);
}

void CBasicCurve::DrawLegend(IGraphicsEngine* engine) const {
    const std::vector<RectF>& items = m_layout.LegendItemRects;
    if (m_prop.Legend.ShowLegend == 0 || items.empty()) {
        return;
    }
    CLegendOperation::DrawBox(engine, m_prop.Legend, items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        DrawLegendItem(*engine, i);
    }
}

/// A piece of the curve with a marker on it, and the name. The marker is drawn twice, as a line of two points
/// has two.
void CBasicCurve::DrawLegendItem(IGraphicsEngine& engine, std::size_t index) const {
    const RectF& item = m_layout.LegendItemRects[index];
    const float width = 2.0F * item.Height;
    const float middle = item.Y + item.Height * 0.5F;
    const PointF center{item.X + item.Height, middle};
    const CurveStyle style = StyleOf(m_prop.Plot, index);
    DrawLine(&engine, {{item.X, middle}, {item.X + width, middle}}, {center, center}, {false, false},
             style.LineColor, style.Width, style.Dash, style.Dot, style.DotColor, style.DotWidth,
             style.NullValue);
    if (index < m_prop.Plot.CurveName.size()) {
        CLegendOperation::DrawName(&engine, m_prop.Legend, m_prop.Plot.CurveName[index],
                                   {item.X + width, item.Y, item.Width - width, item.Height});
    }
}

void CBasicCurve::DrawCaption(IGraphicsEngine* engine) const {
    const CaptionProp& caption = m_prop.Caption;
    DrawCaptionText(*engine, caption.ShowCaption, caption.Caption, caption.CaptionTextProperty,
                    m_layout.Caption);
}

} // namespace millichart
