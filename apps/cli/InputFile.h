#pragma once

#include <string>

namespace cli {

/// The file name that means the standard input or output.
inline constexpr const char* kStandardStream = "-";

/// The bytes of a file, or of the standard input for "-". Throws UserError.
std::string ReadInput(const std::string& name);

/// How messages call an input.
std::string ShownName(const std::string& name);

} // namespace cli
