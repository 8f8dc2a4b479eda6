#include "documents/doubts/BarHeights.h"

#include "documents/Fields.h"
#include "documents/doubts/BarWording.h"

#include <algorithm>

namespace millichart::documents {
namespace {

/// A bar of a group.
struct Bar {
    std::size_t Group = 0;
    std::size_t Component = 0;
    double Value = 0.0;
};

/// Bars that something is true of.
struct Found {
    std::size_t Count = 0;
    Bar First;

    void Add(const Bar& bar) { First = Count++ == 0 ? bar : First; }
};

template <class Accepts> Found Find(const CBasicHistogram& chart, const Accepts& accepts) {
    Found found;
    const auto& groups = chart.GetComponentValue();
    for (std::size_t group = 0; group < groups.size(); ++group) {
        for (std::size_t i = 0; i < groups[group].size(); ++i) {
            if (const Bar bar{group, i, groups[group][i]}; accepts(bar)) {
                found.Add(bar);
            }
        }
    }
    return found;
}

std::string FirstOf(const Found& found, const CBasicHistogram& chart) {
    return (found.Count == 1 ? "it is " : "the first is ") + NumberText(found.First.Value) +
           BarNamed(chart, found.First.Group, found.First.Component);
}

void Add(const Found& found, const TableOrigin& origin, std::string text, Diagnostics& diagnostics) {
    if (found.Count > 0) {
        diagnostics.push_back(AtBar(origin, found.First.Group, found.First.Component));
        diagnostics.back().Text = std::move(text);
    }
}

void AddStackDoubts(const CBasicHistogram& chart, const TableOrigin& origin, Diagnostics& diagnostics) {
    const Found falls = Find(chart, [](const Bar& bar) { return bar.Value < 0.0; });
    Add(falls, origin,
        "a stack falls at " + Counted(falls.Count, "negative value") + ", " + FirstOf(falls, chart) +
            ", which covers what is below it; set Juxtaposition to 1 for bars side by side",
        diagnostics);
}

/// Does the axis's caption, as "°C, bars from -300", name where they stand?
bool IsSaid(const VerAxisProp& axis, double min) {
    return axis.ShowVerAxis != 0 && axis.ShowVerCaption != 0 &&
           axis.VerCaption.find(NumberText(-min)) != std::string::npos;
}

void AddBaseDoubts(const CBasicHistogram& chart, Diagnostics& diagnostics) {
    double min = 0.0;
    double unused = 0.0;
    chart.GetNaturalValueRange(min, unused, unused, unused);
    const Found negative = Find(chart, [](const Bar& bar) { return bar.Value < 0.0; });
    if (min < 0.0 && negative.Count > 0 && !IsSaid(chart.GetHistogramProp().VerAxis, min)) {
        diagnostics.push_back(
            penlode::Warning("range", "the bars stand on " + NumberText(min) +
                                          ", where the value axis begins, and not on 0, so that those of " +
                                          Counted(negative.Count, "negative value") + " look positive (" +
                                          FirstOf(negative, chart) + "); name " + NumberText(min) +
                                          " in VerCaption, or draw a curve"));
    }
}

} // namespace

void AddBarHeightDoubts(const CBasicHistogram& chart, const TableOrigin& origin, Diagnostics& diagnostics) {
    const HistogramPlotProp& plot = chart.GetHistogramProp().Plot;
    if (plot.Juxtaposition == 0) {
        AddStackDoubts(chart, origin, diagnostics);
    } else if (plot.LogarithmScale == 0) {
        AddBaseDoubts(chart, diagnostics);
    }
    const Found zeros = Find(chart, [](const Bar& bar) { return bar.Value == 0.0; });
    const Found others = Find(chart, [](const Bar& bar) { return bar.Value < 0.0 || bar.Value > 0.0; });
    if (others.Count == 0 && plot.LogarithmScale == 0) {
        Add(zeros, origin, "all values are 0, so that no bar has a height; give those that are to be shown",
            diagnostics);
    }
}

} // namespace millichart::documents
