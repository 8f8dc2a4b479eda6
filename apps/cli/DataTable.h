#pragma once

#include "Csv.h"
#include "Message.h"

#include <cstddef>
#include <string>
#include <vector>

namespace cli {

/// A CSV file that gives a chart its data. Whoever reads its cells tells here what is wrong with them, with
/// line and column.
class DataTable {
public:
    /// Reads a file, "-" being the standard input. One that cannot be read is told and has no rows.
    DataTable(const std::string& file, std::vector<Message>& messages);

    /// Without rows whose cells are all empty.
    const std::vector<CsvRow>& Rows() const { return m_rows; }

    /// Has nothing been told of it?
    bool IsSound() const { return m_isSound; }

    /// Tells of a row that has not this many cells, `wanted`. Empty cells beyond them, as spreadsheet
    /// programs write them, do not count.
    bool HasWidth(const CsvRow& row, std::size_t width, const std::string& wanted);

    /// The cell as a finite number, `wanted`; tells of one that is none.
    bool Number(const CsvRow& row, std::size_t column, const std::string& wanted, double& number);

    /// Tells of a cell that exists.
    void RefuseCell(const CsvRow& row, std::size_t column, const std::string& wanted);

    /// Tells of the file as a whole.
    void Refuse(const std::string& found, const std::string& wanted);

private:
    void Tell(Message message);
    void Parse(const std::string& text);

    std::string m_file;
    std::vector<Message>* m_messages;
    std::vector<CsvRow> m_rows;
    bool m_isSound = true;
};

/// How many cells a row has up to the last one that is not empty.
std::size_t FilledCells(const CsvRow& row);

/// Is the text of a number's cell a word over a column, and no malformed or missing number?
bool IsHeading(const std::string& cell);

} // namespace cli
