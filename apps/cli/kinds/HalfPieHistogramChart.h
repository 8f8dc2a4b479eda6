#pragma once

#include "kinds/Chart.h"

namespace cli {

std::unique_ptr<Chart> LoadHalfPieHistogramChart(ChartStream& stream, const DataSource& source);
Json HalfPieHistogramExample();

inline constexpr ChartKind kHalfPieHistogramKind{"half-pie-histogram", LoadHalfPieHistogramChart,
                                                 HalfPieHistogramExample};

} // namespace cli
