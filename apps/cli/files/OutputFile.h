#pragma once

#include <string>
#include <string_view>

namespace cli {

/// Writes a file, or the standard output for "-". A file is written beside `name` and then given that name,
/// so that a failure leaves what was there before; a device or a pipe is written to. Throws UserError.
void WriteOutput(const std::string& name, std::string_view bytes);

/// How messages call an output.
std::string ShownOutput(const std::string& name);

} // namespace cli
