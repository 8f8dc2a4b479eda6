#pragma once

#include "documents/tables/RowReader.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace millichart::documents {

/// A number in any way that people write it.
bool IsNumberCell(const std::string& cell);

struct HeadingGuess {
    bool IsHeading = false;
    bool IsDoubtful = false;
};

/// Is the first of some rows a heading? A word over a column of numbers makes it one; so does a word, or
/// nothing, over a first column of numbers or dates; so do years that are evenly spaced, as in
/// "Region,2023,2024". Nothing over names makes one of numbers only if names must be there.
HeadingGuess GuessHeading(std::span<const TableRow> rows, bool mayLackNames);

} // namespace millichart::documents
