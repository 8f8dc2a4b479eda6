#pragma once

#include "foundation/Palette.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

namespace millichart {

/// Draws a hatch, and the shape's outline, over what fills the shape: thin dark lines that are cut at its
/// edge, one of them through its middle. Nothing without a hatch or an extent. The surface is left as it was
/// found.
void HatchRectangle(penlode::IGraphicsEngine& engine, const penlode::RectF& rect, Hatch hatch);
void HatchPie(penlode::IGraphicsEngine& engine, const penlode::RectF& ellipse, float startAngle,
              float sweepAngle, Hatch hatch);

} // namespace millichart
