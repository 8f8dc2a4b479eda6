#include "data/PieData.h"

#include "documents/Fields.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <utility>

namespace cli {
namespace {

constexpr const char* kValues = "values";
constexpr const char* kFirst = "first";
constexpr const char* kSecond = "second";
constexpr const char* kNoLess = "0 or more";

/// A column of numbers in a table whose first column are names.
struct Column {
    std::size_t Index;
    PieData* Data;
};

void ReadCell(DataTable& table, const CsvRow& row, Column column, const char* wanted) {
    double value = 0.0;
    if (!table.Number(row, column.Index, wanted, value)) {
        return;
    }
    if (value < 0.0) {
        table.RefuseCell(row, column.Index, kNoLess);
    }
    column.Data->Names.push_back(penlode::CStringUtil::Utf8ToAnsi(row.Cells[0]));
    column.Data->Values.push_back(value);
}

/// Tells of too few or too many slices. False when there are more than can be shown.
bool CheckRows(DataTable& table, std::size_t count, const char* wanted) {
    if (count == 0 && table.IsSound()) {
        table.Refuse("no rows", wanted);
    }
    if (count > kMaxSlices) {
        table.Refuse(Counted(count, "row"), FewerSlices());
    }
    return count <= kMaxSlices;
}

/// Names that are all empty are none.
void DropEmptyNames(PieData& data) {
    if (std::all_of(data.Names.begin(), data.Names.end(), [](const auto& name) { return name.empty(); })) {
        data.Names.clear();
    }
}

void ReadPie(DataTable& table, PieData& data) {
    for (const CsvRow& row : table.Rows()) {
        const bool isFirst = &row == &table.Rows().front();
        if (table.HasWidth(row, 2, "a name and a value") && !(isFirst && IsHeading(row.Cells[1]))) {
            ReadCell(table, row, {1, &data},
                     isFirst ? "a number, or a heading without digits" : penlode::kFloatForm);
        }
    }
    if (!CheckRows(table, data.Values.size(), "rows of a name and a value")) {
        data = {};
    }
    DropEmptyNames(data);
}

/// There always is a heading: it may well be of years, which look like values.
void ReadHalves(DataTable& table, HalvesData& data) {
    for (std::size_t i = 0; i < table.Rows().size(); ++i) {
        const CsvRow& row = table.Rows()[i];
        if (table.HasWidth(row, 3, "a name and two values") && i > 0) {
            ReadCell(table, row, {1, &data.First}, penlode::kFloatForm);
            ReadCell(table, row, {2, &data.Second}, penlode::kFloatForm);
        }
    }
    const std::size_t most = std::max(data.First.Values.size(), data.Second.Values.size());
    if (!CheckRows(table, most, "a heading, and rows of a name and two values")) {
        data = {};
    }
    DropEmptyNames(data.First);
    DropEmptyNames(data.Second);
}

/// The values that stand in the document.
void LoadValues(ChartStream& stream, PieData& data, std::vector<Message>& messages) {
    data.Values = LoadNumbers(stream, kValues);
    for (std::size_t i = 0; i < data.Values.size(); ++i) {
        if (data.Values[i] < 0.0) {
            stream.Refuse(std::string(kValues) + "/" + std::to_string(i), "a number below 0", kNoLess);
        }
    }
    if (data.Values.size() > kMaxSlices) {
        messages.push_back({"", Severity::Error, 0, data.Place + "/" + kValues,
                            Counted(data.Values.size(), "value"), FewerSlices()});
        data.Values.clear();
    }
}

/// The slices in the stream's current group.
void LoadSlices(ChartStream& stream, const DataSource& source, PieData& data) {
    std::optional<DataTable> table = LoadDataTable(stream, kValues, source);
    if (!table || stream.Has(kValues)) {
        LoadValues(stream, data, *source.Messages);
    }
    if (table) {
        data.Values.clear();
        ReadPie(*table, data);
    }
}

/// One of two pies, each with a group of its own. A file that it names is not read when the user's replaces
/// both.
void LoadHalf(ChartStream& stream, const char* key, const DataSource& source, bool isReplaced,
              PieData& data) {
    if (isReplaced && !stream.Has(key)) {
        return;
    }
    stream.Push(key, -1);
    if (isReplaced && stream.Has("csv")) {
        LoadText(stream, "csv", "");
    } else {
        LoadSlices(stream, {source.Folder, {}, source.Messages, source.Files}, data);
    }
    stream.Pop();
}

} // namespace

std::string FewerSlices() {
    return "at most " + std::to_string(kMaxSlices) + ", a slice each";
}

PieData LoadPieData(ChartStream& stream, const DataSource& source) {
    PieData data;
    data.Place = "data";
    data.NamesGoFirst = source.NamedByUser.has_value();
    stream.Push("data", -1);
    LoadSlices(stream, source, data);
    stream.Pop();
    return data;
}

HalvesData LoadHalvesData(ChartStream& stream, const DataSource& source) {
    HalvesData data;
    stream.Push("data", -1);
    std::optional<DataTable> table = LoadDataTable(stream, stream.Has(kFirst) ? kFirst : kSecond, source);
    for (const auto& [key, half] : {std::pair(kFirst, &data.First), std::pair(kSecond, &data.Second)}) {
        half->Place = std::string("data/") + key;
        half->NamesGoFirst = source.NamedByUser.has_value();
        LoadHalf(stream, key, source, table.has_value(), *half);
    }
    stream.Pop();
    if (table) {
        for (PieData* half : {&data.First, &data.Second}) {
            half->Names.clear();
            half->Values.clear();
        }
        ReadHalves(*table, data);
    }
    return data;
}

} // namespace cli
