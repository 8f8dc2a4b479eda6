#pragma once

#include "documents/tables/TableInput.h"
#include "penlode/streams/Diagnostic.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace millichart::documents {

/// What a kind of chart expects of a table with its data: a column of names or times, and columns of numbers.
struct TableForm {
    enum class Heading {
        Always,
        OverNumber, ///< a first row whose second cell is a word without digits
        OverTime    ///< a first row whose first cell is no whole number
    };
    Heading HeadedBy = Heading::Always;
    std::size_t Width = 0;           ///< cells of a row; 0: as many as the first one has
    const char* WidthForm = nullptr; ///< what is expected of a row of another width
    /// Of a table whose width its heading gives: what is expected of a heading without a second cell. Such a
    /// heading may stand alone.
    const char* HeadingForm = nullptr;
    const char* HeadingNames = nullptr; ///< what they are, if a warning is due of numbers there
    bool HasTimes = false;              ///< whole numbers in the first column; texts are labels
    bool AreNamesJoined = false;        ///< in the record that takes them
    bool IsPositive = false;            ///< numbers are 0 or more
    std::optional<double> Gap = {};     ///< an empty cell's number; without, there must be one
    std::size_t MaxRows = SIZE_MAX;
    const char* MaxRowsForm = nullptr;
    const char* NoRows = "no rows"; ///< what is found in a table without any
    const char* RowsForm = nullptr; ///< what is expected there
};

struct Table {
    std::string File;                 ///< as diagnostics call it
    std::vector<std::string> Heading; ///< narrow; over the columns, empty without one
    std::vector<std::string> Names;   ///< narrow; in the first column, if there are no times
    std::vector<std::int32_t> Times;  ///< those in the first column, or the rows' numbers from 0
    std::vector<std::vector<double>> Columns;
    std::vector<std::uint32_t> Lines; ///< a row each, from 1
    std::size_t EmptyColumns = 0;     ///< so many of the last have neither a heading nor a number
};

/// Reads a table and tells what is wrong with it, with line and column. One that could not be read, or has
/// too many rows, is empty.
Table ReadTable(const TableInput& input, const TableForm& form,
                std::vector<penlode::Diagnostic>& diagnostics);

/// "column 1" for 0, as a diagnostic's place.
std::string ColumnPlace(std::size_t column);

} // namespace millichart::documents
