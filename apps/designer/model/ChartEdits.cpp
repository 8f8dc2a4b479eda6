// How parts are moved. What is written and coloured: PartTexts.cpp, PartColors.cpp.
#include "model/ChartEdits.h"

#include "model/PartEntries.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>

namespace designer {
namespace {

using millichart::ChartDocument;
using millichart::ChartPart;
using millichart::LaidOutChart;
using millichart::PartKind;
using penlode::PointF;
using penlode::RectF;

/// What a chart gives and takes through its child operations.
template <class Entry> struct Children {
    std::vector<Entry> Labels;
    std::vector<Entry> Legend;
};

template <class Chart>
concept HasMovableParts = requires(const Chart& chart, RectF& pie, std::vector<RectF>& list) {
    chart.GetChildPosition(pie, list, list);
};

/// Calls `use` with the chart if it is of a kind with parts that can be moved freely.
template <class Charts, class Use> void WithMovableChart(Charts& charts, const Use& use) {
    std::visit(
        [&use](auto& chart) {
            if constexpr (HasMovableParts<std::remove_reference_t<decltype(chart)>>) {
                use(chart);
            }
        },
        charts);
}

template <class Chart> Children<RectF> PlacesOf(const Chart& chart) {
    Children<RectF> places;
    RectF pie;
    chart.GetChildPosition(pie, places.Labels, places.Legend);
    return places;
}

template <class Chart> Children<PointF> OffsetsOf(const Chart& chart) {
    Children<PointF> offsets;
    chart.GetChildOffset(offsets.Labels, offsets.Legend);
    return offsets;
}

/// Where the first half's labels end in a list of both halves'.
std::optional<std::size_t> SeparatorOf(const std::vector<PointF>& labels) {
    const auto found = std::find(labels.begin(), labels.end(), millichart::kHalvesSeparator);
    return found == labels.end() ? std::nullopt
                                 : std::optional(static_cast<std::size_t>(found - labels.begin()));
}

/// One for each label: a chart has as many as its document says, and moves no others.
template <class Chart> Children<PointF> CompletedOffsets(const Chart& chart, const Children<RectF>& places) {
    Children<PointF> offsets = OffsetsOf(chart);
    if (!SeparatorOf(offsets.Labels)) {
        offsets.Labels.resize(std::max(offsets.Labels.size(), places.Labels.size()));
    } else if (offsets.Labels.size() != places.Labels.size()) {
        offsets.Labels.clear(); // a half without all its names: the lists do not go together
    }
    return offsets;
}

/// The entry of a part in the chart's lists, if it has an extent there and can be moved.
template <class Chart> RectF* EntryIn(const Chart& chart, const ChartPart& part, Children<RectF>& places) {
    const Children<PointF> offsets = CompletedOffsets(chart, places);
    const bool isLegend = IsOfLegend(part);
    std::vector<RectF>& list = isLegend ? places.Legend : places.Labels;
    const std::size_t movable = isLegend ? offsets.Legend.size() : offsets.Labels.size();
    std::size_t index = isLegend ? 0 : part.Index;
    if (const std::optional<std::size_t> separator = SeparatorOf(offsets.Labels); separator && !isLegend) {
        if (part.Part == 0 && index >= *separator) {
            return nullptr;
        }
        index += part.Part == 0 ? 0 : *separator + 1;
    } else if (part.Part != 0) {
        return nullptr;
    }
    if (index >= std::min(list.size(), movable) || !(list[index].Width > 0.0F) ||
        !(list[index].Height > 0.0F)) {
        return nullptr;
    }
    return &list[index];
}

bool MayMove(const ChartPart& part) {
    return part.Kind == PartKind::SliceLabel || IsOfLegend(part);
}

std::optional<RectF> FreePlace(const LaidOutChart& laidOut, const ChartPart& part) {
    std::optional<RectF> place;
    if (MayMove(part)) {
        WithMovableChart(laidOut.Chart, [&](const auto& chart) {
            Children<RectF> places = PlacesOf(chart);
            if (const RectF* entry = EntryIn(chart, part, places)) {
                place = *entry;
            }
        });
    }
    return place;
}

/// An untouched list stays as the document has it, so that a moved legend does not write labels' offsets.
void TakeOffsets(millichart::PieDocument& pie, const Children<PointF>& offsets, bool isLegend) {
    if (!isLegend) {
        pie.LabelOffsets = offsets.Labels;
    } else if (!offsets.Legend.empty()) {
        pie.LegendOffset = offsets.Legend.front();
    }
}

void TakeOffsets(millichart::HalfPieHalfPieDocument& halves, const Children<PointF>& offsets, bool) {
    const std::vector<PointF>& all = offsets.Labels;
    if (const std::optional<std::size_t> separator = SeparatorOf(all)) {
        const auto end = all.begin() + static_cast<std::ptrdiff_t>(*separator);
        halves.FirstLabelOffsets.assign(all.begin(), end);
        halves.SecondLabelOffsets.assign(end + 1, all.end());
    }
}

void TakeOffsets(millichart::HalfPieDocument& half, const Children<PointF>& offsets, bool) {
    half.LabelOffsets = offsets.Labels;
}

void TakeOffsets(millichart::HalfPieHistogramDocument& chart, const Children<PointF>& offsets, bool) {
    chart.LabelOffsets = offsets.Labels;
}

/// Nothing of these moves freely.
template <class Content> void TakeOffsets(Content&, const Children<PointF>&, bool) {}

void MoveFreely(ChartDocument& document, LaidOutChart laidOut, const ChartPart& part, PointF by) {
    WithMovableChart(laidOut.Chart, [&](auto& chart) {
        Children<RectF> places = PlacesOf(chart);
        RectF* const entry = EntryIn(chart, part, places);
        if (entry == nullptr) {
            return;
        }
        const Children<PointF> before = CompletedOffsets(chart, places);
        chart.SetChildOffset(before.Labels, before.Legend);
        *entry = penlode::Translated(*entry, by);
        chart.SetChildPosition({}, places.Labels, places.Legend);
        const Children<PointF> offsets = OffsetsOf(chart);
        std::visit([&](auto& content) { TakeOffsets(content, offsets, IsOfLegend(part)); }, document.Content);
    });
}

/// A bar or line chart's plot and the box of its legend.
struct Dock {
    RectF Plot;
    RectF Legend;
};

template <class Layout> std::optional<Dock> DockIn(const Layout& layout) {
    if (layout.LegendItemRects.empty()) {
        return std::nullopt;
    }
    return Dock{layout.Plot, millichart::LegendBoxOf(layout.LegendItemRects, layout.Legend)};
}

std::optional<Dock> DockOf(const LaidOutChart& laidOut, const ChartPart& part) {
    if (!IsOfLegend(part)) {
        return std::nullopt;
    }
    if (const auto* bars = std::get_if<millichart::CBasicHistogram>(&laidOut.Chart)) {
        return DockIn(bars->GetLayout());
    }
    if (const auto* curves = std::get_if<millichart::CBasicCurve>(&laidOut.Chart)) {
        return DockIn(curves->GetLayout());
    }
    const auto* both = std::get_if<millichart::CBasicHalfPieHistogram>(&laidOut.Chart);
    return both != nullptr && part.Part == 1 ? DockIn(both->GetHistogram().GetLayout()) : std::nullopt;
}

/// First, middle or last third of what lies beside the plot.
std::size_t Third(float along) {
    constexpr float kEdge = 1.0F / 3.0F;
    return along < -kEdge ? 0 : along > kEdge ? 2 : 1;
}

/// The place on the side of the plot to which the point lies.
std::int32_t NearestPlace(const RectF& plot, PointF point) {
    using namespace millichart::LegendPosition;
    constexpr std::array kLeft{LeftTop, LeftCenter, LeftBottom};
    constexpr std::array kRight{RightTop, RightCenter, RightBottom};
    constexpr std::array kTop{TopLeft, TopCenter, TopRight};
    constexpr std::array kBottom{BottomLeft, BottomCenter, BottomRight};
    const PointF off = point - plot.Center();
    const float x = off.X / std::max(plot.Width * 0.5F, 1.0F);
    const float y = off.Y / std::max(plot.Height * 0.5F, 1.0F);
    const float beyondX = (std::abs(x) - 1.0F) * plot.Width;
    const float beyondY = (std::abs(y) - 1.0F) * plot.Height;
    if (beyondX > beyondY) {
        return (x < 0.0F ? kLeft : kRight).at(Third(y));
    }
    return (y < 0.0F ? kTop : kBottom).at(Third(x));
}

void ResetOffset(std::vector<PointF>& offsets, std::size_t index) {
    if (index < offsets.size()) {
        offsets[index] = {};
    }
}

void ResetLabel(millichart::ChartContent& content, const ChartPart& part) {
    std::visit(
        [&part](auto& document) {
            if constexpr (requires { document.FirstLabelOffsets; }) {
                ResetOffset(part.Part == 0 ? document.FirstLabelOffsets : document.SecondLabelOffsets,
                            part.Index);
            } else if constexpr (requires { document.LabelOffsets; }) {
                ResetOffset(document.LabelOffsets, part.Index);
            }
        },
        content);
}

} // namespace

Mobility MobilityOf(const LaidOutChart& chart, const ChartPart& part) {
    if (FreePlace(chart, part)) {
        return Mobility::Free;
    }
    return DockOf(chart, part) ? Mobility::Docked : Mobility::None;
}

std::optional<std::int32_t> DockedPlace(const LaidOutChart& laidOut, const ChartPart& part, PointF by) {
    const std::optional<Dock> dock = DockOf(laidOut, part);
    return dock ? std::optional(NearestPlace(dock->Plot, dock->Legend.Center() + by)) : std::nullopt;
}

void MovePart(ChartDocument& document, const LaidOutChart& chart, const ChartPart& part, PointF by) {
    if (FreePlace(chart, part)) {
        MoveFreely(document, chart, part, by);
    } else if (const std::optional<std::int32_t> place = DockedPlace(chart, part, by)) {
        if (millichart::LegendProp* legend = DockedLegendOf(document.Content, part)) {
            legend->LegendPos = *place;
        }
    }
}

std::optional<RectF> MovedPlace(const ChartDocument& document, const LaidOutChart& chart,
                                const ChartPart& part, PointF by) {
    if (const std::optional<RectF> place = FreePlace(chart, part)) {
        return penlode::Translated(*place, by);
    }
    const std::optional<Dock> now = DockOf(chart, part);
    if (!now) {
        return std::nullopt;
    }
    ChartDocument moved = document;
    MovePart(moved, chart, part, by);
    if (moved.Content == document.Content) {
        return now->Legend;
    }
    const std::optional<Dock> then = DockOf(std::move(moved).LayOut(), part);
    return then ? std::optional(then->Legend) : std::nullopt;
}

void ResetPart(ChartDocument& document, const LaidOutChart& chart, const ChartPart& part) {
    if (part.Kind == PartKind::SliceLabel) {
        ResetLabel(document.Content, part);
    } else if (auto* pie = std::get_if<millichart::PieDocument>(&document.Content);
               pie != nullptr && IsOfLegend(part)) {
        pie->LegendOffset = {};
    } else if (DockOf(chart, part)) {
        if (millichart::LegendProp* legend = DockedLegendOf(document.Content, part)) {
            legend->LegendPos = millichart::LegendProp().LegendPos;
        }
    }
}

} // namespace designer
