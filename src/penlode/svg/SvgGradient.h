#pragma once

#include "penlode/engine/Drawings.h"
#include "penlode/svg/SvgDocument.h"
#include "penlode/svg/SvgGeometry.h"

#include <string>

namespace penlode::svg {

/// Elements for a mesh, one a line, cut to the bounds.
///
/// A rectangle is filled by a linear gradient. SVG has none for triangles: each is cut into flat ones, as
/// many as its size and its range of colours ask for and 256 at most, drawn without smoothing so that no seam
/// shows. What lies outside the page or the bounds is left out.
std::string GradientElements(const PageMap& map, const GradientMesh& mesh, SvgDefinitions& definitions);

} // namespace penlode::svg
