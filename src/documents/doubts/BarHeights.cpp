#include "documents/doubts/BarHeights.h"

#include "documents/Fields.h"
#include "documents/doubts/BarWording.h"

namespace millichart::documents {
namespace {

bool IsNegative(const Bar& bar) {
    return bar.Value < 0.0;
}

/// ", the first is -2 of "Wheat" in "North""
std::string FirstOf(const FoundBars& found, const CBasicHistogram& chart) {
    return ", " + ToFirst(found.Count) + NumberText(found.First.Value) + BarNamed(chart, found.First);
}

void AddStackDoubts(const CBasicHistogram& chart, const TableOrigin& origin, Diagnostics& diagnostics) {
    const FoundBars falls = FindBars(chart, IsNegative);
    if (falls.Count > 0) {
        diagnostics.push_back(AtFirst(
            falls, origin,
            CountedAre(falls.Count, "negative value") + " not drawn in a stack, whose sum falls there" +
                FirstOf(falls, chart) + "; a Juxtaposition of 1 sets the bars side by side"));
    }
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
    const FoundBars negative = FindBars(chart, IsNegative);
    if (min < 0.0 && negative.Count > 0 && !IsSaid(chart.GetHistogramProp().VerAxis, min)) {
        diagnostics.push_back(penlode::Warning(
            "range", "bars stand on " + NumberText(min) +
                         ", where the value axis begins, and not on 0, those of " +
                         Counted(negative.Count, "negative value") + " too" + FirstOf(negative, chart) +
                         "; name " + NumberText(min) + " in VerCaption, or draw a curve"));
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
    const FoundBars zeros = FindBars(chart, [](const Bar& bar) { return bar.Value == 0.0; });
    const FoundBars others =
        FindBars(chart, [](const Bar& bar) { return bar.Value < 0.0 || bar.Value > 0.0; });
    if (zeros.Count > 0 && others.Count == 0 && plot.LogarithmScale == 0) {
        diagnostics.push_back(AtFirst(zeros, origin, "all values are 0, so that no bar has a height"));
    }
}

} // namespace millichart::documents
