#pragma once

#include <string>

namespace cli {

/// The file name that means the standard input or output.
inline constexpr const char* kStandardStream = "-";

/// Whoever types a file's name may name a pipe or a device; a document, which may come from anybody, not.
enum class NamedBy { User, Document };

/// The bytes of a file, at most 1 GB; of the standard input for the user's "-". Throws UserError.
std::string ReadInput(const std::string& name, NamedBy who = NamedBy::User);

/// How messages call an input.
std::string ShownName(const std::string& name);

} // namespace cli
