#pragma once

#include "data/Csv.h"
#include "files/InputFile.h"
#include "files/Message.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// A CSV file that gives a chart its data. Whoever reads its cells tells here what is wrong with them, with
/// line and column.
class DataTable {
public:
    /// Reads a file. One that cannot be read is told and has no rows. Messages that another table adds in
    /// the meantime do no harm.
    DataTable(const std::string& file, NamedBy who, std::vector<Message>& messages);

    /// Its name in messages.
    const std::string& File() const { return m_file; }

    /// All rows but those whose cells are all empty.
    const std::vector<CsvRow>& Rows();

    /// As many rows of `width` cells, 1 or more, as are likely, but not so many that room for them is a
    /// waste.
    std::size_t RowsToMakeRoomFor(std::size_t width) const;

    /// Visits the same rows one after the other and keeps none, for tables of millions.
    template <class Visit> void ForEachRow(Visit visit) {
        CsvReader reader(m_text);
        for (CsvRow row; reader.Next(row);) {
            visit(row);
        }
        CheckQuotes(reader);
    }

    /// Has no error been told of it?
    bool IsSound() const { return m_isSound; }

    /// Tells of a row that has not this many cells, `wanted`. Empty cells beyond them, as spreadsheet
    /// programs write them, do not count.
    bool HasWidth(const CsvRow& row, std::size_t width, const std::string& wanted);

    /// The cell as a finite number, `wanted`; tells of one that is none.
    bool Number(const CsvRow& row, std::size_t column, const std::string& wanted, double& number);

    /// Warns of a heading, of `names`, whose cells are numbers alone: it may have been meant for data, unless
    /// nothing stands over the first column.
    void DoubtHeading(const CsvRow& heading, const std::string& names);

    /// Tells of a cell that exists.
    void RefuseCell(const CsvRow& row, std::size_t column, const std::string& wanted);

    /// Tells of the file as a whole.
    void Refuse(const std::string& found, const std::string& wanted);

    /// Tells of a row that can be used but was hardly meant so.
    void Warn(const CsvRow& row, const std::string& sentence);

private:
    void Tell(Message message);
    void CheckQuotes(const CsvReader& reader);

    std::string m_file;
    std::vector<Message>* m_messages;
    std::string m_text;
    std::optional<std::vector<CsvRow>> m_rows;
    bool m_isSound = true;
    std::size_t m_told = 0;
    std::size_t m_rest = 0; ///< the message that stands for those not kept
};

/// "column 1" for 0, as a message's place.
std::string ColumnPlace(std::size_t column);

/// Is the text of a number's cell a word over a column, and no malformed or missing number?
bool IsHeading(const std::string& cell);

} // namespace cli
