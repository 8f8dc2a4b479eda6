#pragma once

#include "charts/cartesian/CartesianLayout.h"
#include "charts/cartesian/ValueAxis.h"
#include "charts/cartesian/VerAxisProp.h"
#include "foundation/Legend.h"
#include "penlode/Geometry.h"

#include <string>
#include <vector>

/// What bar and line charts share in their layout: captions, the value axis, the legend.
///
///                caption
///     +---+----------------------+
///     | v | plot                 |
///     | e |                      |  legend
///     | r |                      |
///     +---+----------------------+
///              horizontal axis
namespace millichart {

/// Room for ticks beside an axis, and between it and its labels, in mm.
inline constexpr float kTickRoom = 1.0F;

/// Everything empty at `location`; caption sizes are kept.
void Reset(CartesianLayout& layout, penlode::PointF location);

/// The text's size, or (0, 0) when its flag is off.
penlode::SizeF CaptionSize(std::int32_t isShown, const std::string& caption, const TextProperty& property);

/// `kTickRoom` if any of the styles is not "none", else 0.
float TickAllowance(std::int32_t style, std::int32_t otherStyle = ScaleStyle::None);

/// What stands round a plot, and the plot.
struct FrameSizes {
    penlode::SizeF Caption;
    penlode::SizeF VerAxis;
    penlode::SizeF HorAxis;
    penlode::SizeF Plot;
};

/// Places the whole, the plot and the captions, whose sizes must have been taken. `depth` is what a plot with
/// depth reaches to the right and up. Captions below and beside it take that height a second time: hosts make
/// room for them there.
void PlaceFrame(const FrameSizes& sizes, penlode::PointF location, penlode::SizeF depth,
                CartesianLayout& layout);

/// Takes the axis's label texts, between their prefix and postfix, and their sizes, if labels are shown.
void TakeVerLabels(const VerAxisProp& prop, const ValueAxis& axis, const NumberFormat& numbers,
                   CartesianLayout& layout);

/// As wide as caption, labels and ticks, and `plotHeight` high. Labels must have been taken.
penlode::SizeF VerAxisSize(const VerAxisProp& prop, float plotHeight, const CartesianLayout& layout);

/// Puts the ticks on the plot's left edge, if the axis is shown.
void PlaceVerTicks(const VerAxisProp& prop, const ValueAxis& axis, CartesianLayout& layout);

/// Right-aligned left of the plot, each centred on its major tick.
void PlaceVerLabels(const VerAxisProp& prop, CartesianLayout& layout);

/// Places the items and unites the whole with them, if the legend is shown.
void PlaceLegend(const LegendProp& prop, const std::vector<std::string>& names, float swatchFactor,
                 CartesianLayout& layout);

/// Moves everything but sizes.
void Move(CartesianLayout& layout, penlode::PointF by);
void Move(std::vector<penlode::PointF>& points, penlode::PointF by);
void Move(std::vector<penlode::RectF>& rects, penlode::PointF by);

} // namespace millichart
