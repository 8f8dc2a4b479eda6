#pragma once

struct _FcConfig; // NOLINT(bugprone-reserved-identifier): fontconfig's name

namespace penlode {

/// The fonts of this process: the system's configuration behind the library's own table of companions. Built
/// on first use, shared by all threads, never changed; nothing of the system's is touched. Null when memory
/// runs out.
_FcConfig* FontConfiguration();

} // namespace penlode
