#pragma once

#include "charts/histogram/HistogramProp.h"
#include "charts/pie/HalfPieProp.h"

namespace millichart {

/// A half pie with a bar chart on its centre line.
struct HalfPieHistogramProp {
    HistogramProp Histogram;
    HalfPieProp HalfPie;

    friend bool operator==(const HalfPieHistogramProp&, const HalfPieHistogramProp&) = default;
};

} // namespace millichart
