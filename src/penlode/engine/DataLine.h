#pragma once

#include "penlode/engine/DeviceView.h"

#include <optional>
#include <span>
#include <vector>

namespace penlode {

/// A polyline thinned to what a device can show of it, in device units; `margin` is how far its pen reaches
/// beyond its points. Nothing when a point is not finite.
std::optional<std::vector<PointD>> ThinnedLine(const DeviceView& view, double margin,
                                               std::span<const PointF> points);

} // namespace penlode
