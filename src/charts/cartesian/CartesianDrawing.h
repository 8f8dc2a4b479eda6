#pragma once

#include "charts/cartesian/CartesianFigure.h"
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

void DrawVerLabels(penlode::IGraphicsEngine& engine, const VerAxisProp& prop, const CartesianLayout& layout);

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

/// In the middle of `rect`, if its flag is on.
void DrawCaptionText(penlode::IGraphicsEngine& engine, std::int32_t isShown, const std::string& caption,
                     const TextProperty& property, const penlode::RectF& rect);

} // namespace millichart
