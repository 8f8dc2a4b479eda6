#pragma once

#include <string>
#include <vector>

namespace millichart {

/// A table of a data base each of whose rows is a point of a line, drawn by what shows of it however many
/// rows it has. All texts are UTF-8; names are those of columns.
struct PointsTable {
    std::string Name{};   ///< of the table, with its schema before a point if it needs one; empty: none
    std::string Time{};   ///< of whole numbers or dates
    std::string Value{};  ///< of numbers
    std::string Series{}; ///< what a row's curve is called; empty: all rows are one curve
    /// Each as in `site = 3`, all of which hold for the rows that are drawn; see RowCondition.h.
    std::vector<std::string> Where{};

    friend bool operator==(const PointsTable&, const PointsTable&) = default;
};

} // namespace millichart
