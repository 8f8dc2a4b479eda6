#pragma once

#include "commands/Commands.h"

#include <variant>

namespace cli {

/// Nothing is left to be done, as after --help; what the program's exit status is.
struct Finished {
    int Status;
};

using Wish = std::variant<Finished, DrawOptions, NewOptions, CheckOptions, InspectOptions, EditOptions>;

inline constexpr int kWrongUsage = 2;

/// Reads the words after the program's name. Help, the version and complaints about the arguments are told
/// here.
Wish ParseCommandLine(std::vector<std::string> arguments);

} // namespace cli
