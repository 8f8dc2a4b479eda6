#pragma once

#include "pages/Picture.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

struct DrawOptions {
    std::vector<std::string> Inputs;   ///< "-" is the standard input
    std::optional<std::string> Output; ///< a file, a folder, or "-" for the standard output
    std::optional<std::string> Data;   ///< a CSV file that replaces the document's data
    std::optional<PictureFormat> Format;
    std::optional<penlode::SizeF> Page; ///< mm; without one the chart and a margin of 5 mm
    std::optional<penlode::Color> Background;
    double Dpi = 96.0; ///< of a PNG
    bool TextAsOutlines = false;
    bool Verbose = false; ///< tell which faces the fonts are drawn in
};

/// Draws chart documents; a page that was asked for has the chart in its middle. What there is to tell goes
/// to the standard error stream. An input that fails does not stop the others: false when any did. Throws
/// UsageError.
bool Draw(const DrawOptions& options);

} // namespace cli
