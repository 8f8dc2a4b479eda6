#pragma once

#include "charts/curve/BasicCurve.h"
#include "documents/ChartData.h"
#include "documents/doubts/Wording.h"

namespace millichart::documents {

/// Of curves, or points of them, that are there and cannot be seen: points alone between gaps without a
/// marker, one time for all, and lines on the plot's edge.
void AddCurveSightDoubts(const CBasicCurve& chart, const TableOrigin& origin, Diagnostics& diagnostics);

} // namespace millichart::documents
