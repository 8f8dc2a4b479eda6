#pragma once

#include "documents/ChartDocument.h"
#include "model/PageView.h"

#include <QImage>

namespace designer {

/// A part of the page as it was drawn at one zoom.
struct Picture {
    QImage Pixels; ///< opaque; of the screen's own pixels
    PixelRect Area;
    double PixelsPerMillimetre = 0.0;
};

/// That area of the chart's page, on white. Without pixels if the area is empty or memory runs out.
Picture Drawn(const millichart::LaidOutChart& chart, const PixelRect& area, double pixelsPerMillimetre);

} // namespace designer
