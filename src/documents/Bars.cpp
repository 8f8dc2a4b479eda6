#include "documents/Bars.h"

#include "documents/Fields.h"
#include "documents/Palette.h"
#include "documents/ValueRange.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;
using Diagnostics = std::vector<Diagnostic>;

constexpr const char* kNames = "/ComponentName";
constexpr const char* kColors = "/ComponentColor";
constexpr const char* kGroups = "groups";
constexpr const char* kTableNames = "names of the table's components";
constexpr const char* kGroupsForm = "a list of groups, each with a name and values";

constexpr TableForm kBarTable{.WidthForm = "as many as in the heading",
                              .HeadingForm =
                                  "a heading: a cell for the group names and the components' names",
                              .HeadingNames = "the components' names",
                              .Gap = std::numeric_limits<double>::quiet_NaN(),
                              .RowsForm = "a heading with the components' names, and a row a group"};

/// A gap at a group's end is a value that is not there.
void TrimGaps(std::vector<double>& values) {
    while (!values.empty() && std::isnan(values.back())) {
        values.pop_back();
    }
}

BarData BarsOf(Table table) {
    BarData data{std::move(table.Names),
                 std::move(table.Heading),
                 {},
                 {std::move(table.File), std::move(table.Lines)}};
    data.Values.resize(data.GroupNames.size());
    for (std::size_t group = 0; group < data.Values.size(); ++group) {
        for (const std::vector<double>& column : table.Columns) {
            data.Values[group].push_back(column[group]);
        }
        TrimGaps(data.Values[group]);
    }
    return data;
}

void LoadGroups(ChartStream& stream, BarData& data) {
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

/// The depth is a part of a bar's width, which is the group's, shared by the names.
bool LacksWidth(const HistogramPlotProp& plot) {
    return plot.ComponentName.empty() && plot.PieStyle != BarStyle::Flat;
}

} // namespace

BarData LoadBars(ChartStream& stream, const DataSource& source, const char* csvKey) {
    BarData data;
    const bool isMissing = !stream.Has("data");
    const bool isGroup = stream.Push("data", -1);
    std::optional<Table> table = LoadTable(stream, kGroups, source, kBarTable, csvKey);
    if (stream.Has(kGroups)) {
        LoadGroups(stream, data);
    } else if (!table && !stream.Has(csvKey) && (isGroup || isMissing)) {
        source.Diagnostics->push_back(penlode::Error(
            "data/groups", "no such key", std::string(kGroupsForm) + ", or " + csvKey + " with a file"));
    }
    stream.Pop();
    return table ? BarsOf(*std::move(table)) : data;
}

void SaveBars(SavingStream& stream, const BarData& data, const char* csvKey) {
    stream.Push("data", -1);
    stream.ReplaceTable(csvKey, {kGroups, kTableNames});
    stream.Note(kTableNames, data.ComponentNames);
    stream.Groups(kGroups, data.Values.size());
    for (std::size_t i = 0; i < data.Values.size(); ++i) {
        stream.Push(kGroups, static_cast<int>(i));
        if (i < data.GroupNames.size()) {
            stream.Text("name", data.GroupNames[i]);
        } else {
            stream.Remove("name");
        }
        stream.Numbers("values", data.Values[i]);
        stream.Pop();
    }
    stream.Pop();
}

Bars::Bars(std::string place, BarData& data, HistogramPlotProp& plot, const OpenPlaces& open)
    : m_place(std::move(place)), m_data(data), m_components(data.Components()),
      m_isStacked(plot.Juxtaposition == 0) {
    const bool isOther =
        CompleteNames(plot.ComponentName, data.ComponentNames, m_components, open.contains(m_place + kNames));
    if (isOther) {
        m_ofCompletion.push_back(OtherNames(m_place + kNames));
    }
    if (open.contains(m_place + kColors)) {
        plot.ComponentColor = PaletteColors(plot.ComponentName.size());
    }
    if (m_isStacked) {
        CloseGaps();
    }
}

/// In a stack nothing is as good as 0.
void Bars::CloseGaps() {
    for (std::vector<double>& group : m_data.Values) {
        std::replace_if(
            group.begin(), group.end(), [](double value) { return std::isnan(value); }, 0.0);
    }
}

