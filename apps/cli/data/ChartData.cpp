#include "data/ChartData.h"

#include "documents/Fields.h"
#include "penlode/text/StringUtil.h"

#include <filesystem>

namespace cli {
namespace {

std::string Beside(const std::string& folder, const std::string& name) {
    return (std::filesystem::path(folder) / name).string();
}

} // namespace

Message OtherNames(const std::string& place) {
    return {"",
            Severity::Warning,
            0,
            place,
            "",
            "",
            "other names than in the CSV file, and the document's are taken; leave out " +
                place.substr(place.rfind('/') + 1) + " for those of the file"};
}

std::optional<DataTable> LoadDataTable(ChartStream& stream, const char* key, const DataSource& source,
                                       const char* csvKey) {
    const bool isNamed = stream.Has(csvKey);
    const std::string named = isNamed ? LoadText(stream, csvKey, "") : "";
    if (isNamed && stream.Has(key)) {
        stream.Refuse(csvKey, named, std::string("either ") + key + " or " + csvKey + ", not both");
    }
    const bool isName = !named.empty() && named.find('\0') == std::string::npos;
    if (isNamed && !isName) {
        stream.Refuse(csvKey, named, "the name of a CSV file");
    }
    if (!isName && !source.NamedByUser) {
        return std::nullopt;
    }
    const std::string file = source.NamedByUser
                                 ? *source.NamedByUser
                                 : Beside(source.Folder, penlode::CStringUtil::AnsiToUtf8(named));
    source.Files->push_back(file);
    return DataTable(file, source.NamedByUser ? NamedBy::User : NamedBy::Document, *source.Messages);
}

} // namespace cli
