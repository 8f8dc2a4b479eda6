#pragma once

#include "kinds/Chart.h"

namespace cli {

std::unique_ptr<Chart> LoadHalfPieChart(ChartStream& stream, const DataSource& source);
Json HalfPieExample();

inline constexpr ChartKind kHalfPieKind{"half-pie", LoadHalfPieChart, HalfPieExample};

} // namespace cli
