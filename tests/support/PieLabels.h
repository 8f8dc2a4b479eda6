#pragma once

#include <string>
#include <vector>

/// Every line of text that the pie of a chart document must show, worked out from the document's record and
/// values: labels and legend, UTF-8, sorted.
std::vector<std::string> PieLabels(const std::string& document);
