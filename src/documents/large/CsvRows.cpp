#include "documents/large/CsvRows.h"

#include "documents/large/ByteSource.h"
#include "documents/tables/Encoding.h"
#include "penlode/streams/TextForms.h"

#include <algorithm>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;

/// As many bytes as are whole lines, where the text goes on.
std::string_view WholeLines(std::string_view beginning, std::optional<std::uint64_t> size) {
    const bool isAll = size == beginning.size();
    return isAll ? beginning : beginning.substr(0, beginning.rfind('\n') + 1);
}

/// What is told of tables whose rows must all be there before the first can be drawn; empty for others.
std::string ReasonOf(const TableOptions& options, std::string_view beginning) {
    if (options.IsTransposed || options.Top != 0 || options.Order == TableOrder::Ascending ||
        options.Order == TableOrder::Descending) {
        return "a larger one can be drawn without --transpose, --sort by values and --top";
    }
    if (beginning.starts_with("PK\x03\x04") || beginning.starts_with("\xD0\xCF\x11\xE0")) {
        return "a larger one can be drawn that is CSV";
    }
    if (!IsUtf8(beginning) || IsUtf16(beginning)) {
        return "a larger one can be drawn that is encoded in UTF-8";
    }
    return {};
}

bool PartsNumbers(char separator) {
    return separator == ',' || separator == ';' || separator == '\t';
}

} // namespace

CsvRows::CsvRows(const TableInput& input, const TableForm& form, std::vector<Diagnostic>& told)
    : m_input(input) {
    const std::string_view beginning = WholeLines(input.Stream->Beginning(), input.Stream->Size());
    std::string reason = beginning.empty() ? "its rows have no end" : ReasonOf(input.Options, beginning);
    if (!reason.empty()) {
        TakeReason(0, std::move(reason));
        return;
    }
    m_beginning = std::make_unique<CsvReader>(beginning);
    m_first = std::make_unique<LookedAtRows>(*m_beginning);
    if (std::optional<TableShape> shape = ShapeOfInput(input, form, *m_first, told)) {
        m_shape = *std::move(shape);
        ReadBeginning(input.Options, form);
    }
}

/// As far as it has a title, a heading, and a decimal mark that is not as in other programs.
void CsvRows::ReadBeginning(const TableOptions& options, const TableForm& tableForm) {
    const char separator = m_beginning->Separator();
    std::optional<DecimalMark> warned;
    if (options.DecimalMark) {
        m_mark = DecimalMark{*options.DecimalMark};
    } else {
        TableReader probe(m_input, tableForm, *m_first, m_shape, std::nullopt, {});
        const bool isRead = probe.Read();
        if (!isRead || separator == ';') {
            DecimalMark found = FindDecimalMark(*m_first, m_shape, 0);
            warned = !found.Open.empty() && separator != ',' ? std::optional(found) : std::nullopt;
            m_mark = isRead ? std::nullopt : std::optional(std::move(found));
        }
    }
    m_reader = std::make_unique<TableReader>(m_input, tableForm, *m_first, m_shape, m_mark,
                                             std::vector<std::uint32_t>());
    m_beginning->Rewind();
    TableRow row;
    for (std::size_t i = 0; i < m_shape.Titles + (m_shape.HasHeading ? 1 : 0) && m_beginning->Next(row);
         ++i) {
        if (i == m_shape.Titles) {
            m_reader->ReadHeading(row);
        }
    }
    m_begin = m_beginning->At();
    m_beginLine = m_beginning->Line();
    if (warned) {
        m_reader->WarnOfMark(*warned, m_mark ? m_mark->Mark : '.');
    }
}

void CsvRows::TakeReason(std::size_t line, std::string text) {
    m_reason = penlode::Error("", std::move(text));
    m_reason.Line = line;
}

