#pragma once

#include "model/Editor.h"

#include <string>
#include <vector>

namespace designer {

/// What a document that was lost with its program had come to.
struct Recovered {
    std::string Kept; ///< the file that has it, to be removed once it is saved or refused
    std::string File; ///< that it belongs to; empty if it never had one
    std::string Time; ///< when it was written, as in "2026-03-15 14:30"
};

/// Keeps a copy of one open document in a folder while it is not saved, so that a crash loses little.
///
///     RecoveryFile kept(RecoveryFolder());
///     kept.Keep(editor);    // every few seconds
///     kept.Drop();          // saved, or closed on purpose
class RecoveryFile {
public:
    explicit RecoveryFile(std::string folder);
    ~RecoveryFile();
    RecoveryFile(const RecoveryFile&) = delete;
    RecoveryFile& operator=(const RecoveryFile&) = delete;

    /// Writes what changed since the last time, with cells that are no numbers; removes the copy of a
    /// document that is saved. Gives the reason of a failure, or an empty text.
    std::string Keep(const Editor& editor);
    void Drop();

private:
    std::string m_folder;
    std::string m_name;
    std::uint64_t m_kept = 0;
};

/// Of this user, made if need be: $XDG_STATE_HOME/millichart, or %LOCALAPPDATA%\millichart.
std::string RecoveryFolder();

/// Those of programs that run no more, latest first.
std::vector<Recovered> FindRecovered(const std::string& folder);

/// The document as it was, unsaved, under its own file's name.
Editor Recover(const Recovered& lost);
void Forget(const Recovered& lost);

} // namespace designer
