#include "charts/curve/CurvePropSerialize.h"
#include "documents/ChartLayouts.h"
#include "documents/Fields.h"
#include "documents/Palette.h"
#include "documents/ValueRange.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;
using Times = std::vector<std::int32_t>;

constexpr const char* kCurves = "curves";
constexpr const char* kCurvesForm = "a list of curves, each with values and their times";
constexpr const char* kNamesPlace = "property/CurvePlotProp/CurveName";
const std::string kPlot = "property/CurvePlotProp/";
const std::string kHorAxis = "property/CurveHorAxisProp/";

constexpr float kLineWidth = 0.4F;
constexpr float kMarkerWidth = 1.6F;
constexpr std::size_t kMaxLabels = 12;
constexpr std::size_t kManyLabels = 2000;

constexpr TableForm kCurveTable{.HeadedBy = TableForm::Heading::OverTime,
                                .WidthForm = "as many as in the first row",
                                .HeadingNames = "the curves' names",
                                .HasTimes = true,
                                .Gap = kCurveNull,
                                .NoRows = "no rows of values",
                                .RowsForm = "a row a time: the time or a label, and a value a curve"};

/// Columns that a spreadsheet program added are no curves, unless the document names them. One is left.
CurveData CurvesOf(Table table, std::size_t names) {
    const std::size_t filled = table.Columns.size() - std::min(table.EmptyColumns, table.Columns.size());
    if (const std::size_t kept = std::max({filled, names, std::size_t{1}}); kept < table.Columns.size()) {
        table.Columns.resize(kept);
    }
    CurveData data;
    data.CurveNames = std::move(table.Heading);
    data.Values = std::move(table.Columns);
    data.Times.assign(data.Values.size(), table.Times);
    data.Labels = std::move(table.Names);
    data.Origin = {std::move(table.File), std::move(table.Lines)};
    return data;
}

std::vector<double> LoadValues(ChartStream& stream) {
    std::vector<double> values = stream.LoadNumbersAndGaps("values");
    std::replace_if(
        values.begin(), values.end(), [](double value) { return std::isnan(value); }, kCurveNull);
    return values;
}

Times LoadTimes(ChartStream& stream) {
    const std::vector<double> numbers = stream.LoadNumbersAndGaps("times");
    Times times(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const bool isWhole =
            numbers[i] >= -2147483648.0 && numbers[i] <= 2147483647.0 && std::trunc(numbers[i]) == numbers[i];
        if (isWhole) {
            times[i] = static_cast<std::int32_t>(numbers[i]);
        } else {
            stream.Refuse("times/" + std::to_string(i), "no whole number", "a whole number within 32 bits");
        }
    }
    return times;
}

Times CountedTimes(std::size_t count) {
    Times times(count);
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
        const std::size_t values = data.Values.back().size();
        data.Times.push_back(stream.Has("times") ? LoadTimes(stream) : CountedTimes(values));
        if (data.Times.back().size() != values) {
            stream.Refuse("times", std::to_string(data.Times.back().size()),
                          std::to_string(values) + ", one a value");
        }
        stream.Pop();
    }
    if (!hasNames) {
        data.CurveNames.clear();
    }
}

CurveData LoadData(ChartStream& stream, const DataSource& source, std::size_t names) {
    CurveData data;
    const bool isMissing = !stream.Has("data");
    const bool isGroup = stream.Push("data", -1);
    std::optional<Table> table = LoadTable(stream, kCurves, source, kCurveTable);
    if (stream.Has(kCurves)) {
        LoadCurves(stream, data);
    } else if (!table && !stream.Has("csv") && (isGroup || isMissing)) {
        source.Diagnostics->push_back(
            penlode::Error("data/curves", "no such key", std::string(kCurvesForm) + ", or csv with a file"));
    }
    std::vector<std::string> labels;
    if (stream.Has("labels")) {
        stream.Ser("labels", labels, {});
    }
    stream.Pop();
    if (table) {
        data = CurvesOf(*std::move(table), names);
    }
    // Labels belong to the data that they stand beside.
    if (!labels.empty() && source.Table == nullptr) {
        data.Labels = std::move(labels);
    }
    return data;
}

