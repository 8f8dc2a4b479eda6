#include "commands/Commands.h"
#include "files/Streams.h"
#include "files/System.h"
#include "pages/Platform.h"

#include <filesystem>

namespace cli {

void Edit(const EditOptions& options) {
    for (const std::string& input : options.Inputs) {
        std::error_code error;
        if (input == kStandardStream || !std::filesystem::exists(millichart::PathFromUtf8(input), error)) {
            throw UserError(ShownName(input), "expected the file of a chart document or a table");
        }
    }
    const std::string reason = StartProgram(kPlatform.Designer, options.Inputs);
    if (!reason.empty()) {
        throw UserError(kPlatform.Designer, "cannot be started: " + reason +
                                                "; expected it beside millichart, or on the search path");
    }
}

} // namespace cli
