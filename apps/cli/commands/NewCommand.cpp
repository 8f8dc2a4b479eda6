#include "commands/NewCommand.h"

#include "files/InputFile.h"
#include "files/OutputFile.h"
#include "files/UserError.h"
#include "kinds/Chart.h"

#include <filesystem>

namespace cli {

void WriteNew(const NewOptions& options) {
    const ChartKind* kind = FindChartKind(options.Kind);
    if (kind == nullptr) {
        throw UsageError("KIND: found \"" + options.Kind + "\", expected " + ChartKindNames());
    }
    std::error_code error;
    if (!options.Force && options.Output != kStandardStream &&
        std::filesystem::is_regular_file(options.Output, error)) {
        throw UserError(options.Output, "is there already; with --force it is written over");
    }
    Json document{{"version", "1"}, {"kind", kind->Name}};
    document.update(kind->Example());
    WriteOutput(options.Output, document.dump(2) + "\n");
}

} // namespace cli
