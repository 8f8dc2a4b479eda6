#include "model/CurveTable.h"

#include "model/CellTexts.h"
#include "model/Looks.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <numeric>

namespace designer {
namespace {

using millichart::CurveData;
using Times = std::vector<std::int32_t>;

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();
constexpr std::int64_t kSecond = 1000;
constexpr std::int64_t kDay = 86400 * kSecond;

/// Of a curve; one that is left out counts from 0.
Times TimesOf(const CurveData& data, std::size_t curve) {
    if (curve < data.Times.size()) {
        Times times = data.Times[curve];
        times.resize(std::min(times.size(), data.Values[curve].size()));
        return times;
    }
    Times counted(data.Values[curve].size());
    std::iota(counted.begin(), counted.end(), 0);
    return counted;
}

/// Is there one list of times for all curves, with a value each?
bool AreShared(const CurveData& data) {
    for (std::size_t i = 0; i < data.Values.size(); ++i) {
        if (i >= data.Times.size() || data.Times[i].size() != data.Values[i].size() ||
            data.Times[i] != data.Times.front()) {
            return false;
        }
    }
    return true;
}

bool AreOfOneStep(const Times& times) {
    const std::int64_t step = times.size() < 2 ? 1 : std::int64_t{times[1]} - times[0];
    for (std::size_t i = 1; i < times.size(); ++i) {
        if (std::int64_t{times[i]} - times[i - 1] != step) {
            return false;
        }
    }
    return step > 0;
}

/// Indexes of a curve's points by their times.
std::vector<std::size_t> InOrder(const Times& times) {
    std::vector<std::size_t> order(times.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (!std::is_sorted(times.begin(), times.end())) {
        std::stable_sort(order.begin(), order.end(),
                         [&times](std::size_t a, std::size_t b) { return times[a] < times[b]; });
    }
    return order;
}

/// A row for each time that any curve has, as often as the curve that has it most often.
Times RowTimes(const CurveData& data) {
    if (AreShared(data)) {
        return data.Times.empty() ? Times() : data.Times.front();
    }
    Times rows;
    for (std::size_t i = 0; i < data.Values.size(); ++i) {
        Times times = TimesOf(data, i);
        std::sort(times.begin(), times.end());
        Times both;
        std::set_union(rows.begin(), rows.end(), times.begin(), times.end(), std::back_inserter(both));
        rows = std::move(both);
    }
    return rows;
}

double Shown(double value) {
    return millichart::IsCurveNull(value) ? kGap : value;
}

std::vector<double> NumbersOf(const CurveData& data, std::size_t curve, const Times& rows, bool areShared) {
    const std::vector<double>& values = data.Values[curve];
    std::vector<double> numbers(rows.size(), kGap);
    if (areShared) {
        std::transform(values.begin(), values.end(), numbers.begin(), Shown);
        return numbers;
    }
    const Times times = TimesOf(data, curve);
    std::size_t row = 0;
    for (const std::size_t point : InOrder(times)) {
        while (rows[row] != times[point]) {
            ++row;
        }
        numbers[row++] = Shown(values[point]);
    }
    return numbers;
}

/// Times of a table's dates in days or seconds since 1970, or nothing where neither holds them.
std::optional<std::vector<std::int64_t>> Since1970(const Times& times, const millichart::DateCount& dates,
                                                   RowHeads& heads) {
    const bool areDays = dates.First % kDay == 0 && dates.Each % kDay == 0;
    const std::int64_t unit = areDays ? kDay : kSecond;
    std::vector<std::int64_t> since;
    since.reserve(times.size());
    for (const std::int32_t time : times) {
        const std::int64_t moment = dates.First + dates.Each * time;
        if (moment % unit != 0 || moment / unit < INT32_MIN || moment / unit > INT32_MAX) {
            return std::nullopt;
        }
        since.push_back(moment / unit);
    }
    heads = areDays ? RowHeads::Days : RowHeads::Seconds;
    return since;
}

DataTable HeadsOf(const CurveData& data, const Times& rows, std::int32_t timeUnit) {
    const bool areDates = timeUnit == millichart::TimeUnit::Days || timeUnit == millichart::TimeUnit::Seconds;
    RowHeads heads = timeUnit == millichart::TimeUnit::Days ? RowHeads::Days
                     : areDates                             ? RowHeads::Seconds
                                                            : RowHeads::Times;
    std::vector<std::int64_t> times(rows.begin(), rows.end());
    if (!areDates && data.Origin.Dates) {
        times = Since1970(rows, *data.Origin.Dates, heads).value_or(times);
    }
    if (heads == RowHeads::Times && !rows.empty() && data.Labels.size() == rows.size() &&
        AreOfOneStep(rows)) {
        DataTable table(RowHeads::Names);
        std::vector<std::string> names(data.Labels.size());
        std::transform(data.Labels.begin(), data.Labels.end(), names.begin(), ToUtf8);
        table.TakeNames(std::move(names));
        return table;
    }
    DataTable table(heads);
    table.TakeTimes(std::move(times));
    return table;
}

/// The time of each row of a table; kNoTime for one that has none. Rows of names keep the steps of before.
std::vector<std::int64_t> TimesOf(const DataTable& table, std::size_t rows, const Times& before) {
    const bool areCounted = table.Heads() == RowHeads::Names;
    const bool hasSteps = before.size() >= 2 && AreOfOneStep(before);
    const std::int64_t first = before.empty() ? 0 : before.front();
    const std::int64_t step = hasSteps ? std::int64_t{before[1]} - before[0] : 1;
    std::vector<std::int64_t> times(rows, DataTable::kNoTime);
    for (std::size_t row = 0; row < rows; ++row) {
        if (areCounted) {
            times[row] = std::min<std::int64_t>(first + step * static_cast<std::int64_t>(row), INT32_MAX);
        } else {
            table.Time(row, times[row]);
        }
    }
    return times;
}

/// The times at which a curve breaks, ascending.
Times BreaksOf(const CurveData& data, std::size_t curve) {
    Times breaks;
    if (curve < data.Values.size()) {
        const Times times = TimesOf(data, curve);
        for (std::size_t i = 0; i < times.size(); ++i) {
            if (millichart::IsCurveNull(data.Values[curve][i])) {
                breaks.push_back(times[i]);
            }
        }
        std::sort(breaks.begin(), breaks.end());
    }
    return breaks;
}

/// How the values of one column go into a curve.
struct Gaps {
    bool AreKept = true; ///< each breaks the curve; else only those where it had a break before
    Times Breaks;

    bool IsPoint(double number, std::int32_t time) const {
        return AreKept || !std::isnan(number) || std::binary_search(Breaks.begin(), Breaks.end(), time);
    }
};

void AddCurve(CurveData& data, const std::vector<double>& numbers, const std::vector<std::int64_t>& times,
              const Gaps& gaps) {
    std::vector<double> values;
    Times at;
    values.reserve(times.size());
    at.reserve(times.size());
    for (std::size_t row = 0; row < times.size(); ++row) {
        const auto time = static_cast<std::int32_t>(times[row]);
        if (times[row] != DataTable::kNoTime && gaps.IsPoint(numbers[row], time)) {
            values.push_back(std::isnan(numbers[row]) ? millichart::kCurveNull : numbers[row]);
            at.push_back(time);
        }
    }
    data.Values.push_back(std::move(values));
    data.Times.push_back(std::move(at));
}

void TakeLabels(CurveData& data, const DataTable& former, const DataTable& table, std::size_t rows) {
    if (table.Heads() == RowHeads::Names) {
        data.Labels = HeadsOf(table, rows);
    } else if (former.Heads() == RowHeads::Names || data.Origin.Dates) {
        data.Labels.clear();
    }
}

bool AnyNamed(const std::vector<std::string>& names) {
    return std::any_of(names.begin(), names.end(), [](const std::string& name) { return !name.empty(); });
}

} // namespace

DataTable TableOfCurves(const millichart::CurveDocument& document, std::int32_t timeUnit) {
    const CurveData& data = document.Data;
    const bool areShared = AreShared(data);
    const Times rows = RowTimes(data);
    DataTable table = HeadsOf(data, rows, timeUnit);
    const std::vector<std::string> names = ShownNames(document.Prop.Plot.CurveName, data.CurveNames);
    for (std::size_t i = 0; i < std::max(data.Values.size(), names.size()); ++i) {
        table.AddColumn(i < names.size() ? ToUtf8(names[i]) : std::string(),
                        i < data.Values.size() ? NumbersOf(data, i, rows, areShared) : std::vector<double>());
    }
    return table;
}

void TakeCurves(millichart::CurveDocument& document, const DataTable& former, const DataTable& table) {
    CurveData& data = document.Data;
    const CurveData before = data;
    const std::size_t rows = FilledRows(table);
    const std::size_t columns = FilledColumns(table);
    const std::vector<std::int64_t> times = TimesOf(table, rows, RowTimes(before));
    const bool areShared = AreShared(before);
    data.Values.clear();
    data.Times.clear();
    for (std::size_t i = 0; i < columns; ++i) {
        Gaps gaps{areShared, {}};
        if (!areShared && table.ColumnOrigins().At(i) != Origins::kNew) {
            gaps.Breaks = BreaksOf(before, table.ColumnOrigins().At(i));
        }
        AddCurve(data, table.Numbers(i + 1), times, gaps);
    }
    TakeLabels(data, former, table, rows);
    if (table.Heads() == RowHeads::Days || table.Heads() == RowHeads::Seconds) {
        data.Origin.Dates.reset();
    }
    TakeShownNames(HeadingsOf(table, columns), true, document.Prop.Plot.CurveName, data.CurveNames);
    FollowCurves(document.Prop.Plot, table.ColumnOrigins());
}

std::vector<std::string> ShownNames(const std::vector<std::string>& ofRecord,
                                    const std::vector<std::string>& ofData) {
    std::vector<std::string> names = ofRecord;
    for (std::size_t i = names.size(); i < ofData.size(); ++i) {
        names.push_back(ofData[i]);
    }
    return names;
}

void TakeShownNames(const std::vector<std::string>& names, bool standWithData,
                    std::vector<std::string>& ofRecord, std::vector<std::string>& ofData) {
    std::vector<std::string> before = ShownNames(ofRecord, ofData);
    if (before.size() <= names.size()) {
        before.resize(names.size());
        if (before == names) {
            return;
        }
    }
    const std::vector<std::string> now = AnyNamed(names) ? names : std::vector<std::string>();
    const bool hasOwn = !ofRecord.empty();
    const bool hasData = !ofData.empty();
    if (hasData || (!hasOwn && standWithData)) {
        ofData = now;
    }
    if (hasOwn || (!hasData && !standWithData)) {
        ofRecord = now;
    }
}

std::size_t FilledColumns(const DataTable& table) {
    std::size_t columns = std::min(table.ColumnCount() - 1, table.UsedColumns());
    for (; columns > 0 && table.Heading(columns).empty(); --columns) {
        const std::vector<double>& numbers = table.Numbers(columns);
        if (std::any_of(numbers.begin(), numbers.end(), [](double number) { return !std::isnan(number); })) {
            break;
        }
    }
    return columns;
}

std::size_t FilledRows(const DataTable& table) {
    const std::size_t columns = std::min(table.ColumnCount() - 1, table.UsedColumns());
    const auto isEmpty = [&](std::size_t row) {
        for (std::size_t column = 1; column <= columns; ++column) {
            if (!std::isnan(table.Numbers(column)[row])) {
                return false;
            }
        }
        return table.Text(row, 0).empty();
    };
    std::size_t rows = table.RowCount();
    while (rows > 0 && isEmpty(rows - 1)) {
        --rows;
    }
    return rows;
}

std::vector<std::string> HeadingsOf(const DataTable& table, std::size_t columns) {
    std::vector<std::string> names;
    for (std::size_t column = 1; column <= columns; ++column) {
        names.push_back(ToNarrow(table.Heading(column)));
    }
    return names;
}

std::vector<std::string> HeadsOf(const DataTable& table, std::size_t rows) {
    std::vector<std::string> names(rows);
    for (std::size_t row = 0; row < rows; ++row) {
        names[row] = ToNarrow(table.Text(row, 0));
    }
    return AnyNamed(names) ? names : std::vector<std::string>();
}

} // namespace designer
