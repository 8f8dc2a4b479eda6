#pragma once

#include "Series.h"

#include <string>
#include <vector>

namespace byhand {

enum class Marker { SolidSquare, SolidCircle, HollowCircle, SolidTriangle };

struct MarkedCurve {
    bench::Series Data; ///< values from 0 at the bottom to 1 at the top
    unsigned Color;     ///< 0xRRGGBB
    Marker Kind;
};

/// Curves over a whole picture, each with a marker at every point. Lengths in pixels.
struct MarkedCurves {
    std::vector<MarkedCurve> Curves;
    double LineWidth;
    double MarkerWidth;
    double MarkerLine; ///< of the hollow ones
};

std::string MarkedCurvesPng(const MarkedCurves& curves, int width, int height);

} // namespace byhand
