#include "PieData.h"

#include "Fields.h"
#include "penlode/StringUtil.h"
#include "penlode/TextForms.h"

#include <algorithm>

namespace cli {
namespace {

constexpr const char* kNameAndValue = "a name and a value";
constexpr const char* kNoLess = "0 or more";

void ReadRow(DataTable& table, const CsvRow& row, PieData& data) {
    const bool isFirst = &row == &table.Rows().front();
    double value = 0.0;
    if (!table.HasWidth(row, 2, kNameAndValue) || (isFirst && IsHeading(row.Cells[1])) ||
        !table.Number(row, 1, isFirst ? "a number, or a heading without digits" : penlode::kFloatForm,
                      value)) {
        return;
    }
    if (value < 0.0) {
        table.RefuseCell(row, 1, kNoLess);
    }
    data.Names.push_back(penlode::CStringUtil::Utf8ToAnsi(row.Cells[0]));
    data.Values.push_back(value);
}

/// Names that are all empty are none.
PieData ReadTable(DataTable& table) {
    PieData data;
    for (const CsvRow& row : table.Rows()) {
        ReadRow(table, row, data);
    }
    if (data.Values.empty() && table.IsSound()) {
        table.Refuse("no rows", "rows of a name and a value");
    }
    if (data.Values.size() > kMostSlices) {
        table.Refuse(Counted(data.Values.size(), "row"), FewerSlices());
        return {};
    }
    if (std::all_of(data.Names.begin(), data.Names.end(), [](const auto& name) { return name.empty(); })) {
        data.Names.clear();
    }
    return data;
}

/// The values that stand in the document.
PieData LoadValues(ChartStream& stream, std::vector<Message>& messages) {
    PieData data;
    data.Values = LoadNumbers(stream, "values");
    for (std::size_t i = 0; i < data.Values.size(); ++i) {
        if (data.Values[i] < 0.0) {
            stream.Refuse("values/" + std::to_string(i), "a number below 0", kNoLess);
        }
    }
    if (data.Values.size() > kMostSlices) {
        messages.push_back(
            {"", Severity::Error, 0, "data/values", Counted(data.Values.size(), "value"), FewerSlices()});
        return {};
    }
    return data;
}

} // namespace

std::string FewerSlices() {
    return "at most " + std::to_string(kMostSlices) + ", a slice each";
}

PieData LoadPieData(ChartStream& stream, const DataSource& source) {
    stream.Push("data", -1);
    std::optional<DataTable> table = LoadDataTable(stream, "values", source);
    PieData data;
    if (!table || stream.Has("values")) {
        data = LoadValues(stream, *source.Messages);
    }
    stream.Pop();
    if (table) {
        data = ReadTable(*table);
        data.NamesGoFirst = source.NamedByUser.has_value();
    }
    return data;
}

} // namespace cli
