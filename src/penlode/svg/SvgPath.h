#pragma once

#include "penlode/GraphicsPath.h"
#include "penlode/Matrix.h"

#include <span>
#include <string>

namespace penlode::svg {

/// A path's outline on the page, as the `d` attribute says it. Arcs stay arcs wherever the transform leaves
/// an ellipse's axes at right angles, else they become Bézier curves.
std::string PathData(const GraphicsPath& path, const Matrix& toPage);

/// A figure of straight lines between points of the page, closed.
std::string PolygonData(std::span<const PointD> points);

} // namespace penlode::svg
