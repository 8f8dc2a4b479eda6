#include "documents/tables/Table.h"

#include "documents/Fields.h"
#include "documents/tables/Csv.h"
#include "documents/tables/Query.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;
using penlode::Diagnostic;
using Heading = TableForm::Heading;

bool IsNumber(const std::string& cell) {
    double number = 0.0;
    return ParseNumber(cell, number);
}

/// As spreadsheet programs of many languages write numbers.
bool HasDecimalComma(std::string cell) {
    std::replace(cell.begin(), cell.end(), ',', '.');
    return IsNumber(cell);
}

/// A word over a column, and no malformed or missing number? "nan" and "inf" are numbers too, if not ones to
/// draw.
bool IsWord(const std::string& cell) {
    double number = 0.0;
    std::string text = cell;
    return !cell.empty() && cell.find_first_of("0123456789") == std::string::npos &&
           !penlode::ser_evaluate(number, text, false);
}

class TableReader {
public:
    TableReader(const InputText& input, const TableForm& form) : m_input(input), m_form(form) {}

    void ReadQuery(const TableInput& input) {
        const std::unique_ptr<RowReader> reader = OpenQuery(input);
        for (TableRow row; !m_isOver && reader->Next(row);) {
            ReadRow(row);
        }
        if (const std::string fault = reader->Fault(); !fault.empty()) {
            m_diagnostics.clear();
            Tell(penlode::Error("", fault));
            return;
        }
        CheckRows();
    }

    void Read() {
        if (!m_input.Fault.empty()) {
            Tell(penlode::Error("", m_input.Fault));
            return;
        }
        if (!IsUtf8(m_input.Text)) {
            Tell(penlode::Error("", "another encoding",
                                "UTF-8; a spreadsheet program calls it \"CSV UTF-8\""));
            return;
        }
        CsvReader reader(m_input.Text);
        for (TableRow row; reader.Next(row) && !m_isOver;) {
            ReadRow(row);
        }
        CheckQuotes(reader);
        CheckRows();
        if (m_table.Heading.empty() && m_width > 0) {
            m_table.EmptyColumns = m_width - std::max(m_filled, std::size_t{1});
        }
    }

    Table& Result() { return m_table; }

    std::vector<Diagnostic>& Diagnostics() { return m_diagnostics; }

private:
    void ReadRow(const TableRow& row) {
        const bool isFirst = std::exchange(m_isFirst, false);
        const auto time = m_form.HasTimes ? penlode::NumberOf<std::int32_t>(row.Cells.front()) : std::nullopt;
        const bool isHeading = isFirst && IsHeading(row, time.has_value());
        if (m_width == 0) {
            // In a heading nothing stands over columns that a spreadsheet program added.
            m_width = m_form.Width != 0 ? m_form.Width : isHeading ? FilledCells(row) : row.Cells.size();
            m_table.Columns.resize(m_width - 1);
            MakeRoom();
        }
        const bool mayBeShort = m_form.Gap && row.Cells.size() <= m_width;
        if (isHeading && m_form.Width == 0) {
            TakeHeading(row);
        } else if ((mayBeShort || HasWidth(row, m_width, m_form.WidthForm)) && !isHeading) {
            m_filled = std::max(m_filled, FilledCells(row));
            TakeFirstCell(row, time);
            TakeNumbers(row, isFirst && m_form.HeadedBy == Heading::OverNumber);
        }
    }

    bool IsHeading(const TableRow& row, bool isTime) const {
        switch (m_form.HeadedBy) {
        case Heading::OverNumber:
            return row.Cells.size() > 1 && IsWord(row.Cells[1]);
        case Heading::OverTime:
            return !isTime;
        default:
            return true;
        }
    }

    /// With a separator or a line break behind each cell, a row takes as many bytes at least; and lines may
    /// be blank. Not so many that room for them is a waste.
    void MakeRoom() {
        constexpr std::size_t kMax = std::size_t{1} << 22U;
        const std::string& text = m_input.Text;
        const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
        const std::size_t rows = std::min({lines, text.size() / m_width + 1, kMax});
        m_table.Times.reserve(m_form.HasTimes ? rows : 0);
        m_table.Lines.reserve(rows);
        for (std::vector<double>& numbers : m_table.Columns) {
            numbers.reserve(rows);
        }
    }

    void TakeHeading(const TableRow& row) {
        for (std::size_t column = 1; column < m_width; ++column) {
            m_table.Heading.push_back(CStringUtil::Utf8ToAnsi(row.Cells[column]));
        }
        if (m_form.HeadingForm != nullptr && m_width < 2) {
            HasWidth(row, 2, m_form.HeadingForm);
            m_isOver = true;
        } else if (m_form.HeadingNames != nullptr) {
            WarnOfNumbers(row);
        }
    }

    /// A heading whose cells are numbers alone may have been meant for data, unless nothing stands over the
    /// first column.
    void WarnOfNumbers(const TableRow& row) {
        const auto end = row.Cells.begin() + static_cast<std::ptrdiff_t>(FilledCells(row));
        if (!row.Cells.front().empty() && std::all_of(row.Cells.begin() + 1, end, IsNumber)) {
            Diagnostic warning =
                penlode::Warning("", std::string("taken as the heading with ") + m_form.HeadingNames +
                                         ", though they are numbers; with an empty first cell it is no doubt "
                                         "one");
            warning.Line = row.Line;
            warning.File = m_input.Name;
            m_diagnostics.push_back(std::move(warning));
        }
    }

