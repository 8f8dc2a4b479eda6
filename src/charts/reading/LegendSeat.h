#pragma once

#include "foundation/Legend.h"

#include <string>
#include <vector>

namespace millichart {

/// Places a legend beside `whole`, which is everything else of the chart, along its plot:
///
///     +--- whole --------+
///     |   +- plot -----+ |  [] coal   [] wind
///     |   |            | |  [] gas    [] sun
///     |   +------------+ |  [] water  … 12
///     +------------------+
///
/// At a side, columns are at most as high as the whole, and as many as fit into the plot's width; above and
/// below, rows are at most as wide as the whole, and as many as fit into its height. What finds no room is
/// counted. Columns stand below each other and, with `hasAir`, off the frame on all sides, not only after the
/// last letter. A legend that is off, has no font or no named position, or would not be at a finite place has
/// no items.
///
/// Takes n log n steps for n names, each of which is measured once.
SeatedLegend SeatLegend(const LegendProp& prop, const std::vector<std::string>& names, float swatchFactor,
                        const penlode::RectF& plot, const penlode::RectF& whole, bool hasAir);

/// All of it moved.
SeatedLegend Translated(SeatedLegend legend, penlode::PointF offset);

} // namespace millichart
