#pragma once

#include "Json.h"
#include "charts/cartesian/CartesianLayout.h"

namespace cli {

/// What bar and line charts share of their layouts.
Json CartesianLayoutToJson(const millichart::CartesianLayout& layout);

} // namespace cli
