#pragma once

#include <string>

namespace cli {

struct NewOptions {
    std::string Kind;
    std::string Output = "-"; ///< a file, or the standard output
    bool Force = false;       ///< write over a file that is there already
};

/// Writes a complete document with data that draws well as it stands. Throws UserError, and UsageError for a
/// kind that there is not. A file that is there already is left alone, which is a UserError too.
void WriteNew(const NewOptions& options);

} // namespace cli
