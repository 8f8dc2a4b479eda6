#pragma once

#include "charts/histogram/BasicHistogram.h"
#include "documents/ChartData.h"
#include "documents/doubts/Wording.h"

namespace millichart::documents {

/// Of bars whose heights are no measure of their values: those that stand below zero, where the axis begins,
/// stacks that fall, and values that are all zero.
void AddBarHeightDoubts(const CBasicHistogram& chart, const TableOrigin& origin, Diagnostics& diagnostics);

} // namespace millichart::documents
