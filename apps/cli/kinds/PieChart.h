#pragma once

#include "kinds/Chart.h"

namespace cli {

std::unique_ptr<Chart> LoadPieChart(ChartStream& stream, const DataSource& source);
Json PieExample();

inline constexpr ChartKind kPieKind{"pie", LoadPieChart, PieExample};

} // namespace cli
