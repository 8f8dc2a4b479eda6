#pragma once

#include <memory>
#include <string>

namespace designer {

/// Tells other programs, by a file that nobody else may lock, that this one still runs. The system lets go of
/// the lock when the program ends, however that happens.
class RunMark {
public:
    /// Locks the file, which is made; IsHeld tells whether that could be done.
    explicit RunMark(const std::string& file);
    ~RunMark();
    RunMark(const RunMark&) = delete;
    RunMark& operator=(const RunMark&) = delete;

    bool IsHeld() const;

private:
    struct Handle;

    std::unique_ptr<Handle> m_handle;
};

/// Does a program, this one too, hold the file's lock?
bool IsMarkHeld(const std::string& file);

/// Makes a folder that its user alone may enter, and those above it. Gives the reason of a failure, or an
/// empty text.
std::string MakePrivateFolder(const std::string& folder);

} // namespace designer
