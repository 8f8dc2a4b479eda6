#pragma once

#include <string>

namespace cli {

struct DrawOptions {
    std::string Input;
    std::string Output; ///< ends in .png, .svg or .pdf
    double Dpi = 96.0;  ///< of a PNG
    bool TextAsOutlines = false;
    bool Verbose = false; ///< tell which faces the fonts are drawn in
};

/// Draws a chart document, with a margin of 5 mm round the chart on white. Remarks on the document and its
/// fonts go to the standard error stream. Throws UserError.
void Draw(const DrawOptions& options);

} // namespace cli
