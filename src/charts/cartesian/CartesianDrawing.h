#pragma once

#include "charts/cartesian/CartesianPlacement.h"
#include "charts/cartesian/ReadableFrame.h"
#include "foundation/CaptionProp.h"
#include "foundation/TextPropertyOperation.h"
#include "penlode/IGraphicsEngine.h"

/// What bar and line charts share in their drawing: ticks, labels, grids, captions.
namespace millichart {

inline constexpr float kMajorTickLength = 1.0F; ///< mm, as every tick of a horizontal axis
inline constexpr float kMinorTickLength = 0.5F;

/// A tick along its axis's outward direction, in mm from the axis.
struct TickSpan {
    float From = 0.0F;
    float To = 0.0F;
};

/// From the axis; a cross from outside to inside. Nothing, both ends equal, for styles that draw no tick.
TickSpan TickOf(std::int32_t style, float length);

/// The axis line on the plot's left edge, then major ticks, then minor ones.
void DrawVerAxisLine(penlode::IGraphicsEngine& engine, const VerAxisProp& prop,
                     const CartesianLayout& layout);

/// One line across the plot from each point.
void DrawHorGrid(penlode::IGraphicsEngine& engine, const penlode::Pen* pen,
                 const std::vector<penlode::PointF>& ticks, float plotWidth);

/// One line up the plot from every `step`th point, the first included.
void DrawVerGrid(penlode::IGraphicsEngine& engine, const penlode::Pen* pen,
                 const std::vector<penlode::PointF>& ticks, float plotHeight, std::size_t step = 1);

/// The axis line on the plot's bottom edge.
void DrawHorAxisLine(penlode::IGraphicsEngine& engine, const penlode::Pen* pen, const penlode::RectF& plot);

/// A tick down from every `step`th point, the first included.
void DrawHorTicks(penlode::IGraphicsEngine& engine, const penlode::Pen* pen,
                  const std::vector<penlode::PointF>& ticks, TickSpan tick, std::size_t step = 1);

void FillRect(penlode::IGraphicsEngine& engine, const penlode::SolidBrush& brush, const penlode::RectF& rect);

/// The value axis's labels, if axis and labels are shown.
void VisitVerLabels(const TextVisitor& visit, const VerAxisProp& prop, const CartesianLayout& layout);

/// The value axis's caption, if axis and caption are shown.
void VisitVerCaption(const TextVisitor& visit, const ChartOptions& options, const VerAxisProp& prop,
                     const CartesianLayout& layout);

/// The horizontal axis's caption, if axis and caption are shown. For a HistogramHorAxisProp or a
/// CurveHorAxisProp.
template <class HorAxisProp>
void VisitHorCaption(const TextVisitor& visit, const ChartOptions& options, const HorAxisProp& prop,
                     const CartesianLayout& layout) {
    if (prop.ShowHorAxis != 0 && prop.ShowHorCaption != 0) {
        CTextPropertyOperation::Visit(visit, {TextRole::HorCaption}, CaptionShown(options, prop.HorCaption),
                                      prop.HorCaptionTextProperty, layout.HorCaption.Center());
    }
}

/// The chart's caption, if it is shown.
void VisitCaption(const TextVisitor& visit, const ChartOptions& options, const CaptionProp& prop,
                  const CartesianLayout& layout);

/// The names below the plot as they read; `role` is what each is.
void VisitFittedNames(const TextVisitor& visit, TextRole role, const TextProperty& look,
                      const CartesianLayout& layout);

} // namespace millichart
