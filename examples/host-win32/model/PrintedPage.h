#pragma once

#include "documents/ChartDocument.h"

namespace host {

/// Paper in mm, counted from where its surface begins to draw: a printer's at the corner of what it can
/// reach.
struct PrintedPage {
    penlode::RectF Paper;
    penlode::RectF Printable;
};

/// An upright A4 sheet with margins.
inline constexpr PrintedPage kA4{{0.0F, 0.0F, 210.0F, 297.0F}, {10.0F, 10.0F, 190.0F, 277.0F}};

/// How a chart comes to its place: it is scaled, then moved.
struct PagePlace {
    float Scale = 1.0F;
    penlode::PointF Offset;
};

/// In the middle of the paper, at its true size or as large as can be printed.
PagePlace PlaceOnPage(const penlode::RectF& ink, const PrintedPage& page);

void DrawOnPage(penlode::IGraphicsEngine& engine, const millichart::LaidOutChart& chart,
                const PrintedPage& page);

} // namespace host
