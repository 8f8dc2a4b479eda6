#pragma once

#include "documents/ChartStream.h"
#include "documents/tables/TableInput.h"

#include <string>
#include <vector>

/// How a document says which table it takes its data from and how it is to be read: by keys beside the
/// values.
///
///     "csv": "sales.xlsx", "sheet": "2024", "columns": ["Region", "Sales"], "heading": true,
///     "transpose": false, "order": "descending", "top": 5, "decimal": ","
///     "source": "sqlite:sales.db", "query": "select region, sum(value) from sales group by region"
///     "source": "odbc:plant", "table": "lab.points", "time": "t", "value": "v", "by": "site",
///     "where": ["t >= 1000"]
///
/// Of a second table, whose name stands under "groupsCsv", they are "groupsSheet" and so on.
namespace millichart::documents {

/// Does the stream's current group name a table?
bool NamesTable(ChartStream& stream, const std::string& csvKey);

/// The name of the table, narrow; empty without one, or with one that is refused. A second name is refused,
/// and so is one beside the data themselves, which stand under `dataKey`.
std::string LoadTableName(ChartStream& stream, const std::string& csvKey, const std::string& dataKey);

/// What the document leaves out stays as it is by default.
TableOptions LoadTableOptions(ChartStream& stream, const std::string& csvKey);

/// The first options, and the second where they say nothing.
TableOptions Merged(TableOptions first, const TableOptions& second);

/// All of these keys.
std::vector<std::string> TableKeys(const std::string& csvKey);

} // namespace millichart::documents
