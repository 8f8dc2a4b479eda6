#pragma once

#include "charts/cartesian/CartesianLayout.h"
#include "documents/Json.h"

namespace cli {

/// What bar and line charts share of their layouts.
Json CartesianLayoutToJson(const millichart::CartesianLayout& layout);

} // namespace cli
