#pragma once

#include <string>

namespace cli {

struct DrawOptions {
    std::string Input;
    std::string Output; ///< ends in .png
    double Dpi = 96.0;
};

/// Draws a chart document, with a margin of 5 mm round the chart on white. Remarks on the document go to the
/// standard error stream. Throws UserError.
void Draw(const DrawOptions& options);

} // namespace cli
