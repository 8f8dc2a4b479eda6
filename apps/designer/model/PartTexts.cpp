#include "model/CellTexts.h"
#include "model/ChartEdits.h"
#include "model/DataTable.h"
#include "model/PartEntries.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace designer {
namespace {

using millichart::ChartContent;
using millichart::ChartDocument;
using millichart::ChartPart;
using millichart::LaidOutChart;
using millichart::PartKind;

std::string At(const std::vector<std::string>& names, std::size_t index) {
    return index < names.size() ? ToUtf8(names[index]) : std::string();
}

/// Does the slices' label show their names?
bool LabelsHaveNames(const ChartContent& content, const ChartPart& part) {
    return std::visit(
        [&part](const auto& document) {
            if constexpr (requires { document.Prop.Label; }) {
                return document.Prop.Label.ShowNameLabel != 0;
            } else if constexpr (requires { document.Prop.Second; }) {
                return (part.Part == 0 ? document.Prop.First : document.Prop.Second).Label.ShowNameLabel != 0;
            } else if constexpr (requires { document.Prop.HalfPie; }) {
                return document.Prop.HalfPie.Label.ShowNameLabel != 0;
            } else {
                return false;
            }
        },
        content);
}

bool BarLabelsHaveNames(const ChartContent& content) {
    if (const auto* bars = std::get_if<millichart::HistogramDocument>(&content)) {
        return bars->Prop.Plot.ShowComponentName != 0;
    }
    const auto* both = std::get_if<millichart::HalfPieHistogramDocument>(&content);
    return both != nullptr && both->Prop.Histogram.Plot.ShowComponentName != 0;
}

/// Is it a text that shows the name of a slice, component or curve?
bool ShowsName(const ChartContent& content, const ChartPart& part) {
    return part.Kind == PartKind::LegendName || part.Kind == PartKind::LegendSample ||
           (part.Kind == PartKind::SliceLabel && LabelsHaveNames(content, part)) ||
           (part.Kind == PartKind::BarLabel && BarLabelsHaveNames(content));
}

/// The document's own label below a line chart; null for one that the chart made.
template <class Document> auto* OwnLabel(Document& document, const LaidOutChart& chart, std::size_t index) {
    auto* curves = std::get_if<millichart::CurveDocument>(&document.Content);
    const auto* laidOut = std::get_if<millichart::CBasicCurve>(&chart.Chart);
    const bool isOwn = curves != nullptr && laidOut != nullptr && index < curves->Data.Labels.size() &&
                       laidOut->GetLayout().LabelsBelow == millichart::HorLabels::Spread;
    return isOwn ? &curves->Data.Labels[index] : nullptr;
}

/// Line breaks at its end keep a caption off the labels, and nobody writes them in place.
std::string WithoutBreaks(std::string text) {
    text.erase(text.find_last_not_of("\r\n") + 1);
    return text;
}

std::string BreaksOf(const std::string& text) {
    return text.substr(text.find_last_not_of("\r\n") + 1);
}

void SetCaption(const WrittenText& caption, const std::string& utf8) {
    *caption.Text = ToNarrow(utf8) + (utf8.empty() ? "" : BreaksOf(*caption.Text));
    *caption.IsShown = utf8.empty() ? 0 : 1;
}

/// By the data's table, where names stand in one place or two.
void SetName(ChartDocument& document, const ChartPart& part, const std::string& utf8) {
    std::vector<DataTable> tables = TablesOf(document.Content, document.Options.TimeUnit);
    const std::size_t table = TableOf(document.Content, part);
    if (table >= tables.size()) {
        return;
    }
    if (part.Kind == PartKind::GroupName) {
        tables[table].SetText(part.Index, 0, utf8);
    } else if (const std::optional<std::size_t> entry = EntryOf(document.Content, part)) {
        if (IsOfSlices(document.Content, part)) {
            tables[table].SetText(*entry, 0, utf8);
        } else {
            tables[table].SetHeading(*entry + 1, utf8);
        }
    }
    TakeTables(document.Content, tables);
}

std::string Joined(const std::string& a, const std::string& b) {
    return a + (a.empty() || b.empty() ? "" : " \u00B7 ") + b;
}

PartFacts FactsOfSlice(const ChartContent& content, const ChartPart& part, std::size_t index) {
    const std::vector<double>& values = SlicesOf(content, part)->Values;
    PartFacts facts{At(NamesOf(content, part), index), {}, {}};
    if (index < values.size()) {
        const double total = std::accumulate(values.begin(), values.end(), 0.0);
        facts.Value = NumberCell(values[index]);
        if (total > 0.0 && std::isfinite(total)) {
            facts.Share = penlode::Digits(values[index] / total * 100.0, std::chars_format::fixed, 1) + "%";
        }
    }
    return facts;
}

PartFacts FactsOfBar(const ChartContent& content, const ChartPart& part) {
    const millichart::BarData& bars = *BarsOf(content, part);
    PartFacts facts{
        Joined(At(bars.GroupNames, part.Index), At(NamesOf(content, part), part.Component)), {}, {}};
    if (part.Index < bars.Values.size() && part.Component < bars.Values[part.Index].size()) {
        facts.Value = NumberCell(bars.Values[part.Index][part.Component]);
    }
    return facts;
}

RowHeads HeadsOf(std::int32_t timeUnit) {
    return timeUnit == millichart::TimeUnit::Days      ? RowHeads::Days
           : timeUnit == millichart::TimeUnit::Seconds ? RowHeads::Seconds
                                                       : RowHeads::Times;
}

/// The chart has times in their unit, whatever table they came from.
PartFacts FactsOfPoint(const ChartDocument& document, const LaidOutChart& laidOut, const ChartPart& part) {
    PartFacts facts{At(NamesOf(document.Content, part), part.Index), {}, {}};
    const auto* curves = std::get_if<millichart::CurveDocument>(&document.Content);
    const auto* chart = std::get_if<millichart::CBasicCurve>(&laidOut.Chart);
    if (curves == nullptr || chart == nullptr || part.Index >= chart->GetCurveValue().size() ||
        part.Index >= chart->GetCurveTime().size()) {
        return facts;
    }
    const std::vector<double>& values = chart->GetCurveValue()[part.Index];
    const std::vector<std::int32_t>& times = chart->GetCurveTime()[part.Index];
    if (part.Component >= std::min(values.size(), times.size())) {
        return facts;
    }
    const std::vector<std::string>& labels = curves->Data.Labels;
    const RowHeads heads = HeadsOf(chart->GetOptions().TimeUnit);
    facts.Name = Joined(facts.Name, labels.size() == values.size() && heads == RowHeads::Times
                                        ? At(labels, part.Component)
                                        : TimeCell(times[part.Component], heads));
    const double value = values[part.Component];
    facts.Value = millichart::IsCurveNull(value) ? std::string() : NumberCell(value);
    return facts;
}

/// What stands at a tick, as it is drawn.
std::string TickText(const LaidOutChart& laidOut, const ChartPart& part) {
    const auto* curves = std::get_if<millichart::CBasicCurve>(&laidOut.Chart);
    const auto* bars = std::get_if<millichart::CBasicHistogram>(&laidOut.Chart);
    if (part.Kind == PartKind::VerAxisLabel) {
        return curves != nullptr ? At(curves->GetLayout().VerLabelTexts, part.Index)
               : bars != nullptr ? At(bars->GetLayout().VerLabelTexts, part.Index)
                                 : std::string();
    }
    if (curves == nullptr) {
        return {};
    }
    const bool areSpread = curves->GetLayout().LabelsBelow == millichart::HorLabels::Spread;
    return At(areSpread ? curves->GetHorAxisLabel() : curves->GetLayout().HorLabelTexts, part.Index);
}

/// An axis is called by its caption.
ChartPart CaptionFor(ChartPart part) {
    part.Kind = part.Kind == PartKind::VerAxis   ? PartKind::VerCaption
                : part.Kind == PartKind::HorAxis ? PartKind::HorCaption
                                                 : part.Kind;
    return part;
}

} // namespace

