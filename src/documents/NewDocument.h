#pragma once

#include "documents/ChartDocument.h"

#include <string>
#include <vector>

/// Documents to start from, with a person's own data in the place of the example's.
namespace millichart {

/// A new document's table, which it names or holds.
struct NewTable {
    TableInput Table;
    /// What the document is to call it, such as a file's name as seen from its folder; empty for a document
    /// that is to hold the data itself.
    std::string Name = {};
};

/// A complete document of a kind on a table, without any of the texts and figures of the kind's example. What
/// the settings leave open suits the data: the title above the table, a legend for several series, a caption
/// of the value axis for one, values at bars where they are few. `file` is what the document is called; a
/// table that it names is looked for beside it. Its diagnostics tell what is wrong.
ChartDocument NewDocument(const ChartKind& kind, NewTable table, const std::vector<Setting>& settings = {},
                          const std::string& file = {});

} // namespace millichart
