#pragma once

#include "files/Diagnostics.h"

#include <cstddef>
#include <string>
#include <vector>

namespace cli {

/// One message on a line of the standard error stream, after the program's name.
void Tell(const std::string& message);

/// How problems are told.
struct Voice {
    bool IsQuiet = false; ///< no warnings
    bool AsJson = false;  ///< an object a line, for programs
};

/// Errors and warnings, not too many for a person; notes are left out.
void TellProblems(const std::vector<Diagnostic>& diagnostics, const Voice& voice = {});

/// What is no problem: a line of its own, after the file's name.
void TellFact(const Diagnostic& fact, const Voice& voice);

/// Shows a line on the terminal that the next message or line replaces. An empty one takes it away.
void ShowPassingLine(const std::string& line);

/// Tells a person at a terminal which of several inputs is being worked on, on a line that the next message
/// replaces.
class Progress {
public:
    explicit Progress(std::size_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void Begin(const std::string& name);

private:
    std::size_t m_total;
    std::size_t m_current = 0;
    bool m_isShown;
};

} // namespace cli
