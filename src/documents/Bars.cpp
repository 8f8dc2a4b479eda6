#include "documents/Bars.h"

#include "documents/Fields.h"
#include "documents/Palette.h"
#include "documents/ValueRange.h"
#include "documents/doubts/BarWording.h"
#include "documents/tables/TableKeys.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;
using Diagnostics = std::vector<Diagnostic>;

constexpr const char* kGroups = "groups";
constexpr const char* kGap = "/GroupDistane";
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

BarData BarsOf(const Table& table) {
    BarData data{table.Names, table.Heading, {}, table.Origin};
    data.Values.resize(data.GroupNames.size());
    for (std::size_t group = 0; group < data.Values.size(); ++group) {
        for (const std::vector<double>& column : table.Columns) {
            data.Values[group].push_back(column[group]);
        }
        TrimGaps(data.Values[group]);
    }
    return data;
}

} // namespace

void Bars::Load(ChartStream& stream, const DataSource& source) {
    m_data = {};
    const std::optional<Table> table =
        LoadList(stream, source, {kGroups, kGroupsForm, m_csvKey, kBarTable}, m_data.GroupNames, [&] {
            m_data.Values.push_back(stream.LoadNumbersAndGaps("values"));
            TrimGaps(m_data.Values.back());
        });
    stream.Pop();
    if (table) {
        m_data = BarsOf(*table);
    }
}

void Bars::Save(SavingStream& stream) const {
    stream.Push("data", -1);
    stream.ReplaceTable(TableKeys(m_csvKey), {kGroups, kTableNames});
    stream.Note(kTableNames, m_data.ComponentNames);
    stream.Groups(kGroups, m_data.Values.size(), m_data.GroupNames,
                  [&](std::size_t group) { stream.Numbers("values", m_data.Values[group]); });
    stream.Pop();
}

/// In a stack nothing is as good as 0.
void Bars::Complete(const LayoutTask& task) {
    if (task.AreDataChanged) {
        m_data.Origin = {};
    }
    m_named = CompleteNames(m_plot.ComponentName, m_data.ComponentNames, m_data.Components(),
                            task.Open.contains(m_record + kNames));
    if (task.Open.contains(m_record + kColors)) {
        m_plot.ComponentColor.clear();
    }
    FillUp(m_plot.ComponentColor, m_plot.ComponentName.size());
    if (task.Open.contains(m_record + kGap) && !m_data.Values.empty()) {
        const float slot = m_plot.PlotWidth / static_cast<float>(m_data.Values.size());
        m_plot.GroupDistane = std::min(m_plot.GroupDistane, slot * kUsualGap);
    }
    for (std::vector<double>& group : m_data.Values) {
        std::replace_if(
            group.begin(), group.end(),
            [this](double value) { return m_plot.Juxtaposition == 0 && std::isnan(value); }, 0.0);
    }
}

/// Calls `look` with the value at which each bar ends, its group and its component.
template <class Look> void Bars::ForEachHeight(const Look& look) const {
    for (std::size_t group = 0; group < m_data.Values.size(); ++group) {
        double height = 0.0;
        for (std::size_t i = 0; i < m_data.Values[group].size(); ++i) {
            height = m_plot.Juxtaposition == 0 ? height + m_data.Values[group][i] : m_data.Values[group][i];
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

ValueRange Bars::FittedRange(const ChartOptions& options) const {
    return RangeFilledBy(BarSpanOf(m_data.Values, m_plot.Juxtaposition == 0, options),
                         m_plot.LogarithmScale != 0, true, options);
}

void Bars::Check(const CBasicHistogram& chart, bool mayBeSet, Diagnostics& diagnostics) const {
    const std::size_t components = m_data.Components();
    if (AreOthers(m_plot.ComponentName, m_data.ComponentNames)) {
        diagnostics.push_back(OtherNames(m_record + kNames));
    }
    if (components == 0) {
        diagnostics.push_back(Emptiness());
        diagnostics.back().Severity = penlode::Severity::Warning;
    }
    if (m_named != components) {
        diagnostics.push_back(
            WrongCount(m_record + kNames, m_named, "name", components, "one a value of a group"));
    }
    const Diagnostics faults = PlotSizeFaults(m_record, m_plot.PlotWidth, m_plot.PlotHeight);
    diagnostics.insert(diagnostics.end(), faults.begin(), faults.end());
    if (components > 0 && faults.empty()) {
        CheckWidths(chart.GetLayout(), diagnostics);
    }
    CheckRange(chart, mayBeSet, diagnostics);
}

void Bars::CheckWidths(const HistogramLayout& layout, Diagnostics& diagnostics) const {
    constexpr float kMinBarWidth = 0.1F;
    if (layout.GroupGap < 0.0F) {
        const char* const key = m_plot.GroupDistane < 0.0F ? kGap : "/PlotWidth";
        diagnostics.push_back(penlode::Warning(m_record + key, "the bars of neighbouring groups overlap"));
    }
    if (!m_plot.ComponentName.empty() && layout.ComponentWidth < kMinBarWidth) {
        diagnostics.push_back(penlode::Warning(
            m_record + "/PlotWidth", "each bar is only " + NumberText(layout.ComponentWidth) + " mm wide"));
    }
}

Diagnostic Bars::Emptiness() const {
    return NothingIn(m_data.Origin, "data/groups", "a group with values");
}

void Bars::CheckRange(const CBasicHistogram& chart, bool mayBeSet, Diagnostics& diagnostics) const {
    constexpr double kVisible = 0.01;
    const bool isLogarithmic = m_plot.LogarithmScale != 0;
    RangeCheck range(chart, isLogarithmic);
    const bool isStack = m_plot.Juxtaposition == 0;
    ForEachHeight([&](double height, std::size_t group, std::size_t component) {
        const bool isNothing = std::isnan(height) || (isStack && isLogarithmic && height == 0.0);
        if (!isNothing) {
            range.Look(height, group, component);
        }
    });
    range.AddTo(diagnostics, [&](std::size_t group, std::size_t component) {
        Diagnostic at = AtBar(m_data.Origin, group, component);
        at.Text = (isStack ? ", the sum up to the value" : "") +
                  BarNamed(NameAt(m_plot.ComponentName, component), NameAt(m_data.GroupNames, group)) +
                  (isStack ? "," : "");
        return at;
    });
    const double part = range.PartOf(Largest());
    if (mayBeSet && !isLogarithmic && Largest() > 0.0 && part > 0.0 && part < kVisible) {
        diagnostics.push_back(
            penlode::Warning("range", "the largest bar takes less than 1 % of " + range.Axis() +
                                          "; \"fit\" here, or NaturalValueRange, sets another"));
    }
}

} // namespace millichart::documents