/// Calls `look` with the value at which each bar ends, its group and its component.
template <class Look> void Bars::ForEachHeight(const Look& look) const {
    for (std::size_t group = 0; group < m_data.Values.size(); ++group) {
        double height = 0.0;
        for (std::size_t i = 0; i < m_data.Values[group].size(); ++i) {
            height = m_isStacked ? height + m_data.Values[group][i] : m_data.Values[group][i];
            look(height, group, i);
        }
    }
}

double Bars::Largest() const {
    double largest = -HUGE_VAL;
    ForEachHeight([&](double height, std::size_t, std::size_t) {
        largest = std::max(largest, std::isfinite(height) ? height : largest);
    });
    return largest;
}

void Bars::Doubt(const CBasicHistogram& chart, Diagnostics& diagnostics) const {
    diagnostics.insert(diagnostics.end(), m_ofCompletion.begin(), m_ofCompletion.end());
    if (m_components == 0) {
        diagnostics.push_back(Emptiness());
        diagnostics.back().Severity = penlode::Severity::Warning;
    }
    const HistogramPlotProp& plot = chart.GetHistogramProp().Plot;
    if (const std::size_t names = plot.ComponentName.size(); names != m_components && !LacksWidth(plot)) {
        diagnostics.push_back(penlode::Warning(m_place + kNames, Counted(names, "name"),
                                               std::to_string(m_components) + ", one a value of a group"));
    }
    if (const std::size_t colors = plot.ComponentColor.size(); colors < plot.ComponentName.size()) {
        diagnostics.push_back(penlode::Warning(m_place + kColors, Counted(colors, "colour"),
                                               std::to_string(plot.ComponentName.size()) + ", one a name"));
    }
    const Diagnostics ofSizes = DoubtSizes(chart);
    diagnostics.insert(diagnostics.end(), ofSizes.begin(), ofSizes.end());
    DoubtRange(chart, diagnostics);
}

Diagnostics Bars::DoubtSizes(const CBasicHistogram& chart) const {
    constexpr float kMinBarWidth = 0.1F;
    const HistogramPlotProp& plot = chart.GetHistogramProp().Plot;
    const HistogramLayout& layout = chart.GetLayout();
    Diagnostics doubts = PlotSizeFaults(m_place, plot.PlotWidth, plot.PlotHeight);
    if (m_components > 0 && LacksWidth(plot)) {
        doubts.push_back(
            penlode::Error(m_place + kNames, "no names",
                           std::to_string(m_components) + ", without which bars in 3D have no width"));
    }
    if (m_components == 0 || !doubts.empty()) {
        return doubts;
    }
    if (layout.GroupGap < 0.0F) {
        const char* const key = plot.GroupDistane < 0.0F ? "/GroupDistane" : "/PlotWidth";
        doubts.push_back(penlode::Warning(m_place + key, "the bars of neighbouring groups overlap"));
    }
    if (layout.ComponentWidth < kMinBarWidth) {
        doubts.push_back(penlode::Warning(
            m_place + "/PlotWidth", "each bar is only " + NumberText(layout.ComponentWidth) + " mm wide"));
    }
    return doubts;
}

void Bars::DoubtVisibility(const CBasicHistogram& chart, Diagnostics& diagnostics) const {
    constexpr double kVisible = 0.01;
    const double largest = Largest();
    const RangeDoubts range(chart, false);
    const double part = range.PartOf(largest);
    if (largest > 0.0 && part > 0.0 && part < kVisible && chart.GetHistogramProp().Plot.LogarithmScale == 0) {
        diagnostics.push_back(penlode::Warning("range", "the largest bar takes less than 1 % of " +
                                                            range.Axis() +
                                                            "; NaturalValueRange sets another"));
    }
}

Diagnostic Bars::Emptiness() const {
    return NothingIn(m_data.Origin, "data/groups", "a group with values");
}

void Bars::DoubtRange(const CBasicHistogram& chart, Diagnostics& diagnostics) const {
    RangeDoubts doubts(chart, chart.GetHistogramProp().Plot.LogarithmScale != 0);
    ForEachHeight([&](double height, std::size_t group, std::size_t component) {
        doubts.Look(height, [&] {
            return AtValue(m_data.Origin, group, component + 1,
                           "data/groups/" + std::to_string(group) + "/values/" + std::to_string(component));
        });
    });
    doubts.AddTo(diagnostics);
}

} // namespace millichart::documents