std::vector<double> WithGaps(std::vector<double> values) {
    std::replace_if(
        values.begin(), values.end(), [](double value) { return value < kCurveNullThreshold; },
        std::numeric_limits<double>::quiet_NaN());
    return values;
}

/// The largest value that is not null. -infinity when there is none.
double LargestOf(const std::vector<std::vector<double>>& curves) {
    double largest = -HUGE_VAL;
    for (const std::vector<double>& values : curves) {
        for (const double value : values) {
            largest = std::max(largest, value);
        }
    }
    return largest < kCurveNullThreshold ? -HUGE_VAL : largest;
}

/// Labels for an axis over times that has none of its own: whole numbers, evenly spread, from the first to
/// the last.
std::vector<std::string> TimeLabels(const std::vector<Times>& curves) {
    std::int64_t first = INT64_MAX;
    std::int64_t last = INT64_MIN;
    for (const Times& times : curves) {
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
    for (const std::int64_t good : {10, 8, 6, 5, 9, 7, 4, 3, 2}) {
        if ((last - first) % good == 0) {
            parts = good;
            break;
        }
    }
    std::vector<std::string> labels;
    for (std::int64_t i = 0; i <= parts; ++i) {
        labels.push_back(std::to_string(first + (last - first) / parts * i));
    }
    return labels;
}

/// 1, 2 or 5 times a power of ten, so that every so many of `count` labels are few enough to read.
std::int32_t ReadableStep(std::size_t count) {
    for (std::int32_t power = 1; power < 1000000000; power *= 10) {
        for (const std::int32_t digit : {1, 2, 5}) {
            if (count / static_cast<std::size_t>(digit * power) < kMaxLabels) {
                return digit * power;
            }
        }
    }
    return 1000000000;
}

/// Where the document leaves the look of lines open, they can be told apart and seen.
void CompleteLooks(CurvePlotProp& plot, const OpenPlaces& open) {
    const std::size_t count = plot.CurveName.size();
    if (open.contains(kPlot + "CurveColor")) {
        plot.CurveColor = PaletteColors(count);
    }
    if (open.contains(kPlot + "CurveDotColor")) {
        plot.CurveDotColor = plot.CurveColor;
    }
    if (open.contains(kPlot + "CurveWidth")) {
        plot.CurveWidth.assign(count, kLineWidth);
    }
    if (open.contains(kPlot + "CurveDotWidth")) {
        plot.CurveDotWidth.assign(count, kMarkerWidth);
    }
}

void CompleteSteps(CurveHorAxisProp& axis, std::size_t labels, const OpenPlaces& open) {
    for (const auto& [key, step] : {std::pair("ScaleStep", &axis.ScaleStep),
                                    {"LabelStep", &axis.LabelStep},
                                    {"VerGridStep", &axis.VerGridStep}}) {
        if (open.contains(kHorAxis + key)) {
            *step = ReadableStep(labels);
        }
    }
}

/// A table of a million rows has as many labels. The chart measures all that it gets, whether a step passes
/// over them or not, so that thousands are left empty where nobody sees them.
void ForgetUnseen(std::vector<std::string>& labels, std::int32_t labelStep) {
    if (labels.size() < kManyLabels || labelStep <= 1) {
        return;
    }
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (i % static_cast<std::size_t>(labelStep) != 0) {
            labels[i] = std::string();
        }
    }
}

