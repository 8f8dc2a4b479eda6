#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"

#include <optional>
#include <vector>

namespace designer {

/// All parts of a chart that can be seen, as somebody reads who goes through them one by one: the title, what
/// shows the data, its labels, the axes with theirs, the legend with its entries; of a composite chart one
/// half after the other.
std::vector<millichart::PlacedPart> InReadingOrder(const millichart::LaidOutChart& chart);

/// Its place among them; the end's for one that is not there.
std::size_t PlaceOf(const std::vector<millichart::PlacedPart>& parts, const millichart::ChartPart& part);

} // namespace designer
