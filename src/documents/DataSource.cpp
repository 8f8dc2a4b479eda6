#include "documents/DataSource.h"

#include "documents/Fields.h"
#include "documents/tables/QuerySource.h"
#include "documents/tables/TableKeys.h"
#include "penlode/text/StringUtil.h"

#include <utility>

namespace millichart::documents {
namespace {

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

/// What the document names, from its folder. Nothing if it must not name that.
std::optional<TableInput> OpenNamed(const std::string& name, const std::string& place, TableOptions options,
                                    const DataSource& source) {
    if (!IsQuerySource(name)) {
        source.Files->push_back(Utf8FromPath(source.Folder / PathFromUtf8(name)));
        return TableInput{ReadFile(source.Files->back(), NamedBy::Document), std::move(options)};
    }
    if (const std::string expected = ExpectedOfDocument(name); !expected.empty()) {
        // Not by the stream, which shows a text as it stands, with its password.
        source.Diagnostics->push_back(
            penlode::Error(place, '"' + penlode::Shortened(ShownSource(name)) + '"', expected));
        return std::nullopt;
    }
    const std::string resolved = QuerySourceIn(source.Folder, name);
    if (const std::string file = FileOfQuerySource(resolved); !file.empty()) {
        source.Files->push_back(file);
    }
    return QueryInput(resolved, std::move(options));
}

/// Of a table that is streamed nothing is here.
Table ReadOrStream(TableInput& input, const TableForm& form, const DataSource& source) {
    penlode::Diagnostic reason = penlode::Error("", "");
    if (source.Large != nullptr) {
        source.Large->Curves = OpenLarge(input, form, source.Large->Rules, *source.Diagnostics, reason);
        if (source.Large->Curves != nullptr) {
            return {};
        }
    }
    const std::size_t told = source.Diagnostics->size();
    Hold(input, reason, *source.Diagnostics);
    return told == source.Diagnostics->size() ? ReadTable(input, form, *source.Diagnostics) : Table();
}

} // namespace

std::optional<Table> LoadTable(ChartStream& stream, const char* key, const DataSource& source,
                               const TableForm& form, const char* csvKey) {
    const std::string named = LoadTableName(stream, csvKey, key);
    TableOptions options = LoadTableOptions(stream, csvKey);
    if (source.Table != nullptr) {
        source.Table->Options = Merged(std::move(source.Table->Options), options);
        return ReadOrStream(*source.Table, form, source);
    }
    if (named.empty()) {
        return std::nullopt;
    }
    std::optional<TableInput> input = OpenNamed(
        penlode::CStringUtil::AnsiToUtf8(named),
        stream.PlaceOf(stream.Has(csvKey) ? csvKey : TableKeys(csvKey)[1]), std::move(options), source);
    return input ? std::optional(ReadOrStream(*input, form, source)) : std::nullopt;
}

std::optional<Table> LoadList(ChartStream& stream, const DataSource& source, const ListForm& form,
                              std::vector<std::string>& names, const std::function<void()>& load) {
    const bool isMissing = !stream.Has("data");
    const bool isGroup = stream.Push("data", -1);
    std::optional<Table> table = LoadTable(stream, form.Key, source, form.Table, form.CsvKey);
    if (stream.Has(form.Key)) {
        LoadGroups(stream, form, names, load);
    } else if (!table && !NamesTable(stream, form.CsvKey) && (isGroup || isMissing)) {
        source.Diagnostics->push_back(
            penlode::Error(std::string("data/") + form.Key, "no such key",
                           std::string(form.Expected) + ", or " + form.CsvKey + " with a file"));
    }
    return table;
}

} // namespace millichart::documents
