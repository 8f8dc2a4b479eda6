#pragma once

#include "documents/LargeCurves.h"
#include "documents/large/LineRules.h"
#include "documents/tables/Table.h"

#include <memory>
#include <vector>

namespace millichart::documents {

/// The curves of a long text of rows. A file is read once for their extent, and then in each picture's
/// columns only where a column begins. A pipe is read once: its rows are kept in cells that are many times
/// narrower than a picture's columns, so that its picture may differ from the file's by a shade of a pixel.
///
/// Null, and `reason` tells why, when the rows cannot be read one by one.
std::shared_ptr<LargeCurves> OpenCsvCurves(const TableInput& input, const TableForm& form,
                                           const LineRules& rules,
                                           std::vector<penlode::Diagnostic>& diagnostics,
                                           penlode::Diagnostic& reason);

} // namespace millichart::documents
