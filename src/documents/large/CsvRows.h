#pragma once

#include "documents/large/PlainRows.h"
#include "documents/tables/Csv.h"
#include "documents/tables/TableReader.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace millichart::documents {

/// Reads the rows of a long text of UTF-8, a piece after the other, as `ReadTable` would: what kind of table
/// it is, its beginning tells. Most rows are plain and quickly read; any other goes to the reader of tables.
class CsvRows {
public:
    /// The input, which must outlive this, has a stream.
    CsvRows(const TableInput& input, const TableForm& form, std::vector<penlode::Diagnostic>& told);

    /// Why the rows cannot be read one by one; a text is there then.
    const penlode::Diagnostic& Reason() const { return m_reason; }

    bool IsReadable() const { return m_reason.Text.empty(); }

    /// False if the options do not fit the table, which was told.
    bool HasShape() const { return m_reader != nullptr; }

    /// The first byte and the first line below the heading.
    std::uint64_t Begin() const { return m_begin; }

    std::size_t BeginLine() const { return m_beginLine; }

    /// Reads whole rows and gives how many bytes they are; `isEnd` if nothing follows. Behind the text stands
    /// a 0. What is wrong is kept for `End`.
    template <class Take> std::size_t Scan(std::string_view text, bool isEnd, std::size_t& line, Take&& take);

    /// Behind the last row, before the reader's table and diagnostics are looked at.
    void End();

    TableReader& Reader() { return *m_reader; }

    RowTimes Times() const { return m_form.Times; }

    bool AreOfOneDay() const { return m_firstDate && !m_firstDate->HasDate; }

    std::size_t Rows() const { return m_rows; }

    std::size_t Curves() const { return m_row.Values.size(); }

private:
    void ReadBeginning(const TableOptions& options, const TableForm& tableForm);
    void TakeReason(std::size_t line, std::string text);
    bool TakeSlow(std::string_view text, bool isEnd, std::size_t& line, std::size_t& length);
    bool TakeLone(const TableRow& row);
    bool TakeDate(const TableRow& row);
    bool FindMark(const TableRow& row);
    void TakeForm();

    const TableInput& m_input;
    penlode::Diagnostic m_reason;
    std::unique_ptr<CsvReader> m_beginning;
    std::unique_ptr<LookedAtRows> m_first;
    TableShape m_shape;
    std::unique_ptr<TableReader> m_reader;
    std::uint64_t m_begin = 0;
    std::size_t m_beginLine = 1;
    std::optional<DecimalMark> m_mark;
    PlainForm m_form;
    PlainRow m_row;
    LoneRow m_lone;
    std::optional<WrittenDate> m_firstDate;
    std::size_t m_filled = 0;
    std::size_t m_rows = 0;
};

template <class Take>
std::size_t CsvRows::Scan(std::string_view text, bool isEnd, std::size_t& line, Take&& take) {
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    const char* at = begin;
    while (at < end && IsReadable()) {
        if (const char* const behind = ReadPlainRow(at, end, m_form, m_row); behind != nullptr) {
            m_filled = m_row.Filled > m_filled ? m_row.Filled : m_filled;
            ++m_rows;
            ++line;
            take(m_row, at, behind);
            at = behind;
            continue;
        }
        std::size_t length = 0;
        const bool isRow = TakeSlow(text.substr(static_cast<std::size_t>(at - begin)), isEnd, line, length);
        if (length == 0) {
            break;
        }
        if (isRow) {
            ++m_rows;
            take(m_row, at, at + length);
        }
        at += length;
    }
    return static_cast<std::size_t>(at - begin);
}

} // namespace millichart::documents
