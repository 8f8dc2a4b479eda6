#pragma once

#include "documents/tables/RowReader.h"
#include "documents/tables/TableInput.h"

#include <memory>

namespace millichart::documents {

/// Reads what a data base answers to the input's query. The first row
/// has the columns' names. Numbers and dates are in the exact forms, NULL is an empty cell, and the rows'
/// lines count from 1, the names'. Rows come as the data base finds them, and none is kept. The query can
/// read alone.
///
/// A query may take long: `WatchQueries` shows and stops it.
std::unique_ptr<RowReader> OpenQuery(const TableInput& input);

} // namespace millichart::documents
