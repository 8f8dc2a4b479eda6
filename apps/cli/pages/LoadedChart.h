#pragma once

#include "documents/ChartDocument.h"
#include "pages/ChartSource.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// An input's chart document with its chart.
struct LoadedChart {
    millichart::ChartDocument Document;            ///< without its data, which the chart has
    std::optional<millichart::LaidOutChart> Chart; ///< none when there are errors
    std::vector<penlode::Diagnostic> Diagnostics;  ///< in the document's order, notes last
    std::vector<penlode::Diagnostic> Faces;        ///< notes of the faces that its fonts are drawn in
};

/// Reads an input, "-" being the standard input. What is wrong is among the diagnostics, an input that cannot
/// be read too.
LoadedChart LoadChart(const std::string& input, const ChartSource& source);

/// What became of a chart's fonts, for its reader.
struct FontReport {
    std::vector<penlode::Diagnostic> Faces;    ///< notes: "宋体 is drawn in Noto Serif CJK SC"
    std::vector<penlode::Diagnostic> Warnings; ///< characters that no installed face has
};

FontReport ReportFonts(const millichart::LaidOutChart& chart);

} // namespace cli
