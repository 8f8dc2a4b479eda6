#pragma once

#include "files/Console.h"
#include "pages/ChartSource.h"
#include "pages/Picture.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// What the command does. What there is to tell of a document goes to the standard error stream, but for
/// `check`; a document that cannot be read or drawn gives false. Each throws UsageError for options that do
/// not go together, and UserError for an output that cannot be written.
namespace cli {

struct DrawOptions {
    std::vector<std::string> Inputs; ///< "-" is the standard input
    ChartSource Source;
    std::optional<std::string> Output; ///< a file, a folder, a pattern, or "-" for the standard output
    std::optional<PictureFormat> Format;
    std::optional<penlode::SizeF> Page; ///< mm; without one the chart and a margin of 5 mm
    bool FillsPage = false;
    std::optional<penlode::Color> Background;
    std::optional<double> Dpi; ///< of a PNG; without it 96
    bool TextAsOutlines = false;
    bool Verbose = false;  ///< tell which faces the fonts are drawn in
    bool IsStrict = false; ///< what there is a warning of is not drawn
    cli::Voice Voice;
    std::size_t Jobs = 1; ///< inputs that are drawn at once
};

struct NewOptions {
    ChartSource Source;       ///< with a kind; without data its example
    std::string Output = "-"; ///< a file, or the standard output
    bool Force = false;       ///< write over a file that is there already
};

struct CheckOptions {
    std::vector<std::string> Inputs;
    ChartSource Source;
    bool IsStrict = false; ///< a warning is a fault
    cli::Voice Voice;
};

struct InspectOptions {
    std::vector<std::string> Inputs; ///< one
    ChartSource Source;
};

struct EditOptions {
    std::vector<std::string> Inputs; ///< documents or tables; none: the program asks
};

/// A page that was asked for has the chart in its middle. An input that fails does not stop the others.
bool Draw(const DrawOptions& options);

/// Writes a complete document: the example of its kind, or one on a table. A file that is there already is
/// left alone, which is a UserError; a table that cannot be read gives false.
bool WriteNew(const NewOptions& options);

/// Tells everything about chart documents on the standard output: errors, warnings, and missing keys with
/// what is taken for them.
bool Check(const CheckOptions& options);

/// Starts the designer on the inputs. Throws UserError when it cannot be started.
void Edit(const EditOptions& options);

/// Writes a chart's layout and its drawing calls to the standard output as JSON, in the chart's own
/// millimetres: where its location puts it, not where `draw` would on a page.
bool Inspect(const InspectOptions& options);

} // namespace cli
