#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"

#include <QPainterPath>

namespace designer {

/// A part's own shape in mm of the page: a slice, a bar with its depth, a curve's line, or else its box.
struct PartOutline {
    QPainterPath Path;
    bool IsLine = false; ///< not an area
};

PartOutline OutlineOf(const millichart::LaidOutChart& chart, const millichart::PlacedPart& part);

} // namespace designer
