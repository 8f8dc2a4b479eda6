#pragma once

#include "ChartStream.h"
#include "Message.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// Where a chart's data may come from besides its document, and where to tell what is wrong with it.
struct DataSource {
    std::string Folder;                     ///< the document's; a CSV file that it names stands there
    std::optional<std::string> NamedByUser; ///< a CSV file that replaces the document's own data
    std::vector<Message>* Messages;
};

/// One number a part, and its name if the data came with names (narrow).
struct NamedValues {
    std::vector<std::string> Names;
    std::vector<double> Values;
};

/// The group "data" of a document: "values", or "csv" with a file of two columns, names and values.
NamedValues LoadNamedValues(ChartStream& stream, const DataSource& source);

} // namespace cli
