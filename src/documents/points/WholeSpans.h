#pragma once

#include "documents/points/CellRows.h"

#include <vector>

namespace millichart::documents {

/// Spans of times, in their order and no two that touch; and so few that a question names them all, for which
/// the nearest become one.
std::vector<TimeSpan> JoinedSpans(std::vector<TimeSpan> spans);

} // namespace millichart::documents
