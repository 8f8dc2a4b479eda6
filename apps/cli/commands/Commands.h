#pragma once

#include "pages/Picture.h"

#include <optional>
#include <string>
#include <vector>

/// What the command does. What there is to tell of a document goes to the standard error stream, but for
/// `check`; a document that cannot be read or drawn gives false. Each throws UsageError for options that do
/// not go together, and UserError for an output that cannot be written.
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

struct NewOptions {
    std::string Kind;
    std::string Output = "-"; ///< a file, or the standard output
    bool Force = false;       ///< write over a file that is there already
};

struct CheckOptions {
    std::vector<std::string> Inputs;
    std::optional<std::string> Data;
    bool AsJson = false;
};

struct InspectOptions {
    std::string Input;
    std::optional<std::string> Data;
};

/// A page that was asked for has the chart in its middle. An input that fails does not stop the others.
bool Draw(const DrawOptions& options);

/// Writes a complete document with data that draws well as it stands. A file that is there already is left
/// alone, which is a UserError; a kind that there is not is a UsageError.
void WriteNew(const NewOptions& options);

/// Tells everything about chart documents on the standard output: errors, warnings, and each missing key with
/// what is taken for it.
bool Check(const CheckOptions& options);

/// Writes a chart's layout and its drawing calls to the standard output as JSON, in the chart's own
/// millimetres: where its location puts it, not where `draw` would on a page.
bool Inspect(const InspectOptions& options);

} // namespace cli
