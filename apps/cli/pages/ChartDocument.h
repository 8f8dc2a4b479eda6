#pragma once

#include "files/Message.h"
#include "kinds/Chart.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// A chart document as it was loaded.
struct ChartDocument {
    std::unique_ptr<Chart> Content; ///< null when there are errors
    std::string Kind;
    std::string Title;                  ///< UTF-8, like the description
    std::string Description;            ///< the document's description and its source
    std::vector<Message> Messages;      ///< in the document's order, notes last
    std::vector<std::string> DataFiles; ///< the other files that it was made of
};

/// Reads a document of the format in docs/document-format.md, "-" being the standard input. `data` names a
/// CSV file that replaces the document's data. What is wrong is among the messages, an input that cannot be
/// read too.
ChartDocument LoadChartDocument(const std::string& input, const std::optional<std::string>& data);

} // namespace cli
