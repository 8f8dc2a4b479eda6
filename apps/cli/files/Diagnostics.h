#pragma once

#include "penlode/streams/Diagnostic.h"

#include <string>
#include <string_view>
#include <vector>

/// Diagnostics as the command shows them.
namespace cli {

using penlode::Diagnostic;
using penlode::Severity;

/// The text on one line, with control characters written out as \x1B, so that names and values from a file
/// cannot steer a terminal.
std::string Printable(std::string_view text);

/// On one line: `sales.json:12: data/values/3: found "x", expected a number`. Warnings and notes say that
/// they are.
std::string ToLine(const Diagnostic& diagnostic);

/// On one line each: of each file the first 50 errors and warnings and how many there are more, and the
/// notes, those of the keys that are missing in a group on a line together.
std::vector<std::string> ToLines(const std::vector<Diagnostic>& diagnostics);

/// As JSON objects, one a line.
std::string ToJsonLines(const std::vector<Diagnostic>& diagnostics);

/// What is doubtful counts as wrong.
void TakeWarningsForErrors(std::vector<Diagnostic>& diagnostics);

/// How many of that severity there are: "2 errors", "at least 10000 errors"
std::string CountedDiagnostics(const std::vector<Diagnostic>& diagnostics, Severity severity);

} // namespace cli
