#pragma once

#include "documents/ChartDocument.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// A chart document with its chart.
struct LoadedChart {
    millichart::ChartDocument Document;            ///< without its data, which the chart has
    std::optional<millichart::LaidOutChart> Chart; ///< none when there are errors
    std::vector<penlode::Diagnostic> Diagnostics;  ///< in the document's order, notes last
};

/// Reads a document, "-" being the standard input. `data` names a CSV file that replaces the document's data.
/// What is wrong is among the diagnostics, an input that cannot be read too.
LoadedChart LoadChart(const std::string& input, const std::optional<std::string>& data);

/// What became of a chart's fonts, for its reader. UTF-8, one message each.
struct FontReport {
    std::vector<std::string> Faces;    ///< "宋体 is drawn in Noto Serif CJK SC"
    std::vector<std::string> Warnings; ///< characters that no installed face has
};

FontReport ReportFonts(const millichart::LaidOutChart& chart);

} // namespace cli
