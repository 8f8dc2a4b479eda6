#pragma once

#include "documents/tables/DecimalMark.h"
#include "documents/tables/Table.h"
#include "documents/tables/TableShape.h"
#include "documents/tables/TimeAxis.h"
#include "documents/tables/WrittenNumber.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace millichart::documents {

/// What the first column of a line chart holds, as its first row tells.
enum class TimeForm { Whole, Decimal, Texts };

/// A row of a line chart by itself.
struct LoneRow {
    TimeForm Form = TimeForm::Whole;
    double Time = 0.0; ///< unless it is a text
    std::string Text;  ///< UTF-8
    std::vector<double> Values;
};

/// Reads the rows of a table whose shape is known.
class TableReader {
public:
    /// `lines` are those of the columns, where rows are columns; else there are none.
    TableReader(const TableInput& input, const TableForm& form, LookedAtRows& rows, const TableShape& shape,
                std::optional<DecimalMark> mark, const std::vector<std::uint32_t>& lines);

    /// False when a number was met which the decimal mark must be known to read.
    bool Read();

    /// In the place of `Read`, for who keeps no rows: the heading, if there is one, and then each row. False
    /// when a row gave none, for which errors may be told, or needs a decimal mark.
    bool ReadLone(const TableRow& row, LoneRow& taken);

    void ReadHeading(const TableRow& row) { ReadRow(row, true); }

    /// Behind the last. `filled` cells were seen of rows that were read elsewhere, none if there were no such
    /// rows.
    void EndLone(std::size_t filled);

    bool LacksMark() const { return m_lacksMark; }

    void SetMark(const DecimalMark& mark);

    /// Cells of a row; 0 before the first.
    std::size_t Width() const { return m_width; }

    bool HasErrors() const { return m_told != 0; }

    /// As of a cell in the first column.
    void RefuseTime(std::size_t line, const std::string& text, const std::string& expected);
    void WarnAtLine(std::size_t line, std::string text);
    /// What was read before is not what was meant.
    void Fail(const std::string& fault, std::size_t line);

    /// Once the rows are in their order.
    void CheckRows();

    /// Of a mark that nothing tells.
    void WarnOfMark(const DecimalMark& mark, char taken);

    Table& Result() { return m_table; }

    std::vector<penlode::Diagnostic>& Diagnostics() { return m_diagnostics; }

private:
    void ReadRow(const TableRow& row, bool isHeading);
    void SetWidth(const TableRow& row);
    void MakeRoom(std::size_t cells);
    const TableRow& Chosen(const TableRow& row);
    void TakeHeading(const TableRow& row);
    void RefuseNarrow(const TableRow& row);
    bool HasWidth(const TableRow& row, std::size_t width, const std::string& expected);
    bool FitsShape(const TableRow& row);
    void TakeFirstCell(const TableRow& row);
    void TakeName(const TableRow& row);
    void TakeTime(const TableRow& row);
    void TakeDecimalTime(const TableRow& row);
    void TakeTimes();
    bool TakeDates();
    void TakeAxis(TimeAxis axis);
    void TakeNumbers(const TableRow& row);
    bool IsError(const TableRow& row, std::size_t column);
    void TellSheetErrors();
    double NumberIn(const TableRow& row, std::size_t column);
    std::string NumberForm(const WrittenNumber& written) const;
    void CheckFault();
    void RefuseCell(const TableRow& row, std::size_t column, const std::string& expected);
    void WarnAt(std::size_t row, std::string text);
    void TellAt(const TableRow& row, penlode::Diagnostic fault);
    void Tell(penlode::Diagnostic fault);

    const InputText& m_input;
    const TableForm& m_form;
    LookedAtRows& m_rows;
    const TableShape& m_shape;
    std::optional<DecimalMark> m_mark;
    Table m_table;
    std::vector<penlode::Diagnostic> m_diagnostics;
    std::size_t m_told = 0; ///< errors
    std::size_t m_width = 0;
    std::size_t m_filled = 0; ///< cells of the row with most, up to its last text
    TableRow m_chosen;
    TimeForm m_times = TimeForm::Whole;
    std::vector<double> m_numbers; ///< times with decimals
    std::size_t m_numbersRead = 0;
    std::size_t m_percents = 0; ///< of these
    std::size_t m_sheetErrors = 0;
    penlode::Diagnostic m_firstSheetError;
    bool m_isOver = false;
    bool m_lacksMark = false;
};

} // namespace millichart::documents
