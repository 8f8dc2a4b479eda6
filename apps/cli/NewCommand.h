#pragma once

#include <string>

namespace cli {

struct NewOptions {
    std::string Kind;
    std::string Output = "-"; ///< a file, or the standard output
};

/// Writes a complete document with data that draws well as it stands. Throws UserError, and UsageError for a
/// kind that there is not.
void WriteNew(const NewOptions& options);

} // namespace cli
