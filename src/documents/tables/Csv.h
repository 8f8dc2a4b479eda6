#pragma once

#include "documents/tables/RowReader.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace millichart::documents {

/// Reads comma, semicolon or tab separated text row by row, separated by whichever the first line with any
/// has most of, unless no other line has it; the lines below decide between equals, and a first line "sep=;"
/// over all. A cell in double quotes may hold separators, line breaks and doubled quotes. Lines end with LF
/// or CRLF; a byte order mark is passed over, and so are rows whose cells are all empty. Blanks round an
/// unquoted cell are dropped. The text is UTF-8, or of an encoding that Encoding.h knows.
class CsvReader final : public RowReader {
public:
    /// The bytes must outlive the reader.
    explicit CsvReader(std::string_view bytes);

    /// Of rows within a text of UTF-8, of which the first begins on that line.
    CsvReader(std::string_view rows, char separator, std::size_t line);

    bool Next(TableRow& row) override;

    /// How many bytes lie before the next row, and on which line that begins.
    std::size_t At() const { return m_passed + m_at; }

    std::size_t Line() const { return m_line; }

    std::string Fault() const override;

    std::size_t FaultLine() const override { return m_openQuote; }

    bool IsExact() const override { return false; }

    bool Rewind() override;

    char Separator() const override { return m_separator; }

private:
    bool AtEnd() const { return m_at >= m_text.size(); }

    void ReadRow(TableRow& row);
    void ReadCell(std::string& cell);
    void ReadQuoted(std::string& cell);

    std::string m_decoded; ///< of a text that is no UTF-8
    std::string_view m_text;
    bool m_isText = true;
    char m_separator = ',';
    std::size_t m_begin = 0; ///< of the first row
    std::size_t m_firstLine = 1;
    std::size_t m_passed = 0; ///< bytes before the text: a mark of their order
    std::size_t m_at = 0;
    std::size_t m_line = 1;
    std::size_t m_openQuote = 0; ///< the line of a quote that never closed
};

} // namespace millichart::documents
