#include "data/CurveData.h"

#include "charts/curve/CurveProp.h"
#include "data/CurveTable.h"
#include "documents/Fields.h"
#include "penlode/streams/TextForms.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace cli {
namespace {

constexpr const char* kCurves = "curves";
constexpr const char* kCurvesForm = "a list of curves, each with values and their times";
constexpr const char* kWhole = "a whole number within 32 bits";

/// Gaps become values that the library takes as null.
std::vector<double> LoadValues(ChartStream& stream) {
    std::vector<double> values = stream.LoadNumbersAndGaps("values");
    std::replace_if(
        values.begin(), values.end(), [](double value) { return std::isnan(value); }, millichart::kCurveNull);
    return values;
}

std::vector<std::int32_t> LoadTimes(ChartStream& stream) {
    const std::vector<double> numbers = stream.LoadNumbersAndGaps("times");
    std::vector<std::int32_t> times(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const bool isWhole =
            numbers[i] >= -2147483648.0 && numbers[i] <= 2147483647.0 && std::trunc(numbers[i]) == numbers[i];
        if (isWhole) {
            times[i] = static_cast<std::int32_t>(numbers[i]);
        } else {
            stream.Refuse("times/" + std::to_string(i), "no whole number", kWhole);
        }
    }
    return times;
}

std::vector<std::int32_t> Counted(std::size_t count) {
    std::vector<std::int32_t> times(count);
    std::iota(times.begin(), times.end(), 0);
    return times;
}

void LoadCurves(ChartStream& stream, CurveData& data) {
    if (!stream.IsList(kCurves)) {
        stream.CountGroups(kCurves);
        stream.Refuse(kCurves, "no list", kCurvesForm);
        return;
    }
    bool hasNames = false;
    const std::size_t count = stream.CountGroups(kCurves);
    for (std::size_t i = 0; i < count; ++i) {
        stream.Push(kCurves, static_cast<int>(i));
        const bool hasName = stream.Has("name");
        hasNames = hasNames || hasName;
        data.CurveNames.push_back(hasName ? LoadText(stream, "name", "") : "");
        data.Values.push_back(LoadValues(stream));
        data.Times.push_back(stream.Has("times") ? LoadTimes(stream) : Counted(data.Values.back().size()));
        if (data.Times.back().size() != data.Values.back().size()) {
            stream.Refuse("times", std::to_string(data.Times.back().size()),
                          std::to_string(data.Values.back().size()) + ", one a value");
        }
        stream.Pop();
    }
    if (!hasNames) {
        data.CurveNames.clear();
    }
}

} // namespace

FilePlace CurveData::PlaceOf(std::size_t curve, std::size_t value) const {
    if (value < Lines.size()) {
        return {File, Lines[value], ColumnPlace(curve + 1)};
    }
    return {"", 0, "data/curves/" + std::to_string(curve) + "/values/" + std::to_string(value)};
}

CurveData LoadCurveData(ChartStream& stream, const DataSource& source) {
    CurveData data;
    const bool isMissing = !stream.Has("data");
    const bool isGroup = stream.Push("data", -1);
    std::optional<DataTable> table = LoadDataTable(stream, kCurves, source);
    if (stream.Has(kCurves)) {
        LoadCurves(stream, data);
    } else if (!table && !stream.Has("csv") && (isGroup || isMissing)) {
        source.Messages->push_back({"", Severity::Error, 0, "data/curves", "no such key",
                                    std::string(kCurvesForm) + ", or csv with a file"});
    }
    std::vector<std::string> labels;
    if (stream.Has("labels")) {
        stream.Ser("labels", labels, {});
    }
    stream.Pop();
    if (table) {
        data = {};
        ReadCurveTable(*table, data);
        data.NamesGoFirst = source.NamedByUser.has_value();
    }
    // Labels belong to the data that they stand beside.
    if (!labels.empty() && !source.NamedByUser) {
        data.Labels = std::move(labels);
    }
    return data;
}

std::vector<std::string> TimeLabels(const CurveData& data) {
    std::int64_t first = INT64_MAX;
    std::int64_t last = INT64_MIN;
    for (const std::vector<std::int32_t>& times : data.Times) {
        for (const std::int32_t time : times) {
            first = std::min<std::int64_t>(first, time);
            last = std::max<std::int64_t>(last, time);
        }
    }
    if (first >= last) {
        return {};
    }
    // As many parts, of those that look well, as give whole numbers; the ends alone if none does.
    std::int64_t parts = 1;
    for (const std::int64_t wanted : {10, 8, 6, 5, 9, 7, 4, 3, 2}) {
        if ((last - first) % wanted == 0) {
            parts = wanted;
            break;
        }
    }
    std::vector<std::string> labels;
    for (std::int64_t i = 0; i <= parts; ++i) {
        labels.push_back(std::to_string(first + (last - first) / parts * i));
    }
    return labels;
}

} // namespace cli
