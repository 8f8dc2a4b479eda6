#include "foundation/Palette.h"
#include "model/ChartEdits.h"
#include "model/Looks.h"
#include "model/PartEntries.h"

#include <algorithm>

namespace designer {
namespace {

using millichart::ChartDocument;
using millichart::ChartPart;
using millichart::LaidOutChart;
using penlode::Color;

using Colors = std::vector<Color>;

std::vector<Colors> RecordColors(const std::monostate&) {
    return {};
}

std::vector<Colors> RecordColors(const millichart::CBasicPie& chart) {
    return {chart.GetPieProp().Basic.ComponentColor};
}

std::vector<Colors> RecordColors(const millichart::CBasicHalfPie& chart) {
    return {chart.GetHalfPieProp().Basic.ComponentColor};
}

std::vector<Colors> RecordColors(const millichart::CBasicHalfPieHalfPie& chart) {
    const millichart::HalfPieHalfPieProp& prop = chart.GetHalfPieHalfPieProp();
    return {prop.First.Basic.ComponentColor, prop.Second.Basic.ComponentColor};
}

std::vector<Colors> RecordColors(const millichart::CBasicHalfPieHistogram& chart) {
    const millichart::HalfPieHistogramProp& prop = chart.GetHalfPieHistogramProp();
    return {prop.HalfPie.Basic.ComponentColor, prop.Histogram.Plot.ComponentColor};
}

std::vector<Colors> RecordColors(const millichart::CBasicHistogram& chart) {
    return {chart.GetHistogramProp().Plot.ComponentColor};
}

std::vector<Colors> RecordColors(const millichart::CBasicCurve& chart) {
    return {chart.GetCurveProp().Plot.CurveColor};
}

/// As they are drawn: completed, or the palette's. A list for each table.
std::vector<Colors> ShownColors(const ChartDocument& document, const LaidOutChart& laidOut) {
    std::vector<Colors> shown =
        std::visit([](const auto& chart) { return RecordColors(chart); }, laidOut.Chart);
    for (Colors& colors : shown) {
        const std::vector<millichart::Fill> fills =
            millichart::FillsOf(document.Options, colors, colors.size());
        std::transform(fills.begin(), fills.end(), colors.begin(),
                       [](const millichart::Fill& fill) { return fill.Color; });
    }
    return shown;
}

/// Markers that have their line's colour keep it.
void SetMarkerColor(millichart::CurvePlotProp& plot, const LaidOutChart& laidOut, std::size_t curve,
                    Color before, Color color) {
    const auto* chart = std::get_if<millichart::CBasicCurve>(&laidOut.Chart);
    if (chart == nullptr || plot.CurveDotColor.empty()) {
        return;
    }
    const Colors& markers = chart->GetCurveProp().Plot.CurveDotColor;
    if (curve < markers.size() && markers[curve] == before) {
        plot.CurveDotColor = markers;
        plot.CurveDotColor[curve] = color;
    }
}

} // namespace

std::optional<Color> ColorOf(const ChartDocument& document, const LaidOutChart& chart,
                             const ChartPart& part) {
    const std::optional<std::size_t> entry = EntryOf(document.Content, part);
    const std::vector<Colors> shown = ShownColors(document, chart);
    const std::size_t table = TableOf(document.Content, part);
    return entry && table < shown.size() && *entry < shown[table].size() ? std::optional(shown[table][*entry])
                                                                         : std::nullopt;
}

void SetColor(ChartDocument& document, const LaidOutChart& chart, const ChartPart& part, Color color) {
    const std::optional<Color> before = ColorOf(document, chart, part);
    if (!before) {
        return;
    }
    const std::size_t table = TableOf(document.Content, part);
    const std::size_t entry = *EntryOf(document.Content, part);
    std::vector<Colors> shown = ShownColors(document, chart);
    shown[table][entry] = color;
    const std::vector<ColorList> lists = ColorListsOf(document.Content);
    const bool hadPalette = millichart::HasPalette(document.Options);
    for (std::size_t i = 0; i < std::min(lists.size(), shown.size()); ++i) {
        if (hadPalette || i == table) {
            *lists[i].Colors = std::move(shown[i]);
        }
    }
    document.Options.Palette = millichart::ChartPalette::Record;
    if (auto* curves = std::get_if<millichart::CurveDocument>(&document.Content)) {
        SetMarkerColor(curves->Prop.Plot, chart, entry, *before, color);
    }
}

} // namespace designer
