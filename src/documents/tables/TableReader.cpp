#include "documents/tables/TableReader.h"

#include "documents/Fields.h"
#include "documents/tables/Heading.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string_view>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;
using penlode::Diagnostic;

/// What spreadsheet programs show in the place of a number that cannot be found.
bool IsSheetError(const std::string& cell) {
    constexpr std::array<std::string_view, 7> kErrors = {"#DIV/0!", "#N/A",  "#REF!", "#VALUE!",
                                                         "#NAME?",  "#NUM!", "#NULL!"};
    return cell.starts_with('#') && std::find(kErrors.begin(), kErrors.end(), cell) != kErrors.end();
}

/// "B7"
std::string SheetCell(std::size_t column, std::size_t line) {
    std::string letters;
    for (; column > 0; column = (column - 1) / 26) {
        letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
    }
    return letters + std::to_string(line);
}

void PutAtLine(const TableOrigin& origin, std::size_t line, std::size_t column, Diagnostic& diagnostic) {
    const std::size_t number = column < origin.Columns.size() ? origin.Columns[column] : column + 1;
    diagnostic.File = origin.File;
    diagnostic.Line = origin.IsTransposed ? number : line;
    const std::size_t at = origin.IsTransposed ? line : number;
    diagnostic.Place = origin.Sheet.empty() || diagnostic.Line == 0
                           ? "column " + std::to_string(at)
                           : "sheet " + origin.Sheet + ", " + SheetCell(at, diagnostic.Line);
}

} // namespace

TableReader::TableReader(const TableInput& input, const TableForm& form, LookedAtRows& rows,
                         const TableShape& shape, std::optional<DecimalMark> mark,
                         const std::vector<std::uint32_t>& lines)
    : m_input(input.Input), m_form(form), m_rows(rows), m_shape(shape), m_mark(std::move(mark)) {
    TableOrigin& origin = m_table.Origin;
    origin.File = m_input.Name;
    origin.Sheet = rows.Reader().Sheet();
    origin.IsTransposed = input.Options.IsTransposed;
    origin.Columns = shape.IsWhole() ? lines : std::vector<std::uint32_t>();
    for (const std::size_t column : shape.Columns) {
        origin.Columns.push_back(origin.IsTransposed && column < lines.size()
                                     ? lines[column]
                                     : static_cast<std::uint32_t>(column + 1));
    }
    m_table.Title = shape.Title;
}

bool TableReader::Read() {
    TableRow row;
    for (std::size_t i = 0; !m_isOver && m_rows.Next(row); ++i) {
        if (i >= m_shape.Titles) {
            ReadRow(row, m_shape.HasHeading && i == m_shape.Titles);
        }
        if (m_lacksMark) {
            return false;
        }
    }
    CheckFault();
    m_table.Origin.ArePercent = m_percents != 0 && m_percents == m_numbersRead;
    TakeTimes();
    TellSheetErrors();
    if (m_table.Heading.empty() && m_width > 0) {
        m_table.EmptyColumns = m_width - std::max(m_filled, std::size_t{1});
    }
    return true;
}

/// That there was a row is kept, by its line.
bool TableReader::ReadLone(const TableRow& row, LoneRow& taken) {
    TableOrigin& origin = m_table.Origin;
    const std::size_t before = origin.Lines.size();
    const std::size_t told = m_told;
    const std::size_t kept = m_diagnostics.size();
    ReadRow(row, false);
    if (m_lacksMark) { // by which it is read again
        m_told = told;
        m_diagnostics.resize(std::min(m_diagnostics.size(), kept));
    }
    if (origin.Lines.size() == before) {
        return false;
    }
    taken.Form = m_times;
    taken.Time = m_times == TimeForm::Whole     ? m_table.Times.back()
                 : m_times == TimeForm::Decimal ? m_numbers.back()
                                                : 0.0;
    taken.Text = m_times == TimeForm::Texts ? CStringUtil::AnsiToUtf8(m_table.Names.back()) : "";
    taken.Values.clear();
    for (std::vector<double>& numbers : m_table.Columns) {
        taken.Values.push_back(numbers.back());
        numbers.clear();
    }
    m_table.Times.clear();
    m_numbers.clear();
    m_table.Names.clear();
    origin.Lines.resize(m_lacksMark ? before : 1);
    return !m_lacksMark;
}