void DoubtRange(const CBasicCurve& chart, const CurveData& data, std::vector<Diagnostic>& diagnostics) {
    const CurvePlotProp& plot = chart.GetCurveProp().Plot;
    RangeDoubts doubts(chart, plot.LogarithmScale != 0);
    for (std::size_t curve = 0; curve < data.Values.size(); ++curve) {
        const bool nullsAreZero =
            curve < plot.NullValueStyle.size() && plot.NullValueStyle[curve] != CurveNullValueStyle::Break;
        for (std::size_t i = 0; i < data.Values[curve].size(); ++i) {
            const double value = data.Values[curve][i];
            const bool isNull = value < kCurveNullThreshold;
            if (!isNull || nullsAreZero) {
                doubts.Look(isNull ? 0.0 : value, [&] {
                    return AtValue(data.Origin, i, curve + 1,
                                   "data/curves/" + std::to_string(curve) + "/values/" + std::to_string(i));
                });
            }
        }
    }
    doubts.AddTo(diagnostics);
}

} // namespace

void LoadContent(ChartStream& stream, const DataSource& source, CurveDocument& document) {
    CCurvePropSerialize::SerializeCurveProp(stream, document.Prop, "property");
    document.Data = LoadData(stream, source, document.Prop.Plot.CurveName.size());
    document.Range = LoadValueRange(stream, document.Prop.Plot.LogarithmScale != 0, *source.Diagnostics);
}

void SaveContent(SavingStream& stream, CurveDocument& document) {
    CCurvePropSerialize::SerializeCurveProp(stream, document.Prop, "property");
    CurveData& data = document.Data;
    stream.Push("data", -1);
    stream.ReplaceTable("csv", {kCurves, "labels"});
    stream.Groups(kCurves, data.Values.size());
    for (std::size_t i = 0; i < data.Values.size(); ++i) {
        stream.Push(kCurves, static_cast<int>(i));
        if (i < data.CurveNames.size()) {
            stream.Text("name", data.CurveNames[i]);
        } else {
            stream.Remove("name");
        }
        stream.Numbers("values", WithGaps(data.Values[i]));
        const Times none;
        const Times& times = i < data.Times.size() ? data.Times[i] : none;
        stream.Numbers("times", std::vector<double>(times.begin(), times.end()));
        stream.Pop();
    }
    stream.Ser("labels", data.Labels, {});
    stream.Pop();
    SaveValueRange(stream, document.Range);
}

void TakeTableNames(CurveDocument& document, bool inPlaceOfOwn) {
    if (inPlaceOfOwn) { // else they stand with the curves
        TakeNames(document.Prop.Plot.CurveName, document.Data.CurveNames, true);
    }
}

CBasicCurve LayOutContent(CurveDocument& document, LayoutTask& task) {
    CurveData& data = document.Data;
    CurveProp& prop = document.Prop;
    ForgetOrigin(data.Origin, task);
    task.Diagnostics = PlotSizeFaults("property/CurvePlotProp", prop.Plot.PlotWidth, prop.Plot.PlotHeight);
    const bool isOther = CompleteNames(prop.Plot.CurveName, data.CurveNames, data.Values.size(),
                                       task.Open.contains(kNamesPlace));
    if (isOther && !data.Origin.File.empty()) {
        task.Diagnostics.push_back(OtherNames(kNamesPlace));
    }
    CompleteLooks(prop.Plot, task.Open);
    if (data.Labels.empty()) {
        data.Labels = TimeLabels(data.Times);
    }
    CompleteSteps(prop.HorAxis, data.Labels.size(), task.Open);
    ForgetUnseen(data.Labels, prop.HorAxis.LabelStep);

    CBasicCurve chart;
    chart.SetCurveProp(prop);
    SetValueRange(chart, document.Range, LargestOf(data.Values));
    DoubtRange(chart, data, task.Diagnostics);
    if (const std::size_t names = prop.Plot.CurveName.size(); names != data.Values.size()) {
        task.Diagnostics.push_back(penlode::Warning(kNamesPlace, Counted(names, "name"),
                                                    std::to_string(data.Values.size()) + ", one a curve"));
    }
    task.Emptiness = NothingIn(data.Origin, "data/curves", "a curve with values");
    chart.SetCurveData(std::move(data.Values), std::move(data.Times));
    chart.SetHorAxisLabel(std::move(data.Labels));
    chart.SetLocation(task.Location);
    chart.Layout();
    return chart;
}

} // namespace millichart::documents
