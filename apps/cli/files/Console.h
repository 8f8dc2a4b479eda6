#pragma once

#include "files/Diagnostics.h"

#include <string>
#include <vector>

namespace cli {

/// One message on a line of the standard error stream, after the program's name.
void Tell(const std::string& message);

/// Errors and warnings, not too many; notes are left out.
void TellProblems(const std::vector<Diagnostic>& diagnostics);

/// Shows a line on the terminal that the next message or line replaces. An empty one takes it away.
void ShowPassingLine(const std::string& line);

} // namespace cli
