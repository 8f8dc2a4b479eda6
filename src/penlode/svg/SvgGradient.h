#pragma once

#include "penlode/engine/GradientVertices.h"
#include "penlode/svg/SvgDocument.h"
#include "penlode/svg/SvgGeometry.h"

#include <optional>
#include <span>
#include <string>

namespace penlode::svg {

/// Elements for a mesh, one a line, cut to the bounds. Nothing when an entry names a vertex that is not
/// there.
///
/// A rectangle is filled by a linear gradient. SVG has none for triangles: each is cut into flat ones, as
/// many as its size and its range of colours ask for and 256 at most, drawn without smoothing so that no seam
/// shows. What lies outside the page or the bounds is left out.
std::optional<std::string> GradientRects(const PageMap& map, const GradientArea& area,
                                         std::span<const GradientRect> rects, bool vertical,
                                         SvgDefinitions& definitions);
std::optional<std::string> GradientTriangles(const PageMap& map, const GradientArea& area,
                                             std::span<const GradientTriangle> triangles,
                                             SvgDefinitions& definitions);

} // namespace penlode::svg
