#pragma once

#include "Json.h"
#include "charts/cartesian/CartesianLayout.h"

#include <string>
#include <vector>

namespace cli {

/// What bar and line charts share of their layouts.
Json CartesianLayoutToJson(const millichart::CartesianLayout& layout);

/// Narrow texts.
Json TextsToJson(const std::vector<std::string>& texts);

} // namespace cli
