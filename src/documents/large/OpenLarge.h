#pragma once

#include "documents/LargeCurves.h"
#include "documents/large/LineRules.h"
#include "documents/tables/Table.h"

#include <memory>
#include <vector>

namespace millichart::documents {

/// What a line chart is given in the place of a table, and where a table that is too large to be held is
/// wished to go.
struct LargeWish {
    LineRules Rules;
    std::shared_ptr<LargeCurves> Curves; ///< of such a table; else there are none
};

/// A table's curves as they need not be held; null where the table can be held and read, or where its rows
/// do not go one by one. Why they do not is told in `reason` then.
std::shared_ptr<LargeCurves> OpenLarge(const TableInput& input, const TableForm& form, const LineRules& rules,
                                       std::vector<penlode::Diagnostic>& diagnostics,
                                       penlode::Diagnostic& reason);

/// Reads what the input has not read yet, if that can be held. `reason` is why its rows must be.
void Hold(TableInput& input, const penlode::Diagnostic& reason,
          std::vector<penlode::Diagnostic>& diagnostics);

} // namespace millichart::documents
