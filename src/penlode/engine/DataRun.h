#pragma once

#include "penlode/DataLine.h"

#include <optional>

namespace penlode {

/// What of a line of data is stroked at once.
struct DataRun {
    const DataLine& Line;
    std::size_t First = 0;
    bool MayEnd = false; ///< at a gap; else a gap is a fault, and nothing is drawn
    /// The place of the first gap, or the line's size; known once the points have been gone through.
    std::optional<std::size_t> End = {};

    bool IsSound() const { return MayEnd || End == Line.Size(); }
};

} // namespace penlode
