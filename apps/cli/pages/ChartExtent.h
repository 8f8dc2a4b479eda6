#pragma once

#include "documents/ChartDocument.h"

namespace cli {

/// The chart with the texts that stand at its edge or reach out of it, such as labels beside the last bar.
/// Texts far away, as values far out of an axis's range have them, do not count.
penlode::RectF ExtentWithTexts(const millichart::LaidOutChart& chart);

} // namespace cli
