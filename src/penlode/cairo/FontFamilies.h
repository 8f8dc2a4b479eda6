#pragma once

#include "penlode/Export.h"

#include <string>

struct _FcConfig; // NOLINT(bugprone-reserved-identifier): fontconfig's name

namespace penlode {

/// The face that texts in `family` are drawn in: the family itself where it is installed, else the first
/// installed one of its usual companions, else the system's choice. Empty when no font is installed at all.
PENLODE_API std::wstring ResolvedFamily(const std::wstring& family);

/// The fonts of this process: the system's configuration behind the library's own table of companions. Built
/// on first use, shared by all threads, never changed; nothing of the system's is touched. Null when memory
/// runs out.
_FcConfig* FontConfiguration();

} // namespace penlode
