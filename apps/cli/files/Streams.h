#pragma once

#include "documents/Files.h"

#include <string>
#include <string_view>

namespace cli {

/// The file name that means the standard input or output.
inline constexpr const char* kStandardStream = "-";

/// How messages call an input.
std::string ShownName(const std::string& name);

/// How messages call an output.
std::string ShownOutput(const std::string& name);

/// The bytes of a file, or of the standard input for "-".
millichart::InputText ReadInput(const std::string& name);

/// Writes a file as a whole or not at all, or the standard output for "-". Throws UserError.
void WriteOutput(const std::string& name, std::string_view bytes);

} // namespace cli
