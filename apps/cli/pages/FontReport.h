#pragma once

#include "documents/ChartDocument.h"

#include <string>
#include <vector>

namespace cli {

/// What became of a chart's fonts, for its reader. UTF-8, one message each.
struct FontReport {
    std::vector<std::string> Faces;    ///< "宋体 is drawn in Noto Serif CJK SC"
    std::vector<std::string> Warnings; ///< characters that no installed face has
};

FontReport ReportFonts(const millichart::LaidOutChart& chart);

} // namespace cli
