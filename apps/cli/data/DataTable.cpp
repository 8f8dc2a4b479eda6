#include "data/DataTable.h"

#include "documents/Fields.h"
#include "files/UserError.h"
#include "penlode/streams/JsonFault.h"
#include "penlode/streams/TextForms.h"

#include <algorithm>
#include <utility>

namespace cli {
namespace {

/// As spreadsheet programs of many languages write numbers.
bool HasDecimalComma(std::string cell) {
    std::replace(cell.begin(), cell.end(), ',', '.');
    double number = 0.0;
    return ParseNumber(cell, number);
}

} // namespace

DataTable::DataTable(const std::string& file, NamedBy who, std::vector<Message>& messages)
    : m_file(who == NamedBy::User ? ShownName(file) : file), m_messages(&messages) {
    try {
        m_text = ReadInput(file, who);
    } catch (const UserError& error) {
        Tell({m_file, Severity::Error, 0, "", "", "", error.Reason()});
    }
    if (!IsUtf8(m_text)) {
        Refuse("another encoding", "UTF-8; a spreadsheet program calls it \"CSV UTF-8\"");
        m_text.clear();
    }
}

const std::vector<CsvRow>& DataTable::Rows() {
    if (!m_rows) {
        m_rows.emplace();
        ForEachRow([this](const CsvRow& row) { m_rows->push_back(row); });
    }
    return *m_rows;
}

/// With a separator or a line break behind each cell, a row takes as many bytes at least; and lines may be
/// blank.
std::size_t DataTable::RowsToMakeRoomFor(std::size_t width) const {
    constexpr std::size_t kMax = std::size_t{1} << 22U;
    const auto lines = static_cast<std::size_t>(std::count(m_text.begin(), m_text.end(), '\n')) + 1;
    return std::min({lines, m_text.size() / width + 1, kMax});
}

/// An open quote swallows the rest, so that what was read is not what was meant.
void DataTable::CheckQuotes(const CsvReader& reader) {
    if (reader.OpenQuote() != 0) {
        Tell({m_file, Severity::Error, reader.OpenQuote(), "", "a quote that never closes",
              "a closing quote"});
        m_rows.emplace();
    }
}

bool DataTable::HasWidth(const CsvRow& row, std::size_t width, const std::string& wanted) {
    const std::size_t cells = std::max(FilledCells(row), std::min(row.Cells.size(), width));
    if (cells != width) {
        Tell({m_file, Severity::Error, row.Line, "", Counted(cells, "cell"), wanted});
    }
    return cells == width;
}

bool DataTable::Number(const CsvRow& row, std::size_t column, const std::string& wanted, double& number) {
    const bool isNumber = ParseNumber(row.Cells[column], number);
    if (!isNumber) {
        RefuseCell(row, column,
                   wanted + (HasDecimalComma(row.Cells[column]) ? ", with a decimal point" : ""));
    }
    return isNumber;
}

void DataTable::DoubtHeading(const CsvRow& heading, const std::string& names) {
    const auto isNumber = [](const std::string& cell) {
        double number = 0.0;
        return ParseNumber(cell, number);
    };
    const auto end = heading.Cells.begin() + static_cast<std::ptrdiff_t>(FilledCells(heading));
    if (!heading.Cells.front().empty() && std::all_of(heading.Cells.begin() + 1, end, isNumber)) {
        Warn(heading, "taken as the heading with " + names +
                          ", though they are numbers; with an empty first cell it is no doubt one");
    }
}

void DataTable::RefuseCell(const CsvRow& row, std::size_t column, const std::string& wanted) {
    const std::string& cell = row.Cells[column];
    double number = 0.0;
    const std::string shown = ParseNumber(cell, number) ? cell
                              : cell.empty()            ? "nothing"
                                                        : '"' + penlode::Shortened(cell) + '"';
    Tell({m_file, Severity::Error, row.Line, ColumnPlace(column), shown, wanted});
}

void DataTable::Refuse(const std::string& found, const std::string& wanted) {
    Tell({m_file, Severity::Error, 0, "", found, wanted});
}

void DataTable::Warn(const CsvRow& row, const std::string& sentence) {
    m_messages->push_back({m_file, Severity::Warning, row.Line, "", "", "", sentence});
}

void DataTable::Tell(Message message) {
    m_isSound = false;
    if (++m_told <= kMaxKept) {
        m_messages->push_back(std::move(message));
        return;
    }
    if (m_told == kMaxKept + 1) {
        m_rest = m_messages->size();
        m_messages->push_back({m_file, Severity::Error, 0, "", "", "", "", true});
    }
    (*m_messages)[m_rest].Text = "and " + std::to_string(m_told - kMaxKept) + " more, which are not told";
}

std::string ColumnPlace(std::size_t column) {
    return "column " + std::to_string(column + 1);
}

bool IsHeading(const std::string& cell) {
    double number = 0.0;
    std::string text = cell; // "nan" and "inf" are numbers too, if not ones to draw
    return !cell.empty() && cell.find_first_of("0123456789") == std::string::npos &&
           !penlode::ser_evaluate(number, text, false);
}

} // namespace cli
