#pragma once

#include "charts/histogram/BasicHistogram.h"
#include "documents/ChartData.h"
#include "documents/doubts/Wording.h"

#include <string>

/// How a bar is called, and where its value stands.
namespace millichart::documents {

/// A warning without a text at a bar's value.
penlode::Diagnostic AtBar(const TableOrigin& origin, std::size_t group, std::size_t component);

/// ' of "Wheat" in "North"', or what of it has a name; narrow texts.
std::string BarNamed(const std::string& component, const std::string& group);
std::string BarNamed(const CBasicHistogram& chart, std::size_t group, std::size_t component);

} // namespace millichart::documents
