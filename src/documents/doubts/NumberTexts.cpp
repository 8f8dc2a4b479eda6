#include "documents/doubts/NumberTexts.h"

#include "documents/Fields.h"
#include "documents/ValueRange.h"
#include "documents/doubts/BarWording.h"
#include "foundation/NumberFormat.h"
#include "foundation/NumberText.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace millichart::documents {
namespace {

/// By so much of its step may a tick lie beside its label.
constexpr double kStepSlack = 0.02;
/// And by so much of itself a value beside its text: a bar's, which has all digits before the point, and a
/// slice's, whose label is an overview.
constexpr double kBarSlack = 0.02;
constexpr double kSliceSlack = 0.05;

/// Ticks are found by adding steps, whose last digits are rounding's.
constexpr int kTickDigits = 10;

/// What a tick's label would say without what the record puts round it.
std::string Bare(std::string text, const TextProperty& property) {
    if (!property.Prefix.empty() && text.starts_with(property.Prefix)) {
        text.erase(0, property.Prefix.size());
    }
    if (!property.Postfix.empty() && text.ends_with(property.Postfix)) {
        text.erase(text.size() - property.Postfix.size());
    }
    return text;
}

/// A value axis as its ticks go: by steps, or by factors.
struct TickWalk {
    double Tick = 0.0;
    double Step = 0.0;
    bool IsLogarithmic = false;

    void Advance() { Tick = IsLogarithmic ? Tick * 10.0 : Tick + Step; }

    double Slack() const { return kStepSlack * (IsLogarithmic ? Tick : Step); }
};

template <class Chart> TickWalk WalkOf(const Chart& chart, bool isLogarithmic) {
    TickWalk walk{0.0, 0.0, isLogarithmic};
    double unused = 0.0;
    if (isLogarithmic) {
        chart.GetLogarithmValueRange(walk.Tick, unused);
    } else {
        chart.GetNaturalValueRange(walk.Tick, unused, walk.Step, unused);
    }
    return walk;
}

void AddLabelDoubts(TickWalk walk, const VerAxisProp& prop, const CartesianLayout& layout,
                    Diagnostics& diagnostics) {
    std::size_t wrong = 0;
    std::string first;
    for (const std::string& label : layout.VerLabelTexts) {
        double shown = 0.0;
        const std::string text = Bare(label, prop.VerAxisLabelTextProperty);
        if (ParseNumber(text, shown) && std::abs(shown - walk.Tick) > walk.Slack() && wrong++ == 0) {
            first =
                penlode::Digits(walk.Tick, std::chars_format::general, kTickDigits) + " as " + Quoted(text);
        }
        walk.Advance();
    }
    if (wrong > 0) {
        diagnostics.push_back(penlode::Warning(
            "range", Counted(wrong, "label") + " of the value axis " + (wrong == 1 ? "does" : "do") +
                         " not say where " + (wrong == 1 ? "its tick is, " : "their ticks are, ") +
                         ToFirst(wrong) + first + "; give " +
                         (walk.IsLogarithmic ? "a range that begins at a power of ten"
                                             : "a range with whole steps, or the values in a smaller unit") +
                         ", or set options/Numbers to \"Exact\""));
    }
}

template <class Chart>
void AddLabelDoubtsOf(const Chart& chart, const VerAxisProp& prop, bool isLogarithmic,
                      Diagnostics& diagnostics) {
    const bool areExact = chart.GetOptions().Numbers == NumberStyle::Exact;
    if (!areExact && prop.ShowVerAxis != 0 && prop.ShowVerAxisLabel != 0) {
        AddLabelDoubts(WalkOf(chart, isLogarithmic), prop, chart.GetLayout(), diagnostics);
    }
}

/// A value as the chart writes it, but for what stands between its thousands.
std::string Written(double value, ChartOptions options, int classicalDecimals) {
    options.Thousands = ThousandsStyle::None;
    return NumberFormat(options).ValueText(value, classicalDecimals);
}

bool IsFalse(double value, const std::string& text, double slack) {
    double shown = 0.0;
    return std::isfinite(value) && ParseNumber(text, shown) &&
           std::abs(shown - value) > slack * std::abs(value);
}

} // namespace

void AddAxisLabelDoubts(const CBasicHistogram& chart, Diagnostics& diagnostics) {
    const HistogramProp& prop = chart.GetHistogramProp();
    AddLabelDoubtsOf(chart, prop.VerAxis, prop.Plot.LogarithmScale != 0, diagnostics);
}

void AddAxisLabelDoubts(const CBasicCurve& chart, Diagnostics& diagnostics) {
    const CurveProp& prop = chart.GetCurveProp();
    AddLabelDoubtsOf(chart, prop.VerAxis, prop.Plot.LogarithmScale != 0, diagnostics);
}

void AddBarValueDoubts(const CBasicHistogram& chart, const TableOrigin& origin, Diagnostics& diagnostics) {
    if (chart.GetHistogramProp().Plot.ShowComponentValue == 0) {
        return;
    }
    const auto& drawn = chart.GetLayout().ComponentRects;
    const FoundBars rounded = FindBars(chart, [&](const Bar& bar) {
        return bar.Group < drawn.size() && bar.Component < drawn[bar.Group].size() &&
               IsFalse(bar.Value, Written(bar.Value, chart.GetOptions(), 0), kBarSlack);
    });
    const char* const advice = chart.GetOptions().Numbers == NumberStyle::Exact
                                   ? "a greater options/MaxDecimals shows more"
                                   : "give the values in a smaller unit, set options/Numbers to \"Exact\" or "
                                     "ShowComponentValue to 0";
    if (rounded.Count > 0) {
        diagnostics.push_back(AtFirst(
            rounded, origin,
            CountedAre(rounded.Count, "value") + " written with too few decimals, " + ToFirst(rounded.Count) +
                NumberText(rounded.First.Value) + BarNamed(chart, rounded.First) + " as \"" +
                Written(rounded.First.Value, chart.GetOptions(), 0) + "\"; " + advice));
    }
}

void AddSliceValueDoubts(const CSlicedCircle& circle, const PieLabelProp& label,
                         const std::vector<std::string>& names, const std::string& place,
                         Diagnostics& diagnostics) {
    const std::vector<double>& values = circle.GetComponentValue();
    const double total = std::accumulate(values.begin(), values.end(), 0.0);
    std::size_t lost = 0;
    std::string first;
    for (std::size_t i = 0; i < values.size() && i < circle.GetLayout().LabelTexts.size(); ++i) {
        const std::string value = Written(values[i], circle.GetOptions(), 1);
        const std::string percent = NumberFormat(circle.GetOptions()).PercentText(values[i] / total * 100.0);
        const bool isFalse = label.ShowValueLabel == 1 && IsFalse(values[i], value, kSliceSlack);
        const bool isNone = label.ShowPercentLabel == 1 && values[i] > 0.0 && percent == "0.0%";
        if ((isFalse || isNone) && lost++ == 0) {
            const std::string name = NameAt(names, i);
            first = NumberText(values[i]) + (name.empty() ? "" : " of " + Quoted(name)) + " as \"" +
                    (isFalse ? value : percent) + '"';
        }
    }
    if (lost > 0) {
        diagnostics.push_back(penlode::Warning(
            place, CountedAre(lost, "value") + " too small for the decimals of the labels, " + ToFirst(lost) +
                       first + "; join small slices, give the values in a smaller unit, or set " +
                       (circle.GetOptions().Numbers == NumberStyle::Exact ? "a greater options/MaxDecimals"
                                                                          : "options/Numbers to \"Exact\"")));
    }
}

} // namespace millichart::documents