    /// Empty cells beyond the width, as spreadsheet programs write them, do not count.
    bool HasWidth(const TableRow& row, std::size_t width, const std::string& expected) {
        const std::size_t cells = std::max(FilledCells(row), std::min(row.Cells.size(), width));
        if (cells != width) {
            TellAt(row, penlode::Error("", Counted(cells, "cell"), expected));
        }
        return cells == width;
    }

    void TakeFirstCell(const TableRow& row, std::optional<std::int32_t> time) {
        const std::string& cell = row.Cells.front();
        const bool isFirst = m_table.Lines.empty();
        m_hasTimes = isFirst ? time.has_value() : m_hasTimes;
        if (m_form.HasTimes && !time && (IsNumber(cell) || (isFirst && cell.empty()))) {
            RefuseCell(row, 0, "a time, which is a whole number within 32 bits, or a text as a label");
        } else if (m_hasTimes && !time) {
            RefuseCell(row, 0, "a whole number, as in the rows above");
        }
        if (!m_hasTimes) {
            m_table.Names.push_back(CStringUtil::Utf8ToAnsi(cell));
            if (m_form.AreNamesJoined && !IsJoinable(m_table.Names.back())) {
                RefuseCell(row, 0, kJoinableForm);
            }
            time = static_cast<std::int32_t>(m_table.Lines.size());
        }
        if (m_form.HasTimes) {
            m_table.Times.push_back(time.value_or(0));
        }
        m_table.Lines.push_back(static_cast<std::uint32_t>(row.Line));
    }

    void TakeNumbers(const TableRow& row, bool mayBeHeading) {
        for (std::size_t column = 1; column < m_width; ++column) {
            const bool isEmpty = column >= row.Cells.size() || row.Cells[column].empty();
            const bool isGap = m_form.Gap && isEmpty;
            m_table.Columns[column - 1].push_back(isGap ? *m_form.Gap : NumberIn(row, column, mayBeHeading));
        }
    }

    /// Most are plain numbers without any blanks.
    double NumberIn(const TableRow& row, std::size_t column, bool mayBeHeading) {
        const std::string& cell = row.Cells[column];
        const std::optional<double> plain = penlode::NumberOf<double>(cell);
        const bool isPlain = plain && std::isfinite(*plain);
        double number = isPlain ? *plain : 0.0;
        if (!isPlain && !ParseNumber(cell, number)) {
            const std::string expected =
                mayBeHeading ? "a number, or a heading without digits" : penlode::kFloatForm;
            RefuseCell(row, column, expected + (HasDecimalComma(cell) ? ", with a decimal point" : ""));
        } else if (m_form.IsPositive && number < 0.0) {
            RefuseCell(row, column, "0 or more");
        }
        return number;
    }

    /// An open quote swallows the rest, so that what was read is not what was meant.
    void CheckQuotes(const CsvReader& reader) {
        if (reader.OpenQuote() != 0) {
            m_diagnostics.clear();
            m_told = 0;
            Tell(penlode::Error("", "a quote that never closes", "a closing quote"));
            m_diagnostics.back().Line = reader.OpenQuote();
        }
    }

    void CheckRows() {
        const std::size_t rows = m_table.Lines.size();
        const bool isEmpty = rows == 0 || m_table.Columns.empty();
        const bool mayBeEmpty = m_form.HeadingForm != nullptr && !m_isFirst;
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

    void RefuseCell(const TableRow& row, std::size_t column, const std::string& expected) {
        const std::string& cell = row.Cells[column];
        const std::string shown = IsNumber(cell) ? cell
                                  : cell.empty() ? "nothing"
                                                 : '"' + penlode::Shortened(cell) + '"';
        TellAt(row, penlode::Error(ColumnPlace(column), shown, expected));
    }

    void TellAt(const TableRow& row, Diagnostic fault) {
        fault.Line = row.Line;
        Tell(std::move(fault));
    }

    /// One stands for all those that are not kept.
    void Tell(Diagnostic fault) {
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

    const InputText& m_input;
    const TableForm& m_form;
    Table m_table;
    std::vector<Diagnostic> m_diagnostics;
    std::size_t m_told = 0; ///< errors
    std::size_t m_width = 0;
    std::size_t m_filled = 0; ///< cells of the row with most, up to its last text
    bool m_isFirst = true;
    bool m_isOver = false;
    bool m_hasTimes = false;
};

} // namespace

Table ReadTable(const TableInput& input, const TableForm& form,
                std::vector<penlode::Diagnostic>& diagnostics) {
    TableReader reader(input.Input, form);
    if (!input.Source.empty()) {
        reader.ReadQuery(input);
    } else {
        reader.Read();
    }
    diagnostics.insert(diagnostics.end(), reader.Diagnostics().begin(), reader.Diagnostics().end());
    reader.Result().File = input.Input.Name;
    return std::move(reader.Result());
}

std::string ColumnPlace(std::size_t column) {
    return "column " + std::to_string(column + 1);
}

} // namespace millichart::documents
