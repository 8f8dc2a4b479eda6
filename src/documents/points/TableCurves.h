#pragma once

#include "documents/LargeCurves.h"
#include "documents/large/LineRules.h"
#include "documents/tables/TableInput.h"

#include <memory>

namespace millichart::documents {

/// The curves of a data base's table, which does the sums: it is asked for what shows in each cell and not
/// for its rows. SQLite, which works in this program, gives all its rows to be summed up here: its own way
/// would sort them.
///
/// Rows come in the order of their times, and of equal times in that of their values. Null for an input
/// without such a table. Where rows may not be read, SQLite does the sums, too.
std::shared_ptr<LargeCurves> OpenTableCurves(const TableInput& input, const LineRules& rules,
                                             bool mayReadRows = true);

} // namespace millichart::documents
