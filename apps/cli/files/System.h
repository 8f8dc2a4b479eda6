#pragma once

#include <string>

/// The little of the operating system that the standard library does not reach.
namespace cli {

bool ErrorsGoToTerminal();
bool OutputGoesToTerminal();

/// Before anything is written: a write beyond the file size limit fails instead of ending the program, and a
/// signal that ends it takes the unfinished file away.
void PrepareSystem();

/// A file that is not finished while this lives; at most one lives at a time.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& name);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
};

} // namespace cli
