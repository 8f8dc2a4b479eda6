#include "pages/LoadedChart.h"

#include "files/Streams.h"

#include <new>
#include <utility>

namespace cli {
namespace {

/// What the layout found, in the order of what the load found.
void LayOut(LoadedChart& loaded) {
    loaded.Chart = std::move(loaded.Document).LayOut();
    std::vector<penlode::Diagnostic> found = loaded.Chart->Diagnostics;
    if (millichart::HasErrors(found)) {
        loaded.Chart.reset();
    } else {
        for (const std::string& warning : ReportFonts(*loaded.Chart).Warnings) {
            found.push_back(penlode::Warning("", warning));
        }
    }
    if (!found.empty()) {
        loaded.Diagnostics.insert(loaded.Diagnostics.end(), found.begin(), found.end());
        loaded.Document.PutInOrder(loaded.Diagnostics);
    }
}

LoadedChart Load(const std::string& input, const std::optional<std::string>& data) {
    std::optional<millichart::TableInput> table;
    if (data) {
        table = millichart::TableInput{ReadInput(*data)};
    }
    LoadedChart loaded;
    loaded.Document = millichart::ChartDocument::FromInput(ReadInput(input), std::move(table));
    loaded.Diagnostics = loaded.Document.Diagnostics();
    if (loaded.Document.IsSound()) {
        LayOut(loaded);
    }
    return loaded;
}

} // namespace

LoadedChart LoadChart(const std::string& input, const std::optional<std::string>& data) {
    try {
        return Load(input, data);
    } catch (const std::bad_alloc&) {
        LoadedChart none;
        none.Diagnostics = {penlode::Error("", kTooLittleMemory)};
        none.Diagnostics.front().File = ShownName(input);
        return none;
    }
}

} // namespace cli