void TableReader::EndLone(std::size_t filled) {
    m_table.Origin.ArePercent = filled == 0 && m_percents != 0 && m_percents == m_numbersRead;
    m_filled = std::max(m_filled, filled);
    TellSheetErrors();
    if (m_table.Heading.empty() && m_width > 0) {
        m_table.EmptyColumns = m_width - std::max(m_filled, std::size_t{1});
    }
}

void TableReader::SetMark(const DecimalMark& mark) {
    m_mark = mark;
    m_lacksMark = false;
}

void TableReader::RefuseTime(std::size_t line, const std::string& text, const std::string& expected) {
    TableRow row;
    row.Line = line;
    row.Cells = {text};
    RefuseCell(row, 0, expected);
}

void TableReader::WarnAtLine(std::size_t line, std::string text) {
    Diagnostic warning = penlode::Warning("", std::move(text));
    PutAtLine(m_table.Origin, line, 0, warning);
    m_diagnostics.push_back(std::move(warning));
}

void TableReader::Fail(const std::string& fault, std::size_t line) {
    m_diagnostics.clear();
    m_told = 0;
    Tell(penlode::Error("", fault));
    m_diagnostics.back().Line = line;
}

void TableReader::CheckRows() {
    const std::size_t rows = m_table.Origin.Lines.size();
    const bool isEmpty = rows == 0 || m_table.Columns.empty();
    const bool mayBeEmpty = m_form.HeadingForm != nullptr && m_shape.HasHeading;
    if (isEmpty && !mayBeEmpty && m_told == 0) {
        Tell(penlode::Error("", m_form.NoRows, m_form.RowsForm));
    }
    if (rows > m_form.MaxRows && m_told == 0) {
        Tell(penlode::Error("", Counted(rows, "row"), m_form.MaxRowsForm));
    }
    if (rows > m_form.MaxRows) {
        m_table = {};
    }
}

void TableReader::WarnOfMark(const DecimalMark& mark, char taken) {
    const WrittenNumber number = ReadWritten(mark.Open);
    const char other = taken == ',' ? '.' : ',';
    Diagnostic warning =
        penlode::Warning("", '"' + mark.Open + "\" is read as " + NumberText(number.By(taken).value_or(0.0)) +
                                 "; with --decimal " + other + ", or \"decimal\": \"" + other +
                                 "\" beside data/csv, it is " + NumberText(number.By(other).value_or(0.0)));
    warning.File = m_input.Name;
    warning.Line = m_table.Origin.IsTransposed ? 0 : mark.Line;
    m_diagnostics.push_back(std::move(warning));
}

void TableReader::ReadRow(const TableRow& row, bool isHeading) {
    if (m_width == 0) {
        SetWidth(row);
    }
    if (isHeading) {
        TakeHeading(row);
        return;
    }
    if (m_width < 2 && m_form.HeadingForm != nullptr) {
        RefuseNarrow(row);
        return;
    }
    const bool mayBeShort = m_form.Gap && row.Cells.size() <= m_width;
    if (m_shape.IsWhole() ? mayBeShort || HasWidth(row, m_width, m_form.WidthForm) : FitsShape(row)) {
        const TableRow& taken = m_shape.IsWhole() ? row : Chosen(row);
        m_filled = std::max(m_filled, FilledCells(taken));
        TakeFirstCell(taken);
        TakeNumbers(taken);
    }
}

void TableReader::SetWidth(const TableRow& row) {
    m_width = !m_shape.IsWhole() ? m_shape.Columns.size() : m_form.Width != 0 ? m_form.Width : m_shape.Width;
    m_table.Columns.resize(std::max(m_width, std::size_t{1}) - 1);
    MakeRoom(row.Cells.size());
}

