#pragma once

#include "support/Shell.h"

/// The command as a person runs it, after settings such as "TZ=UTC": what it wrote to the standard error
/// stream.
inline Outcome Millichart(const std::string& arguments, const std::string& settings = {}) {
    return Shell(settings + " " MILLICHART_COMMAND " " + arguments + " 2>&1 >/dev/null");
}
