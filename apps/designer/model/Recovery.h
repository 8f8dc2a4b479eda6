#pragma once

#include "model/Editor.h"
#include "model/RunMark.h"

#include <memory>
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
    explicit RecoveryFile(std::string folder) : m_folder(std::move(folder)) {}

    /// Leaves a copy that nobody dropped to be found.
    ~RecoveryFile();
    RecoveryFile(const RecoveryFile&) = delete;
    RecoveryFile& operator=(const RecoveryFile&) = delete;

    /// Writes what changed since the last time, with cells that are no numbers; removes the copy of a
    /// document that is saved. Gives the reason of a failure, or an empty text.
    std::string Keep(const Editor& editor);
    void Drop();

private:
    std::string Begin();

    std::string m_folder;
    std::string m_file;              ///< empty without a copy
    std::unique_ptr<RunMark> m_mark; ///< while there is one
    std::uint64_t m_kept = 0;        ///< revision
};

/// Of this user: $XDG_STATE_HOME/millichart, or %LOCALAPPDATA%\millichart. Is made when it is first needed,
/// so that nobody else may enter.
std::string RecoveryFolder();

/// Those of programs that run no more, latest first. Damaged ones are passed over.
std::vector<Recovered> FindRecovered(const std::string& folder);

/// The document as it was, unsaved, under its own file's name. One that can no longer be read says so among
/// its diagnostics.
Editor Recover(const Recovered& lost);
void Forget(const Recovered& lost);

} // namespace designer
