#pragma once

#include "commands/Commands.h"

#include <string>
#include <vector>

namespace cli {

struct OutputName {
    std::string Name; ///< "-" for the standard output
    PictureFormat Format;
    std::string Folder = {}; ///< to be made; empty for none
};

/// Throws UsageError for options that do not go together, before anything is drawn.
void CheckOutputs(const DrawOptions& options);

/// Where an input's picture goes: -o, with NAME for {name} in it, or NAME.png for NAME.chart.json, in the
/// folder that -o names or else beside the input. The format is the one asked for, or that of the name's
/// ending, or PNG.
OutputName OutputOf(const DrawOptions& options, const std::string& input);

/// Throws UserError.
void MakeFolder(const std::string& folder);

/// Throws UserError when the output is a file that is read: one of the inputs, or one of `dataFiles`, which
/// the input was made of.
void RefuseToOverwrite(const std::string& output, const std::string& shownInput, const DrawOptions& options,
                       const std::vector<std::string>& dataFiles);

} // namespace cli
