#pragma once

#include "foundation/ChartOptions.h"
#include "penlode/Color.h"
#include "penlode/Pen.h"

namespace millichart {

/// Black or white, whichever is read better over a colour that itself lies over white.
penlode::Color ReadableOn(penlode::Color ground);

/// A text's own colour, unless it cannot be read over such a ground.
penlode::Color ReadableOver(penlode::Color text, penlode::Color ground);

/// Whether grids lie under axes, edges and labels, and not over them.
constexpr bool GridsAreBehind(const ChartOptions& options) {
    return options.Contrast == ChartContrast::Kept;
}

/// The pen that draws a grid. With contrast kept a light grey takes the place of a record's pen that nobody
/// chose: a thin black line.
const penlode::Pen* GridPen(const penlode::Pen* record, const ChartOptions& options);

} // namespace millichart
