#include "charts/cartesian/CartesianDrawing.h"

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;

namespace {

void DrawVerTicks(IGraphicsEngine& engine, const penlode::Pen* pen, const std::vector<PointF>& ticks,
                  TickSpan tick) {
    if (tick.From == tick.To) {
        return;
    }
    for (const PointF point : ticks) {
        engine.DrawLine(pen, point.X - tick.From, point.Y, point.X - tick.To, point.Y);
    }
}

/// A label that was thinned out; a classical one is drawn even if it is empty.
bool IsLeftOut(const CartesianLayout& layout, std::size_t label) {
    return layout.VerLabelTexts[label].empty() && layout.VerLabelRects[label].Height == 0.0F;
}

} // namespace

TickSpan TickOf(std::int32_t style, float length) {
    switch (style) {
    case ScaleStyle::Outer:
        return {0.0F, length};
    case ScaleStyle::Inner:
        return {0.0F, -length};
    case ScaleStyle::Cross:
        return {length * 0.5F, -length * 0.5F};
    default:
        return {};
    }
}

void DrawVerAxisLine(IGraphicsEngine& engine, const VerAxisProp& prop, const CartesianLayout& layout) {
    const RectF& plot = layout.Plot;
    const penlode::Pen* pen = prop.VerAxisPen.Get();
    engine.DrawLine(pen, plot.X, plot.Y, plot.X, plot.Y + plot.Height);
    DrawVerTicks(engine, pen, layout.VerMajorTicks, TickOf(prop.MajorScaleStyle, kMajorTickLength));
    DrawVerTicks(engine, pen, layout.VerMinorTicks, TickOf(prop.MinorScaleStyle, kMinorTickLength));
}

void DrawHorGrid(IGraphicsEngine& engine, const penlode::Pen* pen, const std::vector<PointF>& ticks,
                 float plotWidth) {
    for (const PointF tick : ticks) {
        engine.DrawLine(pen, tick.X, tick.Y, tick.X + plotWidth, tick.Y);
    }
}

void DrawVerGrid(IGraphicsEngine& engine, const penlode::Pen* pen, const std::vector<PointF>& ticks,
                 float plotHeight, std::size_t step) {
    for (std::size_t i = 0; i < ticks.size(); i += step) {
        engine.DrawLine(pen, ticks[i].X, ticks[i].Y, ticks[i].X, ticks[i].Y - plotHeight);
    }
}

void DrawHorAxisLine(IGraphicsEngine& engine, const penlode::Pen* pen, const RectF& plot) {
    const float bottom = plot.Y + plot.Height;
    engine.DrawLine(pen, plot.X, bottom, plot.X + plot.Width, bottom);
}

void DrawHorTicks(IGraphicsEngine& engine, const penlode::Pen* pen, const std::vector<PointF>& ticks,
                  TickSpan tick, std::size_t step) {
    for (std::size_t i = 0; tick.From != tick.To && i < ticks.size(); i += step) {
        engine.DrawLine(pen, ticks[i].X, ticks[i].Y + tick.From, ticks[i].X, ticks[i].Y + tick.To);
    }
}

void FillRect(IGraphicsEngine& engine, const penlode::SolidBrush& brush, const RectF& rect) {
    engine.FillRectangle(&brush, rect.X, rect.Y, rect.Width, rect.Height);
}

void VisitVerLabels(const TextVisitor& visit, const VerAxisProp& prop, const CartesianLayout& layout) {
    const bool isShown = prop.ShowVerAxis != 0 && prop.ShowVerAxisLabel != 0;
    for (std::size_t i = 0; isShown && i < layout.VerLabelRects.size(); ++i) {
        if (IsLeftOut(layout, i)) {
            continue;
        }
        CTextPropertyOperation::Visit(visit, {TextRole::VerAxisLabel, i}, layout.VerLabelTexts[i],
                                      prop.VerAxisLabelTextProperty, layout.VerLabelRects[i].Center());
    }
}

void VisitVerCaption(const TextVisitor& visit, const ChartOptions& options, const VerAxisProp& prop,
                     const CartesianLayout& layout) {
    if (prop.ShowVerAxis != 0 && prop.ShowVerCaption != 0) {
        CTextPropertyOperation::Visit(visit, {TextRole::VerCaption}, CaptionShown(options, prop.VerCaption),
                                      prop.VerCaptionTextProperty, layout.VerCaption.Center());
    }
}

void VisitCaption(const TextVisitor& visit, const ChartOptions& options, const CaptionProp& prop,
                  const CartesianLayout& layout) {
    if (prop.ShowCaption != 0) {
        CTextPropertyOperation::Visit(visit, {TextRole::Caption}, CaptionShown(options, prop.Caption),
                                      prop.CaptionTextProperty, layout.Caption.Center());
    }
}

void VisitFittedNames(const TextVisitor& visit, TextRole role, const TextProperty& look,
                      const CartesianLayout& layout) {
    for (const FittedName& name : layout.FittedNames) {
        const auto turned = [&](ChartText&& text) {
            text.Angle = name.Angle;
            visit(std::move(text));
        };
        CTextPropertyOperation::Visit(turned, {role, name.Index}, name.Text, look, name.Box.Center());
    }
}

} // namespace millichart
