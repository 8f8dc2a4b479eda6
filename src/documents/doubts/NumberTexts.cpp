#include "documents/doubts/NumberTexts.h"

#include "documents/Fields.h"
#include "documents/ValueRange.h"
#include "documents/doubts/BarWording.h"
#include "foundation/NumberText.h"

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
            first = WithoutTrailingZeros(FixedText(walk.Tick, 6)) + " as " + Quoted(text);
        }
        walk.Advance();
    }
    if (wrong > 0) {
        diagnostics.push_back(penlode::Warning(
            "range", Counted(wrong, "label") + " of the value axis " + (wrong == 1 ? "does" : "do") +
                         " not say where " +
                         (wrong == 1 ? "its tick is: " : "their ticks are, the first is ") + first +
                         "; give " +
                         (walk.IsLogarithmic ? "a range that begins at a power of ten"
                                             : "a range with whole steps, or the values in a smaller unit")));
    }
}

template <class Chart>
void AddLabelDoubtsOf(const Chart& chart, const VerAxisProp& prop, bool isLogarithmic,
                      Diagnostics& diagnostics) {
    if (prop.ShowVerAxis != 0 && prop.ShowVerAxisLabel != 0) {
        AddLabelDoubts(WalkOf(chart, isLogarithmic), prop, chart.GetLayout(), diagnostics);
    }
}

bool IsFalse(double value, const std::string& text, double slack) {
    double shown = 0.0;
    return std::isfinite(value) && ParseNumber(text, shown) &&
           std::abs(shown - value) > slack * std::abs(value);
}

/// Texts of values that are not what they say.
struct FalseTexts {
    std::size_t Count = 0;
    std::size_t First = 0;
    std::string Text; ///< 2.4 as "2"

    void Add(double value, const std::string& text, std::size_t index) {
        if (Count++ == 0) {
            First = index;
            Text = NumberText(value) + " as \"" + text + "\"";
        }
    }
};

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
    FalseTexts rounded;
    std::size_t firstComponent = 0;
    const auto& groups = chart.GetComponentValue();
    for (std::size_t group = 0; group < chart.GetLayout().ComponentRects.size(); ++group) {
        const std::size_t bars =
            std::min(groups[group].size(), chart.GetLayout().ComponentRects[group].size());
        for (std::size_t i = 0; i < bars; ++i) {
            if (const std::string text = FixedText(groups[group][i], 0);
                IsFalse(groups[group][i], text, kBarSlack)) {
                firstComponent = rounded.Count == 0 ? i : firstComponent;
                rounded.Add(groups[group][i], text, group);
            }
        }
    }
    if (rounded.Count > 0) {
        penlode::Diagnostic told = AtBar(origin, rounded.First, firstComponent);
        told.Text = CountedAre(rounded.Count, "value") + " written as whole numbers, the first is " +
                    rounded.Text + BarNamed(chart, rounded.First, firstComponent) +
                    "; give the values in a smaller unit, or set ShowComponentValue to 0";
        diagnostics.push_back(std::move(told));
    }
}

void AddSliceValueDoubts(const CSlicedCircle& circle, const PieLabelProp& label, const std::string& place,
                         Diagnostics& diagnostics) {
    const std::vector<double>& values = circle.GetComponentValue();
    const double total = std::accumulate(values.begin(), values.end(), 0.0);
    FalseTexts rounded;
    for (std::size_t i = 0; i < values.size() && i < circle.GetLayout().LabelTexts.size(); ++i) {
        const double percent = values[i] / total * 100.0;
        if (const std::string text = FixedText(values[i], 1);
            label.ShowValueLabel == 1 && IsFalse(values[i], text, kSliceSlack)) {
            rounded.Add(values[i], text, i);
        } else if (label.ShowPercentLabel == 1 && values[i] > 0.0 && FixedText(percent, 1) == "0.0") {
            rounded.Add(values[i], "0.0%", i);
        }
    }
    if (rounded.Count > 0) {
        diagnostics.push_back(
            penlode::Warning(place + "/values/" + std::to_string(rounded.First),
                             CountedAre(rounded.Count, "slice") +
                                 " too small for the one decimal of the labels, the first is " +
                                 rounded.Text + "; join small slices, or give the values in a smaller unit"));
    }
}

} // namespace millichart::documents
