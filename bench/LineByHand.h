#pragma once

#include "ByHand.h"

#include <cstdint>
#include <vector>

namespace byhand {

/// A line over a whole picture: values from 0 at the bottom to 1 at the top, at ascending times that reach
/// from its left to its right.
struct Line {
    const std::vector<double>& Values;
    const std::vector<std::int32_t>& Times;
    double Width; ///< pixels
};

Picture DrawnLine(const Line& line, int width, int height);

} // namespace byhand
