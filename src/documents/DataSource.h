#pragma once

#include "documents/ChartStream.h"
#include "documents/large/OpenLarge.h"
#include "documents/tables/Table.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace millichart::documents {

/// Where a chart's data may come from besides its document, and where to tell what is wrong with it.
struct DataSource {
    std::filesystem::path Folder; ///< the document's; a table that it names stands there
    /// Replaces the document's own data; null without one. Takes the document's options where it has none.
    TableInput* Table;
    std::vector<penlode::Diagnostic>* Diagnostics;
    std::vector<std::string>* Files; ///< takes the name of each table that the document names
    LargeWish* Large = nullptr;      ///< takes a table that is too large to be held; null: none may be
};

/// The table that a chart's data are in: the one that replaces them, or that of the file under `csvKey` in
/// the stream's current group; see TableKeys.h. Nothing when the data stand in the document, under `key`.
std::optional<Table> LoadTable(ChartStream& stream, const char* key, const DataSource& source,
                               const TableForm& form, const char* csvKey = "csv");

/// A list of groups, each with a name, in the group "data", or a table in its place.
struct ListForm {
    const char* Key;
    const char* Expected; ///< what stands there
    const char* CsvKey;
    const TableForm& Table;
    const char* NoList = ""; ///< is found where a group stands instead; else the group itself
};

/// Opens the group "data", which the caller pops. `names` takes the list's, unless none has one; `load` loads
/// the rest of each.
std::optional<Table> LoadList(ChartStream& stream, const DataSource& source, const ListForm& form,
                              std::vector<std::string>& names, const std::function<void()>& load);

} // namespace millichart::documents
