#pragma once

#include "commands/Json.h"
#include "documents/ChartDocument.h"

namespace cli {

/// The results of a chart's layout, in its own millimetres.
Json LayoutToJson(const millichart::LaidOutChart& chart);

} // namespace cli
