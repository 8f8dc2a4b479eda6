#pragma once

#include "documents/ChartData.h"
#include "documents/ChartStream.h"
#include "documents/Table.h"
#include "penlode/streams/Diagnostic.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace millichart::documents {

/// Where a chart's data may come from besides its document, and where to tell what is wrong with it.
struct DataSource {
    std::filesystem::path Folder; ///< the document's; a table that it names stands there
    const InputText* Table;       ///< replaces the document's own data; null without one
    std::vector<penlode::Diagnostic>* Diagnostics;
    std::vector<std::string>* Files; ///< takes the name of each table that the document names
};

/// The places of keys that a document leaves open, so that what is taken for them follows the data.
using OpenPlaces = std::set<std::string>;

/// The table that a chart's data are in: the one that replaces them, or that of the file under `csvKey` in
/// the stream's current group. Nothing when the data stand in the document. A document with both `csvKey` and
/// `key`, under which its own data stand, is refused.
std::optional<Table> LoadTable(ChartStream& stream, const char* key, const DataSource& source,
                               const TableForm& form, const char* csvKey = "csv");

/// Of bars or curves: the document's own names stand, then those that came with the data; without any, so
/// many are empty where the names are left open, that all is drawn. True when own names are others.
bool CompleteNames(std::vector<std::string>& names, const std::vector<std::string>& ofData, std::size_t count,
                   bool areOpen);

/// What is told of a chart whose data, at `place` in its document unless they are in a table, are none.
penlode::Diagnostic NothingIn(const TableOrigin& origin, const char* place, const char* expected);

/// The warning that a document's names at `place` are others than those that came with its table.
penlode::Diagnostic OtherNames(const std::string& place);

} // namespace millichart::documents
