#pragma once

#include "foundation/Export.h"
#include "penlode/Geometry.h"

#include <vector>

/// Where the labels of a pie's slices stand so that none touches another. Pure geometry, n log n in the
/// labels.
namespace millichart {

/// The outline that labels go round: an ellipse, and below it the wall of a pie with depth.
struct SliceRim {
    penlode::PointF Center; ///< of the ellipse
    float Across = 0.0F;    ///< half its width
    float Up = 0.0F;        ///< half its height
    float Depth = 0.0F;     ///< how far the wall reaches down
    bool HasUpper = true;   ///< false: a lower half, whose labels stay below the centre
    bool HasLower = true;   ///< false: an upper half, whose labels stay above it
};

struct SliceLabel {
    float Middle = 0.0F; ///< degrees, true ones on the ellipse, clockwise on screen from the positive x axis
    penlode::SizeF Size;
    double Share = 0.0; ///< of the whole; the labels of the smallest are left out where there are too many
};

struct PlacedSliceLabel {
    bool IsShown = false;
    penlode::RectF Box;  ///< empty, on the rim, where it is not shown
    penlode::PointF Rim; ///< where the slice's middle meets the outline
    penlode::PointF Tip; ///< where a lead line from there meets the box, without crossing another
};

/// Each label at its slice, its box's corner on an orbit `distance` outside the rim, as long as that is
/// free. Those that would touch are stacked with a small gap, in the order of their slices, where they move
/// least; right ones stay right of the centre and left ones left:
///
///            ____ aaa         The orbit of a side whose labels are higher together than the
///        .-'      '-. bbb     pie is stretched up and down; when `hasLeads`, it is also widened
///       /            \ ccc    until lead lines pass outside the pie.
///      |              |
///
/// A side holds one and a half times the pie's height and four labels; beyond that labels are left out.
/// So is one without a size or a place.
MILLICHART_API std::vector<PlacedSliceLabel> SlicesApart(const SliceRim& rim, float distance, bool hasLeads,
                                                         const std::vector<SliceLabel>& labels);

MILLICHART_API bool IsOutside(const SliceRim& rim, penlode::PointF point);

} // namespace millichart
