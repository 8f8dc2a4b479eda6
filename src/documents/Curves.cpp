#include "documents/Curves.h"

#include "documents/Fields.h"
#include "documents/Palette.h"
#include "documents/ValueRange.h"
#include "documents/doubts/Wording.h"
#include "documents/tables/TableKeys.h"
#include "documents/tables/TimeAxis.h"

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
const std::string kPlot = "property/CurvePlotProp";
const std::string kLegend = "property/CurveLegendProp";
const std::string kNamesPlace = kPlot + "/CurveName";
const std::string kHorAxis = "property/CurveHorAxisProp/";

constexpr float kLineWidth = 0.4F;
constexpr float kMarkerWidth = 1.6F;
constexpr std::size_t kManyLabels = 2000;

constexpr TableForm kCurveTable{.WidthForm = "as many as in the first row",
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
    data.Labels = std::move(table.TimeLabels.empty() ? table.Names : table.TimeLabels);
    data.Origin = std::move(table.Origin);
    return data;
}

LineRules RulesOf(const CurvePlotProp& plot) {
    LineRules rules{plot.LogarithmScale != 0, {}, plot.CurveName.size()};
    for (const std::int32_t style : plot.NullValueStyle) {
        rules.NullsAreZero.push_back(style != CurveNullValueStyle::Break);
    }
    return rules;
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

std::vector<double> WithGaps(std::vector<double> values) {
    std::replace_if(values.begin(), values.end(), IsCurveNull, std::numeric_limits<double>::quiet_NaN());
    return values;
}

/// Labels for an axis over times that has none of its own: whole numbers, evenly spread, from the first to
/// the last.
std::vector<std::string> TimeLabels(const std::vector<Times>& curves, bool mayPassOver) {
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
    return LabelsOfWholeTimes(first, last, mayPassOver);
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

bool HasMarkers(const CurvePlotProp& plot) {
    return std::any_of(plot.CurveDotStyle.begin(), plot.CurveDotStyle.end(),
                       [](std::int32_t style) { return style != CurveDotStyle::None; });
}

void FillUpLikeTheLast(std::vector<float>& widths, std::size_t count, float first) {
    widths.resize(std::max(widths.size(), count), widths.empty() ? first : widths.back());
}

} // namespace

void Curves::Load(ChartStream& stream, const DataSource& source) {
    m_data = {};
    const auto loadCurve = [&] {
        m_data.Values.push_back(LoadValues(stream));
        const std::size_t values = m_data.Values.back().size();
        m_data.Times.push_back(stream.Has("times") ? LoadTimes(stream) : CountedTimes(values));
        if (m_data.Times.back().size() != values) {
            stream.Refuse("times", std::to_string(m_data.Times.back().size()),
                          std::to_string(values) + ", one a value");
        }
    };
    LargeWish large{RulesOf(m_prop.Plot), nullptr};
    DataSource own = source;
    own.Large = &large;
    std::optional<Table> table = LoadList(stream, own, {kCurves, kCurvesForm, "csv", kCurveTable, "no list"},
                                          m_data.CurveNames, loadCurve);
    std::vector<std::string> labels;
    if (stream.Has("labels")) {
        stream.Ser("labels", labels, {});
    }
    stream.Pop();
    m_large = std::move(large.Curves);
    if (m_large) {
        m_data = m_large->Extent(*source.Diagnostics);
    } else if (table) {
        m_data = CurvesOf(*std::move(table), m_prop.Plot.CurveName.size());
    }
    // Labels belong to the data that they stand beside.
    if (!labels.empty() && source.Table == nullptr) {
        m_data.Labels = std::move(labels);
    }
}

void Curves::Save(SavingStream& stream) const {
    stream.Push("data", -1);
    stream.ReplaceTable(TableKeys("csv"), {kCurves, "labels"});
    stream.Groups(kCurves, m_data.Values.size(), m_data.CurveNames, [&](std::size_t curve) {
        stream.Numbers("values", WithGaps(m_data.Values[curve]));
        const Times times = curve < m_data.Times.size() ? m_data.Times[curve] : Times();
        stream.Numbers("times", std::vector<double>(times.begin(), times.end()));
    });
    stream.Ser("labels", m_data.Labels, {});
    stream.Pop();
}

void Curves::TakeTableNames(bool inPlaceOfOwn) {
    if (inPlaceOfOwn) { // else they stand with the curves
        TakeNames(m_prop.Plot.CurveName, m_data.CurveNames, true);
    }
}

void Curves::Complete(const LayoutTask& task) {
    if (task.AreDataChanged) {
        m_data.Origin = {};
    }
    m_named = CompleteNames(m_prop.Plot.CurveName, m_data.CurveNames, m_data.Values.size(),
                            task.Open.contains(kNamesPlace));
    CompleteLooks(task.Open);
    CompleteLegend(m_prop.Legend, m_prop.Plot.CurveName, task.Open.contains(kLegend + kShowLegend));
    std::size_t spread = m_data.Labels.size();
    if (m_data.Labels.empty()) {
        m_data.Labels = TimeLabels(m_data.Times, task.Open.contains(kHorAxis + "LabelStep"));
        spread = std::max<std::size_t>(m_data.Labels.size(), 1) - 1; // the twelve months are few enough
    }
    CompleteSteps(task.Open, spread);
    ForgetUnseen(m_data.Labels, m_prop.HorAxis.LabelStep);
}

/// What the document leaves open of the look of lines, or names for too few of them, can be told apart and
/// seen.
void Curves::CompleteLooks(const OpenPlaces& open) {
    CurvePlotProp& plot = m_prop.Plot;
    const std::size_t count = plot.CurveName.size();
    if (open.contains(kPlot + "/CurveColor")) {
        plot.CurveColor.clear();
    }
    FillUp(plot.CurveColor, count);
    if (open.contains(kPlot + "/CurveDotColor")) {
        plot.CurveDotColor.clear();
    }
    for (std::size_t i = plot.CurveDotColor.size(); i < count; ++i) {
        plot.CurveDotColor.push_back(plot.CurveColor[i]);
    }
    FillUpLikeTheLast(plot.CurveWidth, count, kLineWidth);
    FillUpLikeTheLast(plot.CurveDotWidth, count, kMarkerWidth);
    FillUpMarkers(plot.CurveDotStyle, count);
}

/// So that of `labels` a few are left.
void Curves::CompleteSteps(const OpenPlaces& open, std::size_t labels) {
    CurveHorAxisProp& axis = m_prop.HorAxis;
    for (const auto& [key, step] : {std::pair("ScaleStep", &axis.ScaleStep),
                                    {"LabelStep", &axis.LabelStep},
                                    {"VerGridStep", &axis.VerGridStep}}) {
        if (open.contains(kHorAxis + key)) {
            *step = ReadableStep(labels);
        }
    }
}

double Curves::Largest() const {
    double largest = -HUGE_VAL;
    for (const std::vector<double>& values : m_data.Values) {
        for (const double value : values) {
            largest = std::max(largest, value);
        }
    }
    return IsCurveNull(largest) ? -HUGE_VAL : largest;
}

void Curves::Check(const CBasicCurve& chart, std::vector<Diagnostic>& diagnostics) const {
    diagnostics = PlotSizeFaults(kPlot, m_prop.Plot.PlotWidth, m_prop.Plot.PlotHeight);
    const std::vector<std::string>& names = m_prop.Plot.CurveName;
    if (!m_data.Origin.File.empty() && AreOthers(names, m_data.CurveNames)) {
        diagnostics.push_back(OtherNames(kNamesPlace));
    }
    CheckRange(chart, diagnostics);
    if (m_large && HasMarkers(m_prop.Plot)) {
        diagnostics.push_back(penlode::Warning(
            kPlot + "/CurveDotStyle", "the table has too many rows for a marker each; there are some at the "
                                      "rows through which the line is drawn"));
    }
    if (const std::size_t curves = m_data.Values.size(); m_named != curves) {
        diagnostics.push_back(WrongCount(kNamesPlace, m_named, "name", curves, "one a curve"));
    }
}

/// Calls `look` with each value through which a line runs, its curve and its index there.
template <class Look> void Curves::ForEachValue(const Look& look) const {
    const std::vector<std::int32_t>& nullStyles = m_prop.Plot.NullValueStyle;
    for (std::size_t curve = 0; curve < m_data.Values.size(); ++curve) {
        const bool nullsAreZero =
            curve < nullStyles.size() && nullStyles[curve] != CurveNullValueStyle::Break;
        for (std::size_t i = 0; i < m_data.Values[curve].size(); ++i) {
            const double value = m_data.Values[curve][i];
            const bool isNull = IsCurveNull(value);
            if (!isNull || nullsAreZero) {
                look(isNull ? 0.0 : value, curve, i);
            }
        }
    }
}

std::int32_t Curves::CountSince1970() {
    constexpr std::int64_t kSecond = 1000;
    constexpr std::int64_t kDay = 86400 * kSecond;
    if (!m_data.Origin.Dates) {
        return TimeUnit::Number;
    }
    const auto [first, each] = *m_data.Origin.Dates;
    const bool areDays = first % kDay == 0 && each == kDay;
    const std::int64_t unit = areDays ? kDay : kSecond;
    if (first % unit != 0 || each % unit != 0) {
        return TimeUnit::Number;
    }
    m_counted = {first, each, unit};
    std::vector<Times> since = m_data.Times;
    for (Times& times : since) {
        for (std::int32_t& time : times) {
            const std::int64_t moment = m_counted.Counted(time);
            if (moment < INT32_MIN || moment > INT32_MAX) {
                m_counted = {};
                return TimeUnit::Number;
            }
            time = static_cast<std::int32_t>(moment);
        }
    }
    m_data.Times = std::move(since);
    return areDays ? TimeUnit::Days : TimeUnit::Seconds;
}

ValueRange Curves::FittedRange(const ChartOptions& options) const {
    ValueSpan span;
    ForEachValue([&span](double value, std::size_t, std::size_t) { span.Take(value); });
    return RangeFilledBy(span, m_prop.Plot.LogarithmScale != 0, false, options);
}

void Curves::CheckRange(const CBasicCurve& chart, std::vector<Diagnostic>& diagnostics) const {
    RangeCheck range(chart, m_prop.Plot.LogarithmScale != 0);
    if (m_large) {
        range.SetOutermost();
    }
    ForEachValue([&range](double value, std::size_t curve, std::size_t i) { range.Look(value, curve, i); });
    range.AddTo(diagnostics, [this](std::size_t curve, std::size_t i) {
        Diagnostic at = AtValue(m_data.Origin, i, curve + 1,
                                "data/curves/" + std::to_string(curve) + "/values/" + std::to_string(i));
        const std::string name = NameAt(m_prop.Plot.CurveName, curve);
        at.Text = name.empty() ? "" : " of " + Quoted(name);
        return at;
    });
}

Diagnostic Curves::Emptiness() const {
    return NothingIn(m_data.Origin, "data/curves", "a curve with values");
}

} // namespace millichart::documents
