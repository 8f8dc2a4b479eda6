#pragma once

#include "documents/tables/RowReader.h"
#include "documents/tables/TableInput.h"

#include <memory>

namespace millichart::documents {

/// Of a file, which is only read. Integers and floating point numbers have all their digits; of a blob its
/// length is told, as it has no text.
std::unique_ptr<RowReader> OpenSqlite(const TableInput& input);

} // namespace millichart::documents