/// With a separator or a line break behind each cell, a row takes as many bytes at least; and lines may
/// be blank. Not so many that room for them is a waste.
void TableReader::MakeRoom(std::size_t cells) {
    constexpr std::size_t kMax = std::size_t{1} << 22U;
    const std::string& text = m_input.Text;
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    const std::size_t rows = std::min({lines, text.size() / std::max(cells, std::size_t{1}) + 1, kMax});
    m_table.Times.reserve(m_form.HasTimes ? rows : 0);
    m_table.Origin.Lines.reserve(rows);
    for (std::vector<double>& numbers : m_table.Columns) {
        numbers.reserve(rows);
    }
}

/// The columns that are taken; a short row has empty cells.
const TableRow& TableReader::Chosen(const TableRow& row) {
    m_chosen.Line = row.Line;
    m_chosen.Cells.assign(m_width, "");
    for (std::size_t i = 0; i < m_width; ++i) {
        if (m_shape.Columns[i] < row.Cells.size()) {
            m_chosen.Cells[i] = row.Cells[m_shape.Columns[i]];
        }
    }
    return m_chosen;
}

void TableReader::TakeHeading(const TableRow& row) {
    const TableRow& heading = m_shape.IsWhole() ? row : Chosen(row);
    for (std::size_t column = 1; column < m_width; ++column) {
        const bool isThere = column < heading.Cells.size();
        m_table.Heading.push_back(isThere ? CStringUtil::Utf8ToAnsi(heading.Cells[column]) : "");
    }
    if (m_form.HeadingForm != nullptr && m_width < 2) {
        RefuseNarrow(row);
    }
}

void TableReader::RefuseNarrow(const TableRow& row) {
    HasWidth(row, 2, m_form.HeadingForm);
    m_isOver = true;
}

/// Empty cells beyond the width, as spreadsheet programs write them, do not count.
bool TableReader::HasWidth(const TableRow& row, std::size_t width, const std::string& expected) {
    const std::size_t cells = std::max(FilledCells(row), std::min(row.Cells.size(), width));
    if (cells != width) {
        TellAt(row, penlode::Error("", Counted(cells, "cell"), expected));
    }
    return cells == width;
}

bool TableReader::FitsShape(const TableRow& row) {
    const std::size_t most = m_shape.Width;
    return FilledCells(row) <= most || HasWidth(row, most, Counted(most, "cell") + ", as in the first row");
}

void TableReader::TakeFirstCell(const TableRow& row) {
    if (m_form.HasTimes) {
        TakeTime(row);
    } else {
        TakeName(row);
    }
    m_table.Origin.Lines.push_back(static_cast<std::uint32_t>(row.Line));
}

void TableReader::TakeName(const TableRow& row) {
    m_table.Names.push_back(CStringUtil::Utf8ToAnsi(row.Cells.front()));
    if (m_form.AreNamesJoined && !IsJoinable(m_table.Names.back())) {
        RefuseCell(row, 0, kJoinableForm);
    }
}

void TableReader::TakeTime(const TableRow& row) {
    const std::string& cell = row.Cells.front();
    const auto time = penlode::NumberOf<std::int32_t>(cell);
    const bool isNumber = time || IsNumberCell(cell);
    if (m_table.Origin.Lines.empty()) {
        m_times = time ? TimeForm::Whole : isNumber ? TimeForm::Decimal : TimeForm::Texts;
        if (cell.empty()) {
            RefuseCell(row, 0, "a time, which is a number or a date, or a text as a label");
        }
    } else if (m_times == TimeForm::Whole && !time && isNumber) {
        m_times = TimeForm::Decimal;
        m_numbers.assign(m_table.Times.begin(), m_table.Times.end());
    }
    if (m_times == TimeForm::Whole) {
        m_table.Times.push_back(time.value_or(0));
        if (!time) {
            RefuseCell(row, 0, "a whole number, as in the rows above");
        }
    } else if (m_times == TimeForm::Decimal) {
        TakeDecimalTime(row);
    } else {
        TakeName(row);
        if (isNumber) {
            RefuseCell(row, 0, "a label or a date, as in the rows above");
        }
    }
}

