#pragma once

#include "kinds/Chart.h"

namespace cli {

std::unique_ptr<Chart> LoadCurveChart(ChartStream& stream, const DataSource& source);
Json CurveExample();

inline constexpr ChartKind kCurveKind{"curve", LoadCurveChart, CurveExample};

} // namespace cli
