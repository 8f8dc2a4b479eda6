#include "documents/DataSource.h"

#include "documents/Fields.h"
#include "penlode/text/StringUtil.h"

namespace millichart::documents {

std::optional<Table> LoadTable(ChartStream& stream, const char* key, const DataSource& source,
                               const TableForm& form, const char* csvKey) {
    const bool isNamed = stream.Has(csvKey);
    const std::string named = isNamed ? LoadText(stream, csvKey, "") : "";
    if (isNamed && stream.Has(key)) {
        stream.Refuse(csvKey, named, std::string("either ") + key + " or " + csvKey + ", not both");
    }
    const bool isName = !named.empty() && named.find('\0') == std::string::npos;
    if (isNamed && !isName) {
        stream.Refuse(csvKey, named, "the name of a CSV file");
    }
    if (source.Table != nullptr) {
        return ReadTable(*source.Table, form, *source.Diagnostics);
    }
    if (!isName) {
        return std::nullopt;
    }
    const std::string file =
        Utf8FromPath(source.Folder / PathFromUtf8(penlode::CStringUtil::AnsiToUtf8(named)));
    source.Files->push_back(file);
    return ReadTable(ReadFile(file, NamedBy::Document), form, *source.Diagnostics);
}

bool CompleteNames(std::vector<std::string>& names, const std::vector<std::string>& ofData, std::size_t count,
                   bool areOpen) {
    if (!ofData.empty() && (areOpen || names.empty())) {
        names = ofData;
    } else if (areOpen) {
        names.assign(count, "");
    }
    return !ofData.empty() && ofData != names;
}

penlode::Diagnostic NothingIn(const TableOrigin& origin, const char* place, const char* expected) {
    penlode::Diagnostic nothing =
        penlode::Error(origin.File.empty() ? place : "", "nothing to draw", expected);
    nothing.File = origin.File;
    return nothing;
}

penlode::Diagnostic OtherNames(const std::string& place) {
    return penlode::Warning(place,
                            "other names than in the CSV file, and the document's are taken; leave out " +
                                place.substr(place.rfind('/') + 1) + " for those of the file");
}

} // namespace millichart::documents
