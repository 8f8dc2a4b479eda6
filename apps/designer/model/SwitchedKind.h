#pragma once

#include "documents/ChartDocument.h"
#include "model/DataTable.h"

#include <vector>

namespace designer {

/// A chart of another kind, and the tables that go with it.
struct Switched {
    millichart::ChartDocument Document;
    std::vector<DataTable> Tables;
};

/// On the same data: a new document of the kind that has the texts of the one before, and of its looks what
/// both kinds know. Of a chart of slices and bars a pie takes the slices and any other the bars; two half
/// pies have a column each.
Switched SwitchedTo(const millichart::ChartKind& kind, const millichart::ChartDocument& before,
                    const std::vector<DataTable>& tables);

/// A new document that holds a table's data. Its diagnostics tell what is wrong with it.
millichart::ChartDocument DocumentOnTable(const millichart::ChartKind& kind, millichart::TableInput table);

} // namespace designer
