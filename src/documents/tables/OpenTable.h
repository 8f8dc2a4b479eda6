#pragma once

#include "documents/tables/RowReader.h"
#include "documents/tables/TableInput.h"

#include <memory>

namespace millichart::documents {

/// A reader of the rows, told by what the input begins with: a spreadsheet file, or else a text; or of what a
/// data base answers. The input must outlive it. What cannot be read is its fault.
std::unique_ptr<RowReader> OpenTable(const TableInput& input);

} // namespace millichart::documents
