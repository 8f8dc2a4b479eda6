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

/// Reads the rows of a table whose shape is known.
class TableReader {
public:
    /// `lines` are those of the columns, where rows are columns; else there are none.
    TableReader(const TableInput& input, const TableForm& form, LookedAtRows& rows, const TableShape& shape,
                std::optional<DecimalMark> mark, const std::vector<std::uint32_t>& lines);

    /// False when a number was met which the decimal mark must be known to read.
    bool Read();

    /// Once the rows are in their order.
    void CheckRows();

    /// Of a mark that nothing tells.
    void WarnOfMark(const DecimalMark& mark, char taken);

    Table& Result() { return m_table; }

    std::vector<penlode::Diagnostic>& Diagnostics() { return m_diagnostics; }

private:
    /// What the first column of a line chart holds, as its first row tells.
    enum class Times { Whole, Decimal, Texts };

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
    Times m_times = Times::Whole;
    std::vector<double> m_numbers; ///< times with decimals
    std::size_t m_numbersRead = 0;
    std::size_t m_percents = 0; ///< of these
    std::size_t m_sheetErrors = 0;
    penlode::Diagnostic m_firstSheetError;
    bool m_isOver = false;
    bool m_lacksMark = false;
};

} // namespace millichart::documents
