#include "kinds/Bars.h"

#include "documents/Fields.h"
#include "kinds/CartesianLayoutToJson.h"
#include "kinds/Palette.h"
#include "kinds/PlotSize.h"
#include "kinds/ValueRange.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace cli {
namespace {

constexpr const char* kNames = "/ComponentName";
constexpr const char* kColors = "/ComponentColor";

/// The depth is a part of a bar's width, which is the group's, shared by the names.
bool LacksWidth(const millichart::HistogramPlotProp& plot) {
    return plot.ComponentName.empty() && plot.PieStyle != millichart::BarStyle::Flat;
}

} // namespace

void Bars::AllowShortForms(ChartStream& stream) {
    stream.SetDefaultList("ComponentColor", PaletteTexts());
}

Bars::Bars(const ChartStream& stream, HistogramData data, millichart::HistogramPlotProp& plot,
           std::string place)
    : m_place(std::move(place)), m_data(std::move(data)), m_components(m_data.Components()),
      m_isStacked(plot.Juxtaposition == 0) {
    TakeNames(plot.ComponentName, stream.TookDefault(m_place + kNames));
    if (stream.TookDefault(m_place + kColors)) {
        plot.ComponentColor = PaletteColors(plot.ComponentName.size());
    }
    if (m_isStacked) {
        CloseGaps();
    }
}

/// The document's own names stand, unless the user put other data in its place. Without any, bars are drawn
/// and have none.
void Bars::TakeNames(std::vector<std::string>& names, bool areMissing) {
    const std::vector<std::string>& headed = m_data.ComponentNames;
    if (!headed.empty() && (areMissing || names.empty() || m_data.NamesGoFirst)) {
        names = headed;
    } else if (areMissing) {
        names.assign(m_components, "");
    } else if (!headed.empty() && headed != names) {
        m_doubts.push_back(OtherNames(m_place + kNames));
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

std::vector<Message> Bars::Doubts(const millichart::CBasicHistogram& chart) const {
    std::vector<Message> doubts = m_doubts;
    if (m_components == 0) {
        doubts.push_back(Emptiness());
        doubts.back().Weight = Severity::Warning;
    }
    const millichart::HistogramPlotProp& plot = chart.GetHistogramProp().Plot;
    if (const std::size_t names = plot.ComponentName.size(); names != m_components && !LacksWidth(plot)) {
        doubts.push_back({"", Severity::Warning, 0, m_place + kNames, Counted(names, "name"),
                          std::to_string(m_components) + ", one a value of a group"});
    }
    if (const std::size_t colors = plot.ComponentColor.size(); colors < plot.ComponentName.size()) {
        doubts.push_back({"", Severity::Warning, 0, m_place + kColors, Counted(colors, "colour"),
                          std::to_string(plot.ComponentName.size()) + ", one a name"});
    }
    for (const std::vector<Message>& more : {DoubtSizes(chart), ValuesOutside(chart)}) {
        doubts.insert(doubts.end(), more.begin(), more.end());
    }
    return doubts;
}

std::vector<Message> Bars::DoubtSizes(const millichart::CBasicHistogram& chart) const {
    constexpr float kMinBarWidth = 0.1F;
    const millichart::HistogramPlotProp& plot = chart.GetHistogramProp().Plot;
    const millichart::HistogramLayout& layout = chart.GetLayout();
    std::vector<Message> doubts = PlotSizeFaults(m_place, plot.PlotWidth, plot.PlotHeight);
    if (m_components > 0 && LacksWidth(plot)) {
        doubts.push_back({"", Severity::Error, 0, m_place + kNames, "no names",
                          std::to_string(m_components) + ", without which bars in 3D have no width"});
    }
    if (m_components == 0 || !doubts.empty()) {
        return doubts;
    }
    if (layout.GroupGap < 0.0F) {
        const char* const key = plot.GroupDistane < 0.0F ? "/GroupDistane" : "/PlotWidth";
        doubts.push_back(
            At({"", 0, m_place + key}, Severity::Warning, "the bars of neighbouring groups overlap"));
    }
    if (layout.ComponentWidth < kMinBarWidth) {
        doubts.push_back(At({"", 0, m_place + "/PlotWidth"}, Severity::Warning,
                            "each bar is only " + NumberText(layout.ComponentWidth) + " mm wide"));
    }
    return doubts;
}

std::vector<Message> Bars::Invisibility(const millichart::CBasicHistogram& chart) const {
    constexpr double kVisible = 0.01;
    const double largest = Largest();
    const RangeDoubts range = RangeDoubts::Of(chart, false);
    const double part = range.PartOf(largest);
    if (largest <= 0.0 || part <= 0.0 || part >= kVisible ||
        chart.GetHistogramProp().Plot.LogarithmScale != 0) {
        return {};
    }
    return {
        At({"", 0, "range"}, Severity::Warning,
           "the largest bar takes less than 1 % of " + range.Axis() + "; NaturalValueRange sets another")};
}

Message Bars::Emptiness() const {
    return {m_data.File,       Severity::Error,      0, m_data.File.empty() ? "data/groups" : "",
            "nothing to draw", "a group with values"};
}

std::vector<Message> Bars::ValuesOutside(const millichart::CBasicHistogram& chart) const {
    RangeDoubts doubts = RangeDoubts::Of(chart, chart.GetHistogramProp().Plot.LogarithmScale != 0);
    ForEachHeight([&](double height, std::size_t group, std::size_t component) {
        doubts.Look(height, [&] { return m_data.PlaceOf(group, component); });
    });
    return doubts.Doubts();
}

Json HistogramLayoutToJson(const millichart::HistogramLayout& layout) {
    Json json = CartesianLayoutToJson(layout);
    json["groupNameRects"] = ListToJson(layout.GroupNameRects);
    json["componentWidth"] = ToJson(static_cast<double>(layout.ComponentWidth));
    json["groupGap"] = ToJson(static_cast<double>(layout.GroupGap));
    Json groups = Json::array();
    for (const std::vector<penlode::RectF>& bars : layout.ComponentRects) {
        groups.push_back(ListToJson(bars));
    }
    json["componentRects"] = std::move(groups);
    return json;
}

} // namespace cli
