#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace millichart::documents {

/// A row of a table: the line on which it begins, from 1, and the texts of its cells, UTF-8.
struct TableRow {
    std::size_t Line = 1;
    std::vector<std::string> Cells;
};

/// How many cells a row has up to the last one that is not empty.
inline std::size_t FilledCells(const TableRow& row) {
    std::size_t filled = row.Cells.size();
    while (filled > 0 && row.Cells[filled - 1].empty()) {
        --filled;
    }
    return filled;
}

/// Gives the rows of a table one after the other.
class RowReader {
public:
    RowReader() = default;
    RowReader(const RowReader&) = delete;
    RowReader& operator=(const RowReader&) = delete;
    virtual ~RowReader() = default;

    /// The next row in the place of the old one, whose cells may keep their memory; false when there is none,
    /// or none can be read any more.
    virtual bool Next(TableRow& row) = 0;

    /// Why the rows ended before their end, as in "cannot be read: ..."; empty when they did not.
    virtual std::string Fault() const = 0;

    /// The line that the fault is about, or 0.
    virtual std::size_t FaultLine() const { return 0; }

    /// Are numbers written with a decimal point and without groups, and dates as 2024-03-15 or
    /// 2024-03-15T14:30:00, since a program and no person wrote them?
    virtual bool IsExact() const = 0;

    /// Begins again with the first row; false if that cannot be.
    virtual bool Rewind() { return false; }

    /// What parts the cells of a text; 0 where nothing does.
    virtual char Separator() const { return '\0'; }

    /// The sheet's name, UTF-8; empty for what has none.
    virtual std::string Sheet() const { return {}; }
};

} // namespace millichart::documents
