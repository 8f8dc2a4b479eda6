#pragma once

#include "documents/tables/Table.h"

#include <vector>

namespace millichart::documents {

/// Puts the rows into the order that the options ask for, and all but the largest into one. Tells what cannot
/// be asked of this table, and of a last row that holds the others' sum.
void Arrange(Table& table, const TableForm& form, const TableOptions& options,
             std::vector<penlode::Diagnostic>& diagnostics);

} // namespace millichart::documents
