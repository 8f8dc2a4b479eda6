#include "documents/DataSource.h"

#include "documents/Fields.h"
#include "documents/tables/QuerySource.h"
#include "penlode/text/StringUtil.h"

#include <utility>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;

void LoadGroups(ChartStream& stream, const ListForm& form, std::vector<std::string>& names,
                const std::function<void()>& load) {
    if (!stream.IsList(form.Key)) {
        std::vector<std::string> none;
        if (form.NoList[0] == '\0') {
            stream.Ser(form.Key, none, {});
        }
        stream.Refuse(form.Key, form.NoList, form.Expected);
    }
    bool hasNames = false;
    const std::size_t count = stream.CountGroups(form.Key);
    for (std::size_t i = 0; i < count; ++i) {
        stream.Push(form.Key, static_cast<int>(i));
        const bool hasName = stream.Has("name");
        hasNames = hasNames || hasName;
        names.push_back(hasName ? LoadText(stream, "name", "") : "");
        load();
        stream.Pop();
    }
    if (!hasNames) {
        names.clear();
    }
}

/// The data base that a document names, with its query. Nothing without one, or when the document names what
/// it must not.
std::optional<TableInput> LoadQuery(ChartStream& stream, const char* key, const DataSource& source) {
    constexpr const char* kSource = "source";
    if (!stream.Has(kSource)) {
        return std::nullopt;
    }
    const std::string named = CStringUtil::AnsiToUtf8(LoadText(stream, kSource, ""));
    TableOptions options;
    options.Query = CStringUtil::AnsiToUtf8(LoadText(stream, "query", ""));
    std::string expected = IsQuerySource(named) ? ExpectedOfDocument(named) : "sqlite:FILE or odbc:DSN";
    if (stream.Has(key)) {
        expected = std::string("either ") + key + " or " + kSource + ", not both";
    }
    if (!expected.empty()) {
        // Not by the stream, which shows a value as it stands, with its password.
        source.Diagnostics->push_back(penlode::Error(
            stream.PlaceOf(kSource), '"' + penlode::Shortened(ShownSource(named)) + '"', expected));
        return std::nullopt;
    }
    if (const std::string file = FileOfQuerySource(QuerySourceIn(source.Folder, named)); !file.empty()) {
        source.Files->push_back(file);
    }
    return QueryInput(QuerySourceIn(source.Folder, named), std::move(options));
}

} // namespace

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
    if (const std::optional<TableInput> query = LoadQuery(stream, key, source)) {
        return ReadTable(*query, form, *source.Diagnostics);
    }
    if (!isName) {
        return std::nullopt;
    }
    const std::string file = Utf8FromPath(source.Folder / PathFromUtf8(CStringUtil::AnsiToUtf8(named)));
    source.Files->push_back(file);
    return ReadTable({ReadFile(file, NamedBy::Document)}, form, *source.Diagnostics);
}

std::optional<Table> LoadList(ChartStream& stream, const DataSource& source, const ListForm& form,
                              std::vector<std::string>& names, const std::function<void()>& load) {
    const bool isMissing = !stream.Has("data");
    const bool isGroup = stream.Push("data", -1);
    std::optional<Table> table = LoadTable(stream, form.Key, source, form.Table, form.CsvKey);
    if (stream.Has(form.Key)) {
        LoadGroups(stream, form, names, load);
    } else if (!table && !stream.Has(form.CsvKey) && !stream.Has("source") && (isGroup || isMissing)) {
        source.Diagnostics->push_back(
            penlode::Error(std::string("data/") + form.Key, "no such key",
                           std::string(form.Expected) + ", or " + form.CsvKey + " with a file"));
    }
    return table;
}

} // namespace millichart::documents
