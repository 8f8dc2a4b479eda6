#include "commands/Commands.h"
#include "documents/ChartContent.h"
#include "files/Streams.h"

namespace cli {

void WriteNew(const NewOptions& options) {
    const millichart::ChartKind* kind = millichart::FindChartKind(options.Kind);
    if (kind == nullptr) {
        throw UsageError("KIND: found \"" + options.Kind + "\", expected " + millichart::ChartKindNames());
    }
    std::error_code error;
    if (!options.Force && options.Output != kStandardStream &&
        std::filesystem::is_regular_file(millichart::PathFromUtf8(options.Output), error)) {
        throw UserError(options.Output, "is there already; with --force it is written over");
    }
    WriteOutput(options.Output, kind->Template);
}

} // namespace cli
