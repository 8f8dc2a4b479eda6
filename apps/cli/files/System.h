#pragma once

#include <string>
#include <vector>

/// The little of the operating system that the standard library does not reach.
namespace cli {

/// The words of the command line after the program, in UTF-8 where the system has an encoding of its own.
std::vector<std::string> Arguments(int argc, char** argv);

/// One that escape sequences steer.
bool ErrorsGoToTerminal();
bool OutputGoesToTerminal();

/// Before anything is read or written: the standard streams carry bytes, or UTF-8 to a terminal; a write
/// beyond the file size limit fails instead of ending the program; and what ends the program leaves no
/// unfinished file.
void PrepareSystem();

/// Hands over to a program that stands beside this one, or else on the search path: where the system can, it
/// takes this process; elsewhere it runs beside it. Gives the reason of a failure, as in "No such file or
/// directory", or an empty text.
std::string StartProgram(const std::string& name, const std::vector<std::string>& arguments);

/// A file that is not finished while this lives; at most one lives at a time.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& name);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
};

/// While any of these lives, an interrupt (Ctrl+C) is only noted; a second one ends the program. The last one
/// that goes ends it for the first, as an interrupt does at other times.
class InterruptGuard {
public:
    InterruptGuard();
    ~InterruptGuard();
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;

    static bool IsInterrupted();
};

} // namespace cli
