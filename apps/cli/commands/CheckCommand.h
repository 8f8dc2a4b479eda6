#pragma once

#include <optional>
#include <string>
#include <vector>

namespace cli {

struct CheckOptions {
    std::vector<std::string> Inputs;
    std::optional<std::string> Data; ///< a CSV file that replaces the document's data
    bool AsJson = false;
};

/// Tells everything about chart documents on the standard output: errors, warnings, and each missing key with
/// what is taken for it. False when there is an error.
bool Check(const CheckOptions& options);

} // namespace cli
