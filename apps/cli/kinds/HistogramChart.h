#pragma once

#include "kinds/Chart.h"

namespace cli {

std::unique_ptr<Chart> LoadHistogramChart(ChartStream& stream, const DataSource& source);
Json HistogramExample();

inline constexpr ChartKind kHistogramKind{"histogram", LoadHistogramChart, HistogramExample};

} // namespace cli
