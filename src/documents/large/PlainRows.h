#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace millichart::documents {

/// What stands in the first column of rows.
enum class RowTimes { Whole, Decimal, Dates };

/// A row, with an empty cell as a gap.
struct PlainRow {
    double Time = 0.0; ///< a number, or milliseconds since the beginning of 1970
    int Decimals = 0;  ///< of a number
    std::vector<double> Values;
    std::size_t Filled = 0; ///< of those taken, up to the last that is not empty
};

/// How rows are read that are written as programs write them.
struct PlainForm {
    char Separator = ',';
    char Mark = '.';
    RowTimes Times = RowTimes::Whole;
    /// What becomes of each cell of a row: 0 is the time, from 1 on a curve's value; -1 is passed over.
    /// Without any no row is plain.
    std::vector<int> Cells;
};

/// Reads a row of plain numbers, in quotes or not, and of a time. Gives the place behind its line break; null
/// for any other row, also one that does not end before `end`. The character at `end` is 0.
const char* ReadPlainRow(const char* at, const char* end, const PlainForm& form, PlainRow& row);

} // namespace millichart::documents
