#pragma once

#include "documents/tables/TableShape.h"

#include <cstddef>
#include <string>

namespace millichart::documents {

/// With which mark the decimals of a table's numbers begin.
struct DecimalMark {
    char Mark = '.';
    std::size_t Line = 0;   ///< of the number that tells; or of the first that may be read either way
    std::size_t Column = 0; ///< from 0
    std::string Open = {};  ///< that number, if none tells
};

/// Looks through the table for a number that can be read in one way only. Without one, semicolons between
/// cells speak for commas. `from` is the first column that may hold numbers. Leaves the rows at their
/// beginning.
DecimalMark FindDecimalMark(LookedAtRows& rows, const TableShape& shape, std::size_t from);

} // namespace millichart::documents