/// Reads one row of any form. False if it gives none; no `length` if it may go on behind the text, or what
/// follows cannot be read.
bool CsvRows::TakeSlow(std::string_view text, bool isEnd, std::size_t& line, std::size_t& length) {
    CsvReader reader(text, m_beginning->Separator(), line);
    TableRow row;
    const bool isRow = reader.Next(row);
    const bool mayGoOn = !reader.Fault().empty() || (reader.At() == text.size() && !text.ends_with('\n'));
    if (mayGoOn && !isEnd) {
        return false;
    }
    if (!reader.Fault().empty()) {
        m_reader->Fail(reader.Fault(), reader.FaultLine());
        length = text.size();
        return false;
    }
    if (!IsUtf8(text.substr(0, reader.At()))) {
        TakeReason(line, "line " + std::to_string(line) + " of it is not encoded in UTF-8");
        return false;
    }
    const bool isTaken = isRow && TakeLone(row);
    length = IsReadable() ? reader.At() : 0;
    line = reader.Line();
    return isTaken;
}

bool CsvRows::TakeLone(const TableRow& row) {
    const std::size_t told = m_reader->Diagnostics().size();
    if (!m_reader->ReadLone(row, m_lone) && !(FindMark(row) && m_reader->ReadLone(row, m_lone))) {
        return false;
    }
    m_row.Values = m_lone.Values;
    m_row.Time = m_lone.Time;
    m_row.Decimals = m_lone.Form == TimeForm::Decimal ? DecimalsOf(m_lone.Time) : 0;
    const bool isTimed =
        m_lone.Form != TimeForm::Texts || m_reader->Diagnostics().size() != told || TakeDate(row);
    if (isTimed) {
        TakeForm();
    }
    return isTimed;
}

/// False for what is no date.
bool CsvRows::TakeDate(const TableRow& row) {
    if (m_lone.Text.empty()) {
        m_reader->RefuseTime(row.Line, "", "a date, as in the other rows");
        return true;
    }
    const std::optional<WrittenDate> date = ReadDate(m_lone.Text);
    const std::optional<Milliseconds> moment = date ? date->Moment(true) : std::nullopt;
    const bool isLike =
        moment && !date->IsOrderOpen && (!m_firstDate || m_firstDate->HasDate == date->HasDate);
    if (!isLike) {
        TakeReason(row.Line,
                   "line " + std::to_string(row.Line) + " of it has \"" + penlode::Shortened(m_lone.Text) +
                       "\"; in a larger one the first column has numbers, or dates like 2024-03-15");
        return false;
    }
    m_firstDate = m_firstDate ? m_firstDate : date;
    m_row.Time = static_cast<double>((*moment + m_firstDate->Offset).count());
    return true;
}

/// When the first number comes that needs it. Those above are plain, and would be others by a comma.
bool CsvRows::FindMark(const TableRow& row) {
    if (!m_reader->LacksMark()) {
        return false;
    }
    DecimalMark found = FindDecimalMark(*m_first, m_shape, 0);
    m_mark = DecimalMark{'.', found.Line, found.Column, found.Open};
    if (found.Mark == ',') {
        TakeReason(row.Line, "line " + std::to_string(row.Line) +
                                 " of it has a number with a decimal comma or groups of digits, and those "
                                 "above have not; --decimal , or --decimal . tells how a larger one is read");
        return false;
    }
    m_reader->SetMark(*m_mark);
    return true;
}

/// Which rows are plain from now on.
void CsvRows::TakeForm() {
    m_form.Times = m_lone.Form == TimeForm::Whole     ? RowTimes::Whole
                   : m_lone.Form == TimeForm::Decimal ? RowTimes::Decimal
                                                      : RowTimes::Dates;
    if (!m_form.Cells.empty()) {
        return;
    }
    m_form.Separator = m_beginning->Separator();
    m_form.Mark = m_mark ? m_mark->Mark : '.';
    const bool isOfDay = m_firstDate && (!m_firstDate->HasDate || m_firstDate->Offset != Milliseconds());
    if (!PartsNumbers(m_form.Separator) || m_form.Separator == m_form.Mark || isOfDay) {
        return;
    }
    std::vector<int> cells(m_shape.IsWhole() ? m_reader->Width() : m_shape.Width, -1);
    for (std::size_t i = 0; i < m_reader->Width(); ++i) {
        const std::size_t column = m_shape.IsWhole() ? i : m_shape.Columns[i];
        if (column >= cells.size() || cells[column] >= 0) {
            return;
        }
        cells[column] = static_cast<int>(i);
    }
    m_form.Cells = std::move(cells);
}

void CsvRows::End() {
    m_reader->EndLone(m_filled);
    m_reader->CheckRows();
}

} // namespace millichart::documents
