#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace millichart::documents {

/// How a data base finds the cell of a time by a multiplication, though it rounds in its own way.
///
///     step(t) = (t - Base) * Scale + Shift
///
///     |--|            |--|            |--|            step(t), whole numbers at the left of each bracket
///      ^ ^             ^               ^^             where cells begin
///
/// Each cell begins within a bracket's width behind a whole number. Between two brackets all times are of one
/// cell, and those in a bracket count one by one. No step is below 1, so that its whole part is easily had.
struct CellSteps {
    double Base = 0.0; ///< a whole number
    double Scale = 0.0;
    double Shift = 0.0;
    double Bracket = 0.0; ///< less than 1 where that is of any use
    /// Whole parts of steps in which a cell begins out of all brackets, so that all times in them count one
    /// by one. Ascending.
    std::vector<std::int64_t> Odd = {};
    bool AreTimesAlone = false; ///< cells hold so few times each that all count one by one
};

/// Of cells that begin at each of `starts`, which ascend, for times from `first` to `last`.
CellSteps StepsOf(std::span<const std::int32_t> starts, std::int64_t first, std::int64_t last);

} // namespace millichart::documents
