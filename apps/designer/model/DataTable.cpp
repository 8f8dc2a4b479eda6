#include "model/DataTable.h"

#include "model/CellTexts.h"
#include "penlode/Equality.h"

#include <algorithm>
#include <cmath>

namespace designer {
namespace {

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

const std::string& OddAt(const std::map<std::size_t, std::string>& odd, std::size_t row) {
    static const std::string kNone;
    const auto found = odd.find(row);
    return found == odd.end() ? kNone : found->second;
}

void SetOdd(std::map<std::size_t, std::string>& odd, std::size_t row, std::string_view text) {
    if (text.empty()) {
        odd.erase(row);
    } else {
        odd.insert_or_assign(row, std::string(text));
    }
}

} // namespace

std::string DataTable::Heading(std::size_t column) const {
    if (column == 0) {
        return m_headHeading;
    }
    return column < ColumnCount() ? m_columns[column - 1].Heading : std::string();
}

void DataTable::SetHeading(std::size_t column, std::string text) {
    if (column == 0) {
        m_headHeading = std::move(text);
        return;
    }
    if (column >= ColumnCount() && text.empty()) {
        return;
    }
    GrowColumns(column);
    m_columns[column - 1].Heading = std::move(text);
}

std::string DataTable::Text(std::size_t row, std::size_t column) const {
    if (row >= m_rowCount || column >= ColumnCount()) {
        return {};
    }
    if (column == 0 && m_heads == RowHeads::Names) {
        return m_names[row];
    }
    const std::string& odd = OddAt(Odd(column), row);
    if (!odd.empty()) {
        return odd;
    }
    return column == 0 ? TimeCell(m_times[row], m_heads) : NumberCell(m_columns[column - 1].Numbers[row]);
}

const std::map<std::size_t, std::string>& DataTable::Odd(std::size_t column) const {
    return column == 0 ? m_notTimes : m_columns[column - 1].Odd;
}

bool DataTable::IsOdd(std::size_t row, std::size_t column) const {
    return column < ColumnCount() && Odd(column).contains(row);
}

std::size_t DataTable::OddCount() const {
    std::size_t count = m_notTimes.size();
    for (std::size_t i = 0; i < std::min(m_columns.size(), m_usedColumns); ++i) {
        count += m_columns[i].Odd.size();
    }
    return count;
}

std::optional<CellRange> DataTable::FirstOdd() const {
    std::optional<CellRange> first;
    for (std::size_t column = 0; column < ColumnCount() && column <= m_usedColumns; ++column) {
        const Texts& odd = Odd(column);
        if (!odd.empty() && (!first || odd.begin()->first < first->Row)) {
            first = CellRange{odd.begin()->first, column};
        }
        if (column == kAll) {
            break;
        }
    }
    return first;
}

double DataTable::Number(std::size_t row, std::size_t column) const {
    return column > 0 && column < ColumnCount() && row < m_rowCount ? m_columns[column - 1].Numbers[row]
                                                                    : kGap;
}

bool DataTable::Time(std::size_t row, std::int64_t& time) const {
    if (row >= m_rowCount) {
        return false;
    }
    const std::int64_t found = m_heads == RowHeads::Names ? static_cast<std::int64_t>(row) : m_times[row];
    time = found == kNoTime ? time : found;
    return found != kNoTime;
}

void DataTable::SetText(std::size_t row, std::size_t column, std::string_view text) {
    if (text.empty() && (row >= m_rowCount || column >= ColumnCount())) {
        return;
    }
    GrowRows(row + 1);
    GrowColumns(column);
    if (column == 0) {
        SetHead(row, text);
        return;
    }
    Column& cells = m_columns[column - 1];
    const std::optional<double> number = ReadNumberCell(text);
    cells.Numbers[row] = number.value_or(kGap);
    SetOdd(cells.Odd, row, number ? std::string_view() : Trimmed(text));
}

void DataTable::SetHead(std::size_t row, std::string_view text) {
    if (m_heads == RowHeads::Names) {
        m_names[row] = text;
        return;
    }
    const std::optional<std::int64_t> time = ReadTimeCell(text, m_heads);
    m_times[row] = time.value_or(kNoTime);
    SetOdd(m_notTimes, row, time ? std::string_view() : Trimmed(text));
}

void DataTable::SetHeads(RowHeads heads) {
    if (heads == m_heads) {
        return;
    }
    std::vector<std::string> texts(m_rowCount);
    for (std::size_t row = 0; row < m_rowCount; ++row) {
        texts[row] = Text(row, 0);
    }
    m_heads = heads;
    m_notTimes.clear();
    m_names.clear();
    m_times.clear();
    if (heads == RowHeads::Names) {
        m_names = std::move(texts);
        return;
    }
    m_times.resize(m_rowCount, kNoTime);
    for (std::size_t row = 0; row < m_rowCount; ++row) {
        SetHead(row, texts[row]);
    }
}

void DataTable::GrowRows(std::size_t count) {
    if (count <= m_rowCount) {
        return;
    }
    m_rowCount = count;
    if (m_heads == RowHeads::Names) {
        m_names.resize(count);
    } else {
        m_times.resize(count, kNoTime);
    }
    for (Column& column : m_columns) {
        column.Numbers.resize(count, kGap);
    }
    m_rowOrigins.Grow(count);
}

void DataTable::GrowColumns(std::size_t count) {
    while (m_columns.size() < count) {
        m_columns.push_back({{}, std::vector<double>(m_rowCount, kGap), {}});
    }
    m_columnOrigins.Grow(m_columns.size());
}

void DataTable::TakeNames(std::vector<std::string> names) {
    GrowRows(names.size());
    names.resize(m_rowCount);
    m_names = std::move(names);
    ForgetOrigins();
}

void DataTable::TakeTimes(std::vector<std::int64_t> times) {
    GrowRows(times.size());
    times.resize(m_rowCount, kNoTime);
    m_times = std::move(times);
    ForgetOrigins();
}

void DataTable::AddColumn(std::string heading, std::vector<double> numbers) {
    GrowRows(numbers.size());
    numbers.resize(m_rowCount, kGap);
    m_columns.push_back({std::move(heading), std::move(numbers), {}});
    ForgetOrigins();
}

void DataTable::ForgetOrigins() {
    m_rowOrigins.Reset(m_rowCount);
    m_columnOrigins.Reset(m_columns.size());
}

void DataTable::KeepFrom(const DataTable& before) {
    const std::size_t used = std::min(m_columns.size(), m_usedColumns);
    const bool areOneSlice = m_usedColumns == 1;
    for (std::size_t i = 0; i < std::min(used, before.m_columns.size()); ++i) {
        const Column& old = before.m_columns[i];
        for (std::size_t row = 0; row < std::min(m_rowCount, before.m_rowCount); ++row) {
            double& now = m_columns[i].Numbers[row];
            const bool isNothing = std::isnan(now) || now == 0.0;
            const double was = old.Numbers[row];
            if (isNothing && (std::isnan(was) || (areOneSlice && was < 0.0))) {
                now = was;
                SetOdd(m_columns[i].Odd, row, OddAt(old.Odd, row));
            }
        }
    }
    KeepHeadings(before);
    const bool hasMore = before.m_columns.size() > m_columns.size();
    if (hasMore && m_rowCount <= before.m_rowCount && m_columns.size() == before.m_usedColumns) {
        GrowRows(before.m_rowCount);
        m_columns.insert(m_columns.end(),
                         before.m_columns.begin() + static_cast<std::ptrdiff_t>(m_columns.size()),
                         before.m_columns.end());
    }
    ForgetOrigins();
}

/// Where a chart has no place for any.
void DataTable::KeepHeadings(const DataTable& before) {
    if (m_headHeading.empty()) {
        m_headHeading = before.m_headHeading;
    }
    if (m_usedColumns == 1 && before.m_usedColumns == 1 && !m_columns.empty() && !before.m_columns.empty() &&
        m_columns.front().Heading.empty()) {
        m_columns.front().Heading = before.m_columns.front().Heading;
    }
}

bool operator==(const DataTable& a, const DataTable& b) {
    const auto areSame = [](const DataTable::Column& one, const DataTable::Column& other) {
        return one.Heading == other.Heading && penlode::AreEqual(one.Numbers, other.Numbers) &&
               one.Odd == other.Odd;
    };
    return a.m_heads == b.m_heads && a.m_rowCount == b.m_rowCount && a.m_usedColumns == b.m_usedColumns &&
           a.m_headHeading == b.m_headHeading && a.m_names == b.m_names && a.m_times == b.m_times &&
           a.m_notTimes == b.m_notTimes &&
           std::equal(a.m_columns.begin(), a.m_columns.end(), b.m_columns.begin(), b.m_columns.end(),
                      areSame);
}

} // namespace designer
