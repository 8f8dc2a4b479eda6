#include "commands/Commands.h"
#include "documents/NewDocument.h"
#include "documents/tables/QuerySource.h"
#include "files/Streams.h"

#include <filesystem>

namespace cli {
namespace {

namespace fs = std::filesystem;
using millichart::ChartDocument;
using millichart::PathFromUtf8;

/// A file as a document calls it that becomes `output`, or is read in the current folder.
std::string NameBeside(const std::string& output, const std::string& file) {
    const fs::path path = PathFromUtf8(file);
    const fs::path folder = output == kStandardStream ? fs::path() : PathFromUtf8(output).parent_path();
    std::error_code error;
    const fs::path named = folder.empty() || path.is_absolute() ? path : fs::proximate(path, folder, error);
    return millichart::Utf8FromPath(named.empty() ? path : named);
}

/// Empty for what can be read only once, which the document holds then.
std::string TableName(const std::string& output, const std::string& table) {
    if (const std::string base = millichart::FileOfQuerySource(table); !base.empty()) {
        return table.substr(0, table.size() - base.size()) + NameBeside(output, base);
    }
    std::error_code error;
    const bool isFile = table != kStandardStream && fs::is_regular_file(PathFromUtf8(table), error);
    return millichart::IsQuerySource(table) ? table : isFile ? NameBeside(output, table) : "";
}

ChartDocument Make(const NewOptions& options) {
    const ChartSource& source = options.Source;
    const std::vector<millichart::Setting> settings = AllSettings(source, *source.Kind);
    if (!source.Data) {
        return ChartDocument::FromInput({"", std::string(source.Kind->Template)}, std::nullopt, settings);
    }
    millichart::NewTable table{ReadTableInput(*source.Data, source.Table),
                               TableName(options.Output, *source.Data)};
    const bool isFile = options.Output != kStandardStream;
    return millichart::NewDocument(*source.Kind, std::move(table), settings, isFile ? options.Output : "");
}

} // namespace

bool WriteNew(const NewOptions& options) {
    std::error_code error;
    if (!options.Force && options.Output != kStandardStream &&
        fs::is_regular_file(PathFromUtf8(options.Output), error)) {
        throw UserError(options.Output, "is there already; with --force it is written over");
    }
    ChartDocument document = Make(options);
    std::vector<Diagnostic> problems = document.Diagnostics();
    FitFigure(document, options.Source, problems);
    TellOfOptions(ShownOutput(options.Output), options.Source, problems);
    TellProblems(problems);
    const bool isGood = !millichart::HasErrors(problems);
    if (isGood) {
        WriteOutput(options.Output, document.Text());
    }
    return isGood;
}

} // namespace cli