void TableReader::TakeDecimalTime(const TableRow& row) {
    m_numbers.push_back(0.0);
    if (!IsNumberCell(row.Cells.front())) {
        RefuseCell(row, 0, "a number, as in the rows above");
        return;
    }
    const double number = NumberIn(row, 0);
    if (std::abs(number) > kMaxTimeNumber) {
        RefuseCell(row, 0, "a time of at most 15 digits");
    } else {
        m_numbers.back() = number;
    }
}

/// The times of a first column that holds no whole numbers. Labels' times count the rows.
void TableReader::TakeTimes() {
    const std::size_t rows = m_table.Origin.Lines.size();
    if (!m_form.HasTimes || rows == 0 || m_told != 0) {
        return;
    }
    if (m_times == TimeForm::Decimal) {
        TakeAxis(AxisOfNumbers(m_numbers));
    } else if (m_times == TimeForm::Texts && !TakeDates()) {
        m_table.Times.resize(rows);
        std::iota(m_table.Times.begin(), m_table.Times.end(), 0);
        return;
    }
    const std::vector<std::int32_t>& times = m_table.Times;
    const auto back = std::is_sorted_until(times.begin(), times.end());
    if (back != times.end()) {
        WarnAt(static_cast<std::size_t>(back - times.begin()),
               "the times are not in order; sort the rows, or say --sort name, or \"order\": \"name\" "
               "beside data/csv");
    }
}

bool TableReader::TakeDates() {
    std::vector<std::string> texts;
    for (const std::string& name : m_table.Names) {
        texts.push_back(CStringUtil::AnsiToUtf8(name));
        if (!texts.back().empty() && !ReadDate(texts.back())) {
            return false;
        }
    }
    const bool isDayFirst = m_rows.Reader().Separator() == ';' || (m_mark && m_mark->Mark == ',');
    const std::optional<DateColumn> dates = ReadDates(texts, isDayFirst);
    if (!dates) {
        return false;
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (texts[i].empty() && i != 0) { // the first was refused before
            Diagnostic error = penlode::Error("", "nothing", "a date, as in the other rows");
            PutAt(m_table.Origin, i, 0, error);
            Tell(std::move(error));
        }
    }
    if (dates->IsOrderOpen) {
        WarnAt(0, '"' + texts.front() + "\" is read with the " + (isDayFirst ? "day" : "month") +
                      " first, which no row tells; dates like 2024-03-15 leave no doubt");
    }
    TakeAxis(AxisOfDates(*dates));
    m_table.Names.clear();
    return true;
}

void TableReader::TakeAxis(TimeAxis axis) {
    m_table.Times = std::move(axis.Times);
    m_table.TimeLabels = std::move(axis.Labels);
    m_table.Origin.Dates = axis.Dates;
}

void TableReader::TakeNumbers(const TableRow& row) {
    for (std::size_t column = 1; column < m_width; ++column) {
        const bool isEmpty = column >= row.Cells.size() || row.Cells[column].empty();
        const bool isGap = m_form.Gap && (isEmpty || IsError(row, column));
        m_table.Columns[column - 1].push_back(isGap ? *m_form.Gap : NumberIn(row, column));
    }
}

bool TableReader::IsError(const TableRow& row, std::size_t column) {
    const bool isError = IsSheetError(row.Cells[column]);
    if (isError && m_sheetErrors++ == 0) {
        m_firstSheetError = penlode::Warning("", row.Cells[column]);
        PutAtLine(m_table.Origin, row.Line, column, m_firstSheetError);
    }
    return isError;
}

void TableReader::TellSheetErrors() {
    if (m_sheetErrors != 0) {
        m_firstSheetError.Text +=
            (m_sheetErrors == 1 ? " is" : " and " + Counted(m_sheetErrors - 1, "other error") + " are") +
            std::string(" taken as a gap");
        m_diagnostics.push_back(m_firstSheetError);
    }
}

