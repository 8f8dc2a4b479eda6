#pragma once

#include "documents/tables/RowReader.h"
#include "documents/tables/TableInput.h"

#include <memory>

namespace millichart::documents {

/// Of whatever an ODBC driver reaches. What the query does is undone: the connection is opened for reading,
/// within a transaction that is for reading where the data base has such and is rolled back at the end.
/// Floating point numbers have the shortest exact form, decimal ones the driver's.
std::unique_ptr<RowReader> OpenOdbc(const TableInput& input);

} // namespace millichart::documents
