#pragma once

#include <optional>
#include <string>

namespace cli {

struct InspectOptions {
    std::string Input;
    std::optional<std::string> Data; ///< a CSV file that replaces the document's data
};

/// Writes a chart's layout and its drawing calls to the standard output as JSON, in the chart's own
/// millimetres: where its location puts it, not where `draw` would on a page. False when the document cannot
/// be drawn, which has been told then. Throws UserError.
bool Inspect(const InspectOptions& options);

} // namespace cli
