// The tables of a chart's content, and back.
#include "foundation/ChartOptions.h"
#include "model/CellTexts.h"
#include "model/CurveTable.h"
#include "model/DataTable.h"
#include "model/Looks.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace designer {
namespace {

using millichart::BarData;
using millichart::SliceData;
using Tables = std::vector<DataTable>;

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

/// Of more a pie is a grey disk, and no document is read.
constexpr std::size_t kMaxSlices = 5000;

/// The slices of one circle, and what its record says of each.
struct SliceLists {
    SliceData& Data;
    std::vector<std::string>& Names;
    std::vector<penlode::Color>& Colors;
    std::vector<penlode::PointF>& Offsets;
};

template <class Basic> DataTable TableOfSlices(const Basic& basic, const SliceData& data) {
    const std::vector<std::string> names = ShownNames(basic.ComponentName, data.Names);
    std::vector<std::string> heads(std::max(names.size(), data.Values.size()));
    std::transform(names.begin(), names.end(), heads.begin(), ToUtf8);
    DataTable table(RowHeads::Names);
    table.TakeNames(std::move(heads));
    table.AddColumn({}, data.Values);
    table.SetUsedColumns(1);
    return table;
}

/// A record joins its names by two bars, so that none may hold them or end in one.
std::string Joinable(std::string name) {
    for (std::size_t at = name.find("||"); at != std::string::npos; at = name.find("||")) {
        name.erase(at, 1);
    }
    while (name.ends_with('|')) {
        name.pop_back();
    }
    return name;
}

void TakeSlices(SliceLists lists, const DataTable& table) {
    const std::size_t rows = std::min(FilledRows(table), kMaxSlices);
    std::vector<double> values;
    std::vector<std::string> names(rows);
    for (std::size_t row = 0; row < rows; ++row) {
        names[row] = ToNarrow(Joinable(table.Text(row, 0)));
        const double number = table.Number(row, 1);
        if (!std::isnan(number)) {
            values.resize(row + 1); // a gap before it is a slice of 0
            values[row] = std::max(number, 0.0);
        }
    }
    lists.Data.Values = std::move(values);
    TakeShownNames(names, false, lists.Names, lists.Data.Names);
    FollowColors(lists.Colors, table.RowOrigins());
    FollowOffsets(lists.Offsets, table.RowOrigins());
}

DataTable TableOfBars(const millichart::HistogramPlotProp& plot, const BarData& data) {
    const std::vector<std::string> components = ShownNames(plot.ComponentName, data.ComponentNames);
    const std::size_t rows = std::max(data.Values.size(), data.GroupNames.size());
    std::vector<std::string> groups(rows);
    std::transform(data.GroupNames.begin(), data.GroupNames.end(), groups.begin(), ToUtf8);
    DataTable table(RowHeads::Names);
    table.TakeNames(std::move(groups));
    for (std::size_t i = 0; i < std::max(components.size(), data.Components()); ++i) {
        std::vector<double> numbers(rows, kGap);
        for (std::size_t row = 0; row < data.Values.size(); ++row) {
            numbers[row] = i < data.Values[row].size() ? data.Values[row][i] : kGap;
        }
        table.AddColumn(i < components.size() ? ToUtf8(components[i]) : std::string(), std::move(numbers));
    }
    return table;
}

/// A gap at a group's end is a value that is not there.
std::vector<double> GroupOf(const DataTable& table, std::size_t row, std::size_t columns) {
    std::vector<double> values;
    for (std::size_t column = 1; column <= columns; ++column) {
        values.push_back(table.Numbers(column)[row]);
    }
    while (!values.empty() && std::isnan(values.back())) {
        values.pop_back();
    }
    return values;
}

void TakeBars(BarData& data, millichart::HistogramPlotProp& plot, const DataTable& table) {
    const std::size_t rows = FilledRows(table);
    const std::size_t columns = FilledColumns(table);
    data.Values.resize(rows);
    for (std::size_t row = 0; row < rows; ++row) {
        data.Values[row] = GroupOf(table, row, columns);
    }
    const bool haveNames = !data.GroupNames.empty();
    data.GroupNames = HeadsOf(table, rows);
    if (haveNames && data.GroupNames.empty()) {
        data.GroupNames.resize(rows); // they take the room of a line
    }
    TakeShownNames(HeadingsOf(table, columns), false, plot.ComponentName, data.ComponentNames);
    FollowColors(plot.ComponentColor, table.ColumnOrigins());
}

Tables TablesIn(const std::monostate&, std::int32_t) {
    return {};
}

Tables TablesIn(const millichart::PieDocument& pie, std::int32_t) {
    return {TableOfSlices(pie.Prop.Basic, pie.Data)};
}

Tables TablesIn(const millichart::HalfPieDocument& half, std::int32_t) {
    return {TableOfSlices(half.Prop.Basic, half.Data)};
}

Tables TablesIn(const millichart::HalfPieHalfPieDocument& halves, std::int32_t) {
    return {TableOfSlices(halves.Prop.First.Basic, halves.First),
            TableOfSlices(halves.Prop.Second.Basic, halves.Second)};
}

Tables TablesIn(const millichart::HalfPieHistogramDocument& chart, std::int32_t) {
    return {TableOfSlices(chart.Prop.HalfPie.Basic, chart.Slices),
            TableOfBars(chart.Prop.Histogram.Plot, chart.Bars)};
}

Tables TablesIn(const millichart::HistogramDocument& bars, std::int32_t) {
    return {TableOfBars(bars.Prop.Plot, bars.Data)};
}

Tables TablesIn(const millichart::CurveDocument& curves, std::int32_t timeUnit) {
    return {TableOfCurves(curves, timeUnit)};
}

void TakeTable(std::monostate&, std::size_t, const DataTable&, const DataTable&) {}

void TakeTable(millichart::PieDocument& pie, std::size_t, const DataTable&, const DataTable& table) {
    millichart::PieBasicProp& basic = pie.Prop.Basic;
    TakeSlices({pie.Data, basic.ComponentName, basic.ComponentColor, pie.LabelOffsets}, table);
}

void TakeTable(millichart::HalfPieDocument& half, std::size_t, const DataTable&, const DataTable& table) {
    millichart::HalfPieBasicProp& basic = half.Prop.Basic;
    TakeSlices({half.Data, basic.ComponentName, basic.ComponentColor, half.LabelOffsets}, table);
}

void TakeTable(millichart::HalfPieHalfPieDocument& halves, std::size_t index, const DataTable&,
               const DataTable& table) {
    const bool isFirst = index == 0;
    millichart::HalfPieBasicProp& basic = (isFirst ? halves.Prop.First : halves.Prop.Second).Basic;
    TakeSlices({isFirst ? halves.First : halves.Second, basic.ComponentName, basic.ComponentColor,
                isFirst ? halves.FirstLabelOffsets : halves.SecondLabelOffsets},
               table);
}

void TakeTable(millichart::HalfPieHistogramDocument& chart, std::size_t index, const DataTable&,
               const DataTable& table) {
    if (index == 0) {
        millichart::HalfPieBasicProp& basic = chart.Prop.HalfPie.Basic;
        TakeSlices({chart.Slices, basic.ComponentName, basic.ComponentColor, chart.LabelOffsets}, table);
    } else {
        TakeBars(chart.Bars, chart.Prop.Histogram.Plot, table);
    }
}

void TakeTable(millichart::HistogramDocument& bars, std::size_t, const DataTable&, const DataTable& table) {
    TakeBars(bars.Data, bars.Prop.Plot, table);
}

void TakeTable(millichart::CurveDocument& curves, std::size_t, const DataTable& former,
               const DataTable& table) {
    TakeCurves(curves, former, table);
}

bool IsArranged(const DataTable& table) {
    return table.RowOrigins().AreMoved() || table.ColumnOrigins().AreMoved();
}

} // namespace

std::int32_t TimeUnitOf(RowHeads heads) {
    return heads == RowHeads::Days      ? millichart::TimeUnit::Days
           : heads == RowHeads::Seconds ? millichart::TimeUnit::Seconds
                                        : millichart::TimeUnit::Number;
}

std::vector<DataTable> TablesOf(const millichart::ChartContent& content, std::int32_t timeUnit) {
    return std::visit([timeUnit](const auto& document) { return TablesIn(document, timeUnit); }, content);
}

void TakeTables(millichart::ChartContent& content, const std::vector<DataTable>& tables) {
    const Tables former =
        TablesOf(content, tables.empty() ? millichart::TimeUnit::Number : TimeUnitOf(tables.front().Heads()));
    for (std::size_t i = 0; i < std::min(former.size(), tables.size()); ++i) {
        if (former[i] == tables[i] && !IsArranged(tables[i])) {
            continue;
        }
        std::visit([&](auto& document) { TakeTable(document, i, former[i], tables[i]); }, content);
    }
}

} // namespace designer
