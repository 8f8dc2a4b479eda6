#pragma once

#include "documents/tables/RowReader.h"
#include "documents/tables/Table.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Which of a table's rows and columns are its title, its heading, its names and its numbers, as far as its
/// first rows tell and nobody said.
namespace millichart::documents {

/// The first that is not empty, of a row that has one.
const std::string& FirstText(const TableRow& row);

/// Rows of which the first can be looked at before they are taken.
class LookedAtRows {
public:
    /// The reader must outlive it.
    explicit LookedAtRows(RowReader& reader);

    const std::vector<TableRow>& First() const { return m_first; }

    bool Next(TableRow& row);

    /// Can the rows be read again?
    bool CanRewind() const { return m_canRewind; }

    void Rewind();

    RowReader& Reader() const { return m_reader; }

private:
    RowReader& m_reader;
    std::vector<TableRow> m_first;
    std::size_t m_next = 0;
    bool m_canRewind = true;
    bool m_isPast = false; ///< beyond the first rows
};

struct TableShape {
    std::string Title;      ///< UTF-8
    std::size_t Titles = 0; ///< rows above the heading or the first row
    bool HasHeading = false;
    bool HasDoubt = false;            ///< about the heading
    std::size_t Width = 0;            ///< cells that a row may have
    std::vector<std::size_t> Columns; ///< those taken, from 0; the first is that of names or times

    bool IsWhole() const { return Columns.empty(); } ///< all columns are taken as they stand
};

/// Tells what is wrong with the options, and what is passed over. Leaves the rows at their beginning.
TableShape ShapeOf(LookedAtRows& rows, const TableForm& form, const TableOptions& options,
                   std::vector<penlode::Diagnostic>& diagnostics);

/// How many rows of one text each stand above a table that is wider. Where such a row has empty cells too, it
/// is one without values, unless a heading follows.
std::size_t TitleRows(const std::vector<TableRow>& rows, bool mayLackNames, std::optional<bool> hasHeading);

} // namespace millichart::documents
