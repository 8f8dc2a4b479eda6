#pragma once

#include "kinds/Chart.h"

namespace cli {

std::unique_ptr<Chart> LoadHalfPieHalfPieChart(ChartStream& stream, const DataSource& source);
Json HalfPieHalfPieExample();

inline constexpr ChartKind kHalfPieHalfPieKind{"half-pie-half-pie", LoadHalfPieHalfPieChart,
                                               HalfPieHalfPieExample};

} // namespace cli
