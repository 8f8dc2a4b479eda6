#include "NewCommand.h"

#include "Chart.h"
#include "OutputFile.h"
#include "UserError.h"

namespace cli {

void WriteNew(const NewOptions& options) {
    const ChartKind* kind = FindChartKind(options.Kind);
    if (kind == nullptr) {
        throw UsageError("KIND: found \"" + options.Kind + "\", expected " + ChartKindNames());
    }
    Json document{{"version", "1"}, {"kind", kind->Name}};
    document.update(kind->Example());
    WriteOutput(options.Output, document.dump(2) + "\n");
}

} // namespace cli
