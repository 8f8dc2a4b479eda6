#pragma once

#include "penlode/GraphicsPath.h"
#include "penlode/engine/GuardBand.h"
#include "penlode/svg/SvgGeometry.h"

#include <span>
#include <string>
#include <vector>

namespace penlode::svg {

/// A path's outline on the page, as the `d` attribute says it. Arcs stay arcs wherever the transform leaves
/// an ellipse's axes at right angles, else they become Bézier curves. Of an outline that reaches far, the
/// area near the page, in straight lines.
std::string PathData(const GraphicsPath& path, const PageMap& map);

bool ReachesFar(const GraphicsPath& path, const Matrix& toPage);

/// The outline in straight lines, to within a hundredth of a millimetre where it passes through `box`.
std::vector<FlatFigure> Flattened(const GraphicsPath& path, const Matrix& toPage, const BoxD& box);

/// A figure of straight lines between points of the page, closed or not. Empty for no points.
std::string PolygonData(std::span<const PointD> points);
std::string PolylineData(std::span<const PointD> points);

} // namespace penlode::svg
