#include "model/PartEntries.h"

#include "model/CurveTable.h"

#include <utility>

namespace designer {
namespace {

using millichart::ChartContent;
using millichart::ChartPart;
using millichart::PartKind;

template <class Document> const Document* As(const ChartContent& content) {
    return std::get_if<Document>(&content);
}

bool IsSecond(const ChartPart& part) {
    return part.Part == 1;
}

const millichart::HistogramPlotProp* PlotOf(const ChartContent& content, const ChartPart& part) {
    if (const auto* bars = As<millichart::HistogramDocument>(content)) {
        return &bars->Prop.Plot;
    }
    const auto* both = As<millichart::HalfPieHistogramDocument>(content);
    return both != nullptr && IsSecond(part) ? &both->Prop.Histogram.Plot : nullptr;
}

/// Of the slices' record.
const std::vector<std::string>* SliceNamesOf(const ChartContent& content, const ChartPart& part) {
    if (const auto* pie = As<millichart::PieDocument>(content)) {
        return &pie->Prop.Basic.ComponentName;
    }
    if (const auto* half = As<millichart::HalfPieDocument>(content)) {
        return &half->Prop.Basic.ComponentName;
    }
    if (const auto* halves = As<millichart::HalfPieHalfPieDocument>(content)) {
        return &(IsSecond(part) ? halves->Prop.Second : halves->Prop.First).Basic.ComponentName;
    }
    const auto* both = As<millichart::HalfPieHistogramDocument>(content);
    return both != nullptr && !IsSecond(part) ? &both->Prop.HalfPie.Basic.ComponentName : nullptr;
}

/// The text and the flag of a caption, constant where the document is.
template <class Document> auto CaptionIn(Document& document, const ChartPart& part) {
    std::pair<decltype(&document.Options.Title.Caption), decltype(&document.Options.Title.ShowCaption)>
        found{};
    const bool isOfAxis = part.Kind == PartKind::VerCaption || part.Kind == PartKind::HorCaption;
    if (part.Kind != PartKind::Caption && !isOfAxis) {
        return found;
    }
    std::visit(
        [&](auto& content) {
            if constexpr (requires { content.Prop.VerAxis; }) {
                auto& prop = content.Prop;
                if (part.Kind == PartKind::Caption) {
                    found = {&prop.Caption.Caption, &prop.Caption.ShowCaption};
                } else if (part.Kind == PartKind::VerCaption) {
                    found = {&prop.VerAxis.VerCaption, &prop.VerAxis.ShowVerCaption};
                } else {
                    found = {&prop.HorAxis.HorCaption, &prop.HorAxis.ShowHorCaption};
                }
            } else if (constexpr bool hasTwo = requires { content.Prop.Second; }; !isOfAxis) {
                auto& title =
                    hasTwo && IsSecond(part) ? document.Options.SecondTitle : document.Options.Title;
                found = {&title.Caption, &title.ShowCaption};
            }
        },
        document.Content);
    return found;
}

} // namespace

std::size_t TableOf(const ChartContent& content, const ChartPart& part) {
    const bool hasTwo = As<millichart::HalfPieHalfPieDocument>(content) != nullptr ||
                        As<millichart::HalfPieHistogramDocument>(content) != nullptr;
    return hasTwo && IsSecond(part) ? 1 : 0;
}

bool IsOfSlices(const ChartContent& content, const ChartPart& part) {
    return SlicesOf(content, part) != nullptr;
}

bool IsOfLegend(const ChartPart& part) {
    return part.Kind == PartKind::Legend || part.Kind == PartKind::LegendSample ||
           part.Kind == PartKind::LegendName;
}

std::optional<std::size_t> EntryOf(const ChartContent& content, const ChartPart& part) {
    switch (part.Kind) {
    case PartKind::LegendSample:
    case PartKind::LegendName:
        return part.Index;
    case PartKind::Slice:
    case PartKind::SliceLabel:
        return IsOfSlices(content, part) ? std::optional(part.Index) : std::nullopt;
    case PartKind::Bar:
    case PartKind::BarLabel:
        return BarsOf(content, part) != nullptr ? std::optional(part.Component) : std::nullopt;
    case PartKind::Curve:
    case PartKind::CurvePoint:
        return part.Index;
    default:
        return std::nullopt;
    }
}

millichart::LegendProp* DockedLegendOf(ChartContent& content, const ChartPart& part) {
    if (auto* bars = std::get_if<millichart::HistogramDocument>(&content)) {
        return &bars->Prop.Legend;
    }
    if (auto* curves = std::get_if<millichart::CurveDocument>(&content)) {
        return &curves->Prop.Legend;
    }
    auto* both = std::get_if<millichart::HalfPieHistogramDocument>(&content);
    return both != nullptr && IsSecond(part) ? &both->Prop.Histogram.Legend : nullptr;
}

const millichart::BarData* BarsOf(const ChartContent& content, const ChartPart& part) {
    if (const auto* bars = As<millichart::HistogramDocument>(content)) {
        return &bars->Data;
    }
    const auto* both = As<millichart::HalfPieHistogramDocument>(content);
    return both != nullptr && IsSecond(part) ? &both->Bars : nullptr;
}

const millichart::SliceData* SlicesOf(const ChartContent& content, const ChartPart& part) {
    if (const auto* pie = As<millichart::PieDocument>(content)) {
        return &pie->Data;
    }
    if (const auto* half = As<millichart::HalfPieDocument>(content)) {
        return &half->Data;
    }
    if (const auto* halves = As<millichart::HalfPieHalfPieDocument>(content)) {
        return IsSecond(part) ? &halves->Second : &halves->First;
    }
    const auto* both = As<millichart::HalfPieHistogramDocument>(content);
    return both != nullptr && !IsSecond(part) ? &both->Slices : nullptr;
}

std::vector<std::string> NamesOf(const ChartContent& content, const ChartPart& part) {
    if (const auto* curves = As<millichart::CurveDocument>(content)) {
        return ShownNames(curves->Prop.Plot.CurveName, curves->Data.CurveNames);
    }
    if (const millichart::BarData* bars = BarsOf(content, part)) {
        return ShownNames(PlotOf(content, part)->ComponentName, bars->ComponentNames);
    }
    if (const millichart::SliceData* slices = SlicesOf(content, part)) {
        return ShownNames(*SliceNamesOf(content, part), slices->Names);
    }
    return {};
}

WrittenText CaptionOf(millichart::ChartDocument& document, const ChartPart& part) {
    const auto [text, isShown] = CaptionIn(document, part);
    return {text, isShown};
}

const std::string* CaptionTextOf(const millichart::ChartDocument& document, const ChartPart& part) {
    return CaptionIn(document, part).first;
}

} // namespace designer
