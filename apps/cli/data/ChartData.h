#pragma once

#include "data/DataTable.h"
#include "documents/ChartStream.h"
#include "files/Message.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// Where a chart's data may come from besides its document, and where to tell what is wrong with it.
struct DataSource {
    std::string Folder;                     ///< the document's; a CSV file that it names stands there
    std::optional<std::string> NamedByUser; ///< a CSV file that replaces the document's own data
    std::vector<Message>* Messages;
    std::vector<std::string>* Files; ///< takes the name of each file that is read
};

/// The warning that a document's names at `place` are others than those that came with its CSV file.
Message OtherNames(const std::string& place);

/// The table that a chart's data are in: of the file that the user named, or of the one under `csvKey` in the
/// stream's current group. Nothing when the data stand in the document. A document with both `csvKey` and
/// `key`, under which its own data stand, is refused.
std::optional<DataTable> LoadDataTable(ChartStream& stream, const char* key, const DataSource& source,
                                       const char* csvKey = "csv");

} // namespace cli
