#include "model/Looks.h"

#include "documents/Palette.h"
#include "foundation/Palette.h"

#include <algorithm>
#include <type_traits>

namespace designer {
namespace {

using penlode::Color;

/// Puts entries where what they belong to stands now. `fill` completes a list as the chart itself does; new
/// entries are what it adds to those that stay.
template <class T, class Fill> void Follow(std::vector<T>& list, const Origins& origins, const Fill& fill) {
    if (!origins.AreMoved()) {
        if (origins.Count() < origins.Former()) {
            list.resize(std::min(list.size(), origins.Count()));
        }
        return;
    }
    fill(list, origins.Former());
    std::vector<T> kept;
    for (std::size_t i = 0; i < origins.Count(); ++i) {
        if (const std::size_t from = origins.At(i); from < list.size()) {
            kept.push_back(list[from]);
        }
    }
    std::size_t fresh = kept.size();
    fill(kept, origins.Count());
    std::vector<T> now;
    for (std::size_t i = 0; i < origins.Count(); ++i) {
        const std::size_t from = origins.At(i);
        now.push_back(from < list.size() ? list[from] : kept[fresh++]);
    }
    list = std::move(now);
}

/// The same of a list without which the chart takes one value for all.
template <class T, class Fill>
void FollowIfAny(std::vector<T>& list, const Origins& origins, const Fill& fill) {
    if (!list.empty()) {
        Follow(list, origins, fill);
    }
}

/// With the same for each that is missing.
template <class T> auto FillWith(T value) {
    return [value](std::vector<T>& list, std::size_t count) {
        list.resize(std::max(list.size(), count), value);
    };
}

template <class T> void FillLikeTheLast(std::vector<T>& list, std::size_t count) {
    if (!list.empty()) {
        list.resize(std::max(list.size(), count), list.back());
    }
}

template <class Basic> ColorList SlicesOf(Basic& basic, const millichart::SliceData& data) {
    return {&basic.ComponentColor, std::max(data.Values.size(), basic.ComponentName.size())};
}

ColorList BarsOf(millichart::HistogramPlotProp& plot, const millichart::BarData& data) {
    return {&plot.ComponentColor, std::max(data.Components(), plot.ComponentName.size())};
}

std::vector<ColorList> ListsOf(std::monostate&) {
    return {};
}

std::vector<ColorList> ListsOf(millichart::PieDocument& pie) {
    return {SlicesOf(pie.Prop.Basic, pie.Data)};
}

std::vector<ColorList> ListsOf(millichart::HalfPieDocument& half) {
    return {SlicesOf(half.Prop.Basic, half.Data)};
}

std::vector<ColorList> ListsOf(millichart::HalfPieHalfPieDocument& halves) {
    return {SlicesOf(halves.Prop.First.Basic, halves.First),
            SlicesOf(halves.Prop.Second.Basic, halves.Second)};
}

std::vector<ColorList> ListsOf(millichart::HalfPieHistogramDocument& chart) {
    return {SlicesOf(chart.Prop.HalfPie.Basic, chart.Slices), BarsOf(chart.Prop.Histogram.Plot, chart.Bars)};
}

std::vector<ColorList> ListsOf(millichart::HistogramDocument& bars) {
    return {BarsOf(bars.Prop.Plot, bars.Data)};
}

std::vector<ColorList> ListsOf(millichart::CurveDocument& curves) {
    return {{&curves.Prop.Plot.CurveColor,
             std::max(curves.Data.Values.size(), curves.Prop.Plot.CurveName.size())}};
}

bool HasSlices(const millichart::ChartContent& content, std::size_t table) {
    return !std::holds_alternative<millichart::HistogramDocument>(content) &&
           !std::holds_alternative<millichart::CurveDocument>(content) &&
           (table == 0 || !std::holds_alternative<millichart::HalfPieHistogramDocument>(content));
}

/// A marker without a colour has its line's: that of before the move, or the new line's.
void FollowMarkerColors(std::vector<Color>& colors, std::vector<Color> linesBefore,
                        const std::vector<Color>& lines, const Origins& origins) {
    if (colors.empty() || !origins.AreMoved()) {
        return FollowIfAny(colors, origins, FillWith(penlode::kBlack));
    }
    millichart::documents::FillUp(linesBefore, origins.Former());
    std::vector<Color> now = lines;
    for (std::size_t i = 0; i < origins.Count(); ++i) {
        const std::size_t from = origins.At(i);
        now[i] = from == Origins::kNew ? lines[i] : (from < colors.size() ? colors : linesBefore)[from];
    }
    colors = std::move(now);
}

} // namespace

void FollowColors(std::vector<Color>& colors, const Origins& origins) {
    Follow(colors, origins, millichart::documents::FillUp);
}

void FollowOffsets(std::vector<penlode::PointF>& offsets, const Origins& origins) {
    FollowIfAny(offsets, origins, FillWith(penlode::PointF{}));
}

void FollowCurves(millichart::CurvePlotProp& plot, const Origins& origins) {
    const std::vector<Color> before = plot.CurveColor;
    FollowColors(plot.CurveColor, origins);
    FollowMarkerColors(plot.CurveDotColor, before, plot.CurveColor, origins);
    FollowIfAny(plot.CurveWidth, origins, FillLikeTheLast<float>);
    FollowIfAny(plot.CurveDotWidth, origins, FillLikeTheLast<float>);
    FollowIfAny(plot.CurveDashStyle, origins, FillWith(std::int32_t{0}));
    FollowIfAny(plot.CurveDotStyle, origins, millichart::documents::FillUpMarkers);
    FollowIfAny(plot.NullValueStyle, origins, FillWith(millichart::CurveNullValueStyle::Break));
}

bool AreColorsMoved(const millichart::ChartContent& content, const std::vector<DataTable>& tables) {
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const bool ofRows = HasSlices(content, i);
        if ((ofRows ? tables[i].RowOrigins() : tables[i].ColumnOrigins()).AreMoved()) {
            return true;
        }
    }
    return false;
}

std::vector<ColorList> ColorListsOf(millichart::ChartContent& content) {
    return std::visit([](auto& document) { return ListsOf(document); }, content);
}

void OwnColors(millichart::ChartDocument& document) {
    if (document.Options.Palette != millichart::ChartPalette::Safe) {
        return;
    }
    for (const ColorList& list : ColorListsOf(document.Content)) {
        std::vector<Color> colors;
        for (const millichart::Fill& fill : millichart::FillsOf(document.Options, *list.Colors, list.Count)) {
            colors.push_back(fill.Color);
        }
        *list.Colors = std::move(colors);
    }
    document.Options.Palette = millichart::ChartPalette::Record;
}

} // namespace designer
