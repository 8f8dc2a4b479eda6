#include "data/CurveTable.h"

#include "charts/curve/CurveProp.h"
#include "documents/Fields.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace cli {
namespace {

using penlode::CStringUtil;

constexpr const char* kWholeNumber = "a whole number, as in the rows above";

bool ParseTime(const std::string& cell, std::int32_t& time) {
    const char* const end = cell.data() + cell.size();
    const auto [parsed, error] = std::from_chars(cell.data(), end, time);
    return error == std::errc() && parsed == end;
}

class CurveTableReader {
public:
    CurveTableReader(DataTable& table, CurveData& data) : m_table(table), m_data(data) {}

    void Read() {
        m_table.ForEachRow([this](const CsvRow& row) { ReadRow(row); });
        if (m_data.CurveNames.empty() && m_width > 0) {
            m_data.EmptyColumns = m_width - std::max(m_filled, std::size_t{1});
        }
        if (m_table.IsSound() && (m_rows == 0 || m_data.Values.empty())) {
            m_table.Refuse("no rows of values", "a row a time: the time or a label, and a value a curve");
        }
        // Curves of one table have the same times.
        m_data.Times.assign(m_data.Values.size(), m_times);
    }

private:
    void ReadRow(const CsvRow& row) {
        std::int32_t time = 0;
        const bool isTime = ParseTime(row.Cells.front(), time);
        if (m_width == 0) {
            // In a heading nothing stands over columns that a spreadsheet program added.
            m_width = isTime ? row.Cells.size() : FilledCells(row);
            m_data.Values.resize(m_width - 1);
            MakeRoom(m_table.RowsToMakeRoomFor(m_width));
            if (!isTime) {
                TakeHeading(row);
                return;
            }
        }
        if (row.Cells.size() > m_width && !m_table.HasWidth(row, m_width, "as many as in the first row")) {
            return;
        }
        m_filled = std::max(m_filled, FilledCells(row));
        TakeTime(row, isTime, time);
        m_data.Lines.push_back(static_cast<std::uint32_t>(row.Line));
        for (std::size_t column = 1; column < m_width; ++column) {
            m_data.Values[column - 1].push_back(ValueOf(row, column));
        }
        ++m_rows;
    }

    void MakeRoom(std::size_t rows) {
        m_times.reserve(rows);
        m_data.Lines.reserve(rows);
        for (std::vector<double>& values : m_data.Values) {
            values.reserve(rows);
        }
    }

    void TakeHeading(const CsvRow& row) {
        m_table.DoubtHeading(row, "the curves' names");
        for (std::size_t column = 1; column < m_width; ++column) {
            m_data.CurveNames.push_back(CStringUtil::Utf8ToAnsi(row.Cells[column]));
        }
    }

    void TakeTime(const CsvRow& row, bool isTime, std::int32_t time) {
        m_hasTimes = m_rows == 0 ? isTime : m_hasTimes;
        double number = 0.0;
        if (!isTime &&
            (ParseNumber(row.Cells.front(), number) || (m_rows == 0 && row.Cells.front().empty()))) {
            m_table.RefuseCell(row, 0,
                               "a time, which is a whole number within 32 bits, or a text as a label");
        }
        if (!m_hasTimes) {
            m_data.Labels.push_back(CStringUtil::Utf8ToAnsi(row.Cells.front()));
            m_times.push_back(m_rows);
            return;
        }
        if (!isTime && !ParseNumber(row.Cells.front(), number)) {
            m_table.RefuseCell(row, 0, kWholeNumber);
        }
        m_times.push_back(time);
    }

    /// Most cells are plain numbers; the table knows what to say of the others.
    double ValueOf(const CsvRow& row, std::size_t column) {
        if (column >= row.Cells.size() || row.Cells[column].empty()) {
            return millichart::kCurveNull;
        }
        const std::string& cell = row.Cells[column];
        const char* const end = cell.data() + cell.size();
        double value = 0.0;
        const auto [parsed, error] = std::from_chars(cell.data(), end, value);
        if (error != std::errc() || parsed != end || !std::isfinite(value)) {
            m_table.Number(row, column, penlode::kFloatForm, value);
        }
        return value;
    }

    DataTable& m_table;
    CurveData& m_data;
    std::size_t m_width = 0;
    std::size_t m_filled = 0; ///< cells of the row with most, up to its last text
    std::int32_t m_rows = 0;
    bool m_hasTimes = true;
    std::vector<std::int32_t> m_times;
};

} // namespace

void ReadCurveTable(DataTable& table, CurveData& data) {
    data.File = table.File();
    CurveTableReader(table, data).Read();
}

} // namespace cli
