#include "documents/OptionsGroup.h"

#include "documents/Fields.h"

namespace millichart::documents {
namespace {

constexpr const char* kReadable = "readable";

} // namespace

ChartOptions LoadOptions(ChartStream& stream) {
    ChartOptions options;
    if (!stream.Has(kOptions)) {
        return options;
    }
    if (stream.IsText(kOptions)) {
        const std::string word = LoadText(stream, kOptions, "");
        if (word != kReadable) {
            stream.Refuse(kOptions, word, "\"readable\" or a group");
            return options;
        }
        return ChartOptions::Readable();
    }
    CChartOptionsSerialize::SerializeChartOptions(stream, options, kOptions);
    return options;
}

void SaveOptions(SavingStream& stream, const ChartOptions& options) {
    if (options == ChartOptions()) {
        stream.Remove(kOptions);
    } else if (options == ChartOptions::Readable()) {
        stream.Text(kOptions, kReadable);
    } else {
        ChartOptions saved = options;
        CChartOptionsSerialize::SerializeChartOptions(stream, saved, kOptions);
    }
}

} // namespace millichart::documents
