#include "data/HistogramData.h"

#include "documents/Fields.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace cli {
namespace {

using penlode::CStringUtil;

constexpr const char* kGroups = "groups";
constexpr const char* kGroupsForm = "a list of groups, each with a name and values";
constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

/// A gap at a group's end is a value that is not there.
void TrimGaps(std::vector<double>& values) {
    while (!values.empty() && std::isnan(values.back())) {
        values.pop_back();
    }
}

std::vector<double> ReadValues(DataTable& table, const CsvRow& row, std::size_t width) {
    std::vector<double> values;
    for (std::size_t column = 1; column < std::min(width, row.Cells.size()); ++column) {
        double value = kGap;
        if (!row.Cells[column].empty()) {
            table.Number(row, column, penlode::kFloatForm, value);
        }
        values.push_back(value);
    }
    TrimGaps(values);
    return values;
}

void ReadTable(DataTable& table, HistogramData& data) {
    data.File = table.File();
    if (table.Rows().empty()) {
        if (table.IsSound()) {
            table.Refuse("no rows", "a heading with the components' names, and a row a group");
        }
        return;
    }
    const CsvRow& heading = table.Rows().front();
    const std::size_t width = FilledCells(heading);
    for (std::size_t column = 1; column < width; ++column) {
        data.ComponentNames.push_back(CStringUtil::Utf8ToAnsi(heading.Cells[column]));
    }
    if (width < 2) {
        table.HasWidth(heading, 2, "a heading: a cell for the group names and the components' names");
        return;
    }
    table.DoubtHeading(heading, "the components' names");
    for (std::size_t i = 1; i < table.Rows().size(); ++i) {
        const CsvRow& row = table.Rows()[i];
        if (row.Cells.size() <= width || table.HasWidth(row, width, "as many as in the heading")) {
            data.GroupNames.push_back(CStringUtil::Utf8ToAnsi(row.Cells.front()));
            data.Values.push_back(ReadValues(table, row, width));
            data.Lines.push_back(row.Line);
        }
    }
}

void LoadGroups(ChartStream& stream, HistogramData& data) {
    bool hasNames = false;
    const std::size_t count = stream.CountGroups(kGroups);
    if (!stream.IsList(kGroups)) {
        std::vector<std::string> none;
        stream.Ser(kGroups, none, {});
        stream.Refuse(kGroups, "", kGroupsForm);
    }
    for (std::size_t i = 0; i < count; ++i) {
        stream.Push(kGroups, static_cast<int>(i));
        hasNames = hasNames || stream.Has("name");
        data.GroupNames.push_back(stream.Has("name") ? LoadText(stream, "name", "") : "");
        data.Values.push_back(stream.LoadNumbersAndGaps("values"));
        TrimGaps(data.Values.back());
        stream.Pop();
    }
    if (!hasNames) {
        data.GroupNames.clear();
    }
}

} // namespace

std::size_t HistogramData::Components() const {
    std::size_t count = ComponentNames.size();
    for (const std::vector<double>& group : Values) {
        count = std::max(count, group.size());
    }
    return count;
}

FilePlace HistogramData::PlaceOf(std::size_t group, std::size_t component) const {
    if (group < Lines.size()) {
        return {File, Lines[group], ColumnPlace(component + 1)};
    }
    return {"", 0, "data/groups/" + std::to_string(group) + "/values/" + std::to_string(component)};
}

HistogramData LoadHistogramData(ChartStream& stream, const DataSource& source, const char* csvKey) {
    HistogramData data;
    const bool isMissing = !stream.Has("data");
    const bool isGroup = stream.Push("data", -1);
    std::optional<DataTable> table = LoadDataTable(stream, kGroups, source, csvKey);
    if (stream.Has(kGroups)) {
        LoadGroups(stream, data);
    } else if (!table && !stream.Has(csvKey) && (isGroup || isMissing)) {
        source.Messages->push_back({"", Severity::Error, 0, "data/groups", "no such key",
                                    std::string(kGroupsForm) + ", or " + csvKey + " with a file"});
    }
    stream.Pop();
    if (table) {
        data = {};
        ReadTable(*table, data);
        data.NamesGoFirst = source.NamedByUser.has_value();
    }
    return data;
}

} // namespace cli
