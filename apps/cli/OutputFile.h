#pragma once

#include <string>
#include <string_view>

namespace cli {

/// Writes `bytes` to a file beside `name` and then gives it that name, so that a failure leaves what was
/// there before. Throws UserError.
void WriteFileWhole(const std::string& name, std::string_view bytes);

} // namespace cli
