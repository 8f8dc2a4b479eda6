#pragma once

#include "documents/ChartData.h"
#include "documents/tables/TableInput.h"
#include "penlode/streams/Diagnostic.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace millichart::documents {

class LookedAtRows;
struct TableShape;

/// What a kind of chart expects of a table with its data: a column of names or times, and columns of numbers,
/// maybe under a heading. Which columns and rows they are is found by TableShape.h.
struct TableForm {
    std::size_t Width = 0;           ///< cells of a row; 0: as many as the first one has
    const char* WidthForm = nullptr; ///< what is expected of a row of another width
    /// Of a table whose width its heading gives: what is expected of a heading without a second cell. Such a
    /// heading may stand alone.
    const char* HeadingForm = nullptr;
    const char* HeadingNames = nullptr; ///< what stands in the heading; null: nothing that shows
    bool HasTimes = false;              ///< in the first column; texts that are none are labels
    bool AreNamesJoined = false;        ///< in the record that takes them
    bool IsPositive = false;            ///< numbers are 0 or more
    std::optional<double> Gap = {};     ///< an empty cell's number; without, there must be one
    std::size_t MaxRows = SIZE_MAX;
    const char* MaxRowsForm = nullptr;
    const char* NoRows = "no rows"; ///< what is found in a table without any
    const char* RowsForm = nullptr; ///< what is expected there
};

struct Table {
    TableOrigin Origin;
    std::string Title;                ///< UTF-8; of a row with one text above the table
    std::vector<std::string> Heading; ///< narrow; over the columns, empty without one
    std::vector<std::string> Names;   ///< narrow; in the first column, if there are no times
    std::vector<std::int32_t> Times;  ///< those in the first column, or the rows' numbers from 0
    /// Narrow; spread evenly from the first to the last time, where whole numbers would not do.
    std::vector<std::string> TimeLabels;
    std::vector<std::vector<double>> Columns;
    std::size_t EmptyColumns = 0; ///< so many of the last have neither a heading nor a number
};

/// Reads a table and tells what is wrong with it and what is doubtful, with line and column. One that could
/// not be read, or has too many rows, is empty.
Table ReadTable(const TableInput& input, const TableForm& form,
                std::vector<penlode::Diagnostic>& diagnostics);

/// What a look at the first rows tells of a table, unless the options are wrong; what is doubtful is told.
std::optional<TableShape> ShapeOfInput(const TableInput& input, const TableForm& form, LookedAtRows& rows,
                                       std::vector<penlode::Diagnostic>& diagnostics);

/// The text of a row that stands above a table's heading, or nothing. UTF-8.
std::string TableTitle(const TableInput& input);

/// Says where a cell stands: file, line, and "column 2" or "sheet Sales, B7". Column 0 is that of the names.
void PutAt(const TableOrigin& origin, std::size_t row, std::size_t column, penlode::Diagnostic& diagnostic);

} // namespace millichart::documents
