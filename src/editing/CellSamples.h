#pragma once

#include "editing/DialogView.h"
#include "penlode/IGraphicsEngine.h"

namespace millichart {

/// Draws what a colour's or a line's cell holds, on a surface that counts in pixels, `dpi` of them to the
/// inch of the cell's millimetres.
void DrawCellSample(penlode::IGraphicsEngine& engine, const penlode::RectF& box, CellKind kind,
                    const std::string& cell, float dpi);

} // namespace millichart
