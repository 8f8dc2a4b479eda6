#pragma once

#include "charts/cartesian/CartesianDrawing.h"
#include "charts/parts/PartSink.h"

#include <cstddef>
#include <cstdint>

/// What a user can point at in bar and line charts alike.
namespace millichart {

/// The value axis's line and ticks, if they are shown.
void AddVerAxis(PartSink& sink, const VerAxisProp& prop, const CartesianLayout& layout);

/// The line below the plot, with a tick at every `step`th place of `ticks`.
LinesShape HorAxisShape(const CartesianLayout& layout, std::int32_t scaleStyle, std::size_t step = 1);

} // namespace millichart