std::optional<std::string> EditableText(const ChartDocument& document, const LaidOutChart& chart,
                                        const ChartPart& part) {
    if (const std::string* caption = CaptionTextOf(document, part)) {
        return WithoutBreaks(ToUtf8(*caption));
    }
    if (part.Kind == PartKind::HorAxisLabel) {
        const std::string* label = OwnLabel(document, chart, part.Index);
        return label != nullptr ? std::optional(ToUtf8(*label)) : std::nullopt;
    }
    if (part.Kind == PartKind::GroupName) {
        const millichart::BarData* bars = BarsOf(document.Content, part);
        return bars != nullptr ? std::optional(At(bars->GroupNames, part.Index)) : std::nullopt;
    }
    const std::optional<std::size_t> entry = EntryOf(document.Content, part);
    return entry && ShowsName(document.Content, part)
               ? std::optional(At(NamesOf(document.Content, part), *entry))
               : std::nullopt;
}

void SetText(ChartDocument& document, const LaidOutChart& chart, const ChartPart& part,
             const std::string& utf8) {
    if (!EditableText(document, chart, part)) {
        return;
    }
    if (const WrittenText caption = CaptionOf(document, part); caption.Text != nullptr) {
        SetCaption(caption, utf8);
    } else if (std::string* label =
                   part.Kind == PartKind::HorAxisLabel ? OwnLabel(document, chart, part.Index) : nullptr) {
        *label = ToNarrow(utf8);
    } else {
        SetName(document, part, utf8);
    }
}

PartFacts FactsOf(const ChartDocument& document, const LaidOutChart& chart, const ChartPart& part) {
    const ChartContent& content = document.Content;
    const std::optional<std::size_t> entry = EntryOf(content, part);
    switch (part.Kind) {
    case PartKind::Bar:
    case PartKind::BarLabel:
        return BarsOf(content, part) != nullptr ? FactsOfBar(content, part) : PartFacts();
    case PartKind::CurvePoint:
        return FactsOfPoint(document, chart, part);
    case PartKind::VerAxisLabel:
    case PartKind::HorAxisLabel:
        return {TickText(chart, part), {}, {}};
    default:
        break;
    }
    if (entry && IsOfSlices(content, part)) {
        return FactsOfSlice(content, part, *entry);
    }
    if (entry) {
        return {At(NamesOf(content, part), *entry), {}, {}};
    }
    return {EditableText(document, chart, CaptionFor(part)).value_or(""), {}, {}};
}

} // namespace designer