/// Most are plain numbers without any blanks.
double TableReader::NumberIn(const TableRow& row, std::size_t column) {
    const std::string& cell = row.Cells[column];
    const bool hasComma = m_mark && m_mark->Mark == ',';
    const std::optional<double> plain = penlode::NumberOf<double>(cell);
    // What a program wrote is plain, whatever a person says of the texts beside it.
    const bool mayBeGrouped = hasComma && !m_rows.Reader().IsExact();
    const bool isPlain =
        plain && std::isfinite(*plain) && !(mayBeGrouped && cell.find('.') != std::string::npos);
    std::optional<double> number = plain;
    if (!isPlain) {
        const WrittenNumber written = ReadWritten(cell);
        number = written.By(hasComma ? ',' : '.');
        m_lacksMark = m_lacksMark || (!m_mark && written.IsNumber());
        if (!number) {
            RefuseCell(row, column, NumberForm(written));
        }
    }
    m_percents += !isPlain && (cell.ends_with('%') || cell.ends_with("\uFF05")) ? 1 : 0;
    ++m_numbersRead;
    if (number && m_form.IsPositive && *number < 0.0) {
        RefuseCell(row, column, "0 or more");
    }
    return number.value_or(0.0);
}

/// What is expected in the place of a cell.
std::string TableReader::NumberForm(const WrittenNumber& written) const {
    if (written.IsNumber() && m_mark) {
        return std::string("a number with a decimal ") + (m_mark->Mark == ',' ? "comma" : "point") +
               (m_mark->Line == 0 ? "" : ", as in line " + std::to_string(m_mark->Line));
    }
    const bool mayBeHeading =
        m_table.Origin.Lines.size() == 1 && m_form.HeadingNames == nullptr && !m_shape.HasHeading;
    return mayBeHeading ? "a number, or a heading that begins with no digit" : penlode::kFloatForm;
}

/// A fault, such as an open quote that swallows the rest, means that what was read is not what was meant.
void TableReader::CheckFault() {
    const RowReader& reader = m_rows.Reader();
    if (const std::string fault = reader.Fault(); !fault.empty()) {
        Fail(fault, reader.FaultLine());
    }
}

void TableReader::RefuseCell(const TableRow& row, std::size_t column, const std::string& expected) {
    const std::string& cell = row.Cells[column];
    double number = 0.0;
    const std::string shown = ParseNumber(cell, number) ? cell
                              : cell.empty()            ? "nothing"
                                                        : '"' + penlode::Shortened(cell) + '"';
    Diagnostic error = penlode::Error("", shown, expected);
    PutAtLine(m_table.Origin, row.Line, column, error);
    Tell(std::move(error));
}

void TableReader::WarnAt(std::size_t row, std::string text) {
    WarnAtLine(m_table.Origin.Lines[row], std::move(text));
}

void TableReader::TellAt(const TableRow& row, Diagnostic fault) {
    const TableOrigin& origin = m_table.Origin;
    fault.Line = origin.IsTransposed ? 0 : row.Line;
    fault.Place = origin.IsTransposed ? "column " + std::to_string(row.Line)
                                      : std::string(origin.Sheet.empty() ? "" : "sheet " + origin.Sheet);
    Tell(std::move(fault));
}

/// One stands for all those that are not kept.
void TableReader::Tell(Diagnostic fault) {
    fault.File = m_input.Name;
    if (++m_told <= penlode::kMaxDiagnostics) {
        m_diagnostics.push_back(std::move(fault));
        return;
    }
    if (m_told > penlode::kMaxDiagnostics + 1) {
        m_diagnostics.pop_back();
    }
    fault = penlode::Error("", "and " + std::to_string(m_told - penlode::kMaxDiagnostics) +
                                   " more, which are not told");
    fault.File = m_input.Name;
    fault.IsRest = true;
    m_diagnostics.push_back(std::move(fault));
}

void PutAt(const TableOrigin& origin, std::size_t row, std::size_t column, Diagnostic& diagnostic) {
    PutAtLine(origin, origin.Lines[row], column, diagnostic);
}

} // namespace millichart::documents
