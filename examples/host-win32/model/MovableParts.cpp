#include "model/MovableParts.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

using millichart::LaidOutChart;
using penlode::PointF;
using penlode::RectF;

/// A label of one figure is hard to hit: this far beside it still counts, in mm.
constexpr float kReach = 0.7F;

/// What a chart gives and takes through its child operations.
template <class Entry> struct Children {
    std::vector<Entry> Labels;
    std::vector<Entry> Legend;

    std::vector<Entry>& Of(MovablePart::Kind kind) {
        return kind == MovablePart::Kind::Label ? Labels : Legend;
    }
};

using ChildPlaces = Children<RectF>;
using ChildOffsets = Children<PointF>;

template <class Chart>
concept HasMovableParts = requires(const Chart& chart, RectF& pie, std::vector<RectF>& list) {
    chart.GetChildPosition(pie, list, list);
};

/// Calls `use` with the chart if it is of a kind with movable parts.
template <class Charts, class Use> void WithMovableChart(Charts& charts, Use&& use) {
    std::visit(
        [&use](auto& chart) {
            if constexpr (HasMovableParts<std::remove_reference_t<decltype(chart)>>) {
                use(chart);
            }
        },
        charts);
}

template <class Chart> ChildPlaces PlacesOf(const Chart& chart) {
    ChildPlaces places;
    RectF pie;
    chart.GetChildPosition(pie, places.Labels, places.Legend);
    return places;
}

bool HasTwoHalves(const ChildOffsets& offsets) {
    const std::vector<PointF>& labels = offsets.Labels;
    return std::find(labels.begin(), labels.end(), millichart::kHalvesSeparator) != labels.end();
}

template <class Chart> ChildOffsets OffsetsOf(const Chart& chart) {
    ChildOffsets offsets;
    chart.GetChildOffset(offsets.Labels, offsets.Legend);
    return offsets;
}

/// One for each label: a chart has as many as its document says, and moves no others.
template <class Chart> ChildOffsets CompletedOffsets(const Chart& chart, const ChildPlaces& places) {
    ChildOffsets offsets = OffsetsOf(chart);
    if (!HasTwoHalves(offsets)) {
        offsets.Labels.resize(std::max(offsets.Labels.size(), places.Labels.size()));
    } else if (offsets.Labels.size() != places.Labels.size()) {
        offsets.Labels.clear(); // a half without all its names: the lists do not go together
    }
    return offsets;
}

void AddParts(std::vector<MovablePart>& parts, MovablePart::Kind kind, ChildPlaces& places,
              ChildOffsets& offsets) {
    const std::vector<RectF>& of = places.Of(kind);
    const std::vector<PointF>& moved = offsets.Of(kind);
    for (std::size_t i = 0; i < std::min(of.size(), moved.size()); ++i) {
        // What separates two halves' labels has no extent either.
        if (of[i].Width > 0.0F && of[i].Height > 0.0F) {
            parts.push_back({kind, i, of[i], moved[i]});
        }
    }
}

/// An untouched list stays as the document has it, so that a moved legend does not write labels' offsets.
void TakeOffsets(millichart::PieDocument& pie, const ChildOffsets& offsets, MovablePart::Kind moved) {
    if (moved == MovablePart::Kind::Label) {
        pie.LabelOffsets = offsets.Labels;
    } else {
        pie.LegendOffset = offsets.Legend.front();
    }
}

void TakeOffsets(millichart::HalfPieHalfPieDocument& halves, const ChildOffsets& offsets, MovablePart::Kind) {
    const std::vector<PointF>& all = offsets.Labels;
    const auto separator = std::find(all.begin(), all.end(), millichart::kHalvesSeparator);
    halves.FirstLabelOffsets.assign(all.begin(), separator);
    halves.SecondLabelOffsets.assign(separator + 1, all.end());
}

void TakeOffsets(millichart::HalfPieDocument& half, const ChildOffsets& offsets, MovablePart::Kind) {
    half.LabelOffsets = offsets.Labels;
}

void TakeOffsets(millichart::HalfPieHistogramDocument& chart, const ChildOffsets& offsets,
                 MovablePart::Kind) {
    chart.LabelOffsets = offsets.Labels;
}

/// Nothing of these moves.
template <class Content> void TakeOffsets(Content&, const ChildOffsets&, MovablePart::Kind) {}

RectF Inflated(const RectF& rect, float by) {
    return {rect.X - by, rect.Y - by, rect.Width + 2.0F * by, rect.Height + 2.0F * by};
}

bool Contains(const RectF& rect, PointF point) {
    return point.X >= rect.X && point.X <= rect.Right() && point.Y >= rect.Y && point.Y <= rect.Bottom();
}

} // namespace

std::vector<MovablePart> MovablePartsOf(const LaidOutChart& laidOut) {
    std::vector<MovablePart> parts;
    WithMovableChart(laidOut.Chart, [&parts](const auto& chart) {
        ChildPlaces places = PlacesOf(chart);
        ChildOffsets offsets = CompletedOffsets(chart, places);
        AddParts(parts, MovablePart::Kind::Label, places, offsets);
        AddParts(parts, MovablePart::Kind::Legend, places, offsets);
    });
    return parts;
}

std::optional<std::size_t> PartAt(const std::vector<MovablePart>& parts, PointF point) {
    for (const float reach : {0.0F, kReach}) {
        const auto hit = std::find_if(parts.rbegin(), parts.rend(), [&](const MovablePart& part) {
            return Contains(Inflated(part.Place, reach), point);
        });
        if (hit != parts.rend()) {
            return static_cast<std::size_t>(parts.rend() - hit) - 1;
        }
    }
    return std::nullopt;
}

void MovePart(millichart::ChartDocument& document, LaidOutChart laidOut, const MovablePart& part, PointF by) {
    WithMovableChart(laidOut.Chart, [&](auto& chart) {
        ChildPlaces places = PlacesOf(chart);
        const ChildOffsets before = CompletedOffsets(chart, places);
        chart.SetChildOffset(before.Labels, before.Legend);
        RectF& place = places.Of(part.What).at(part.Index);
        place = penlode::Translated(place, by);
        chart.SetChildPosition({}, places.Labels, places.Legend);
        const ChildOffsets offsets = OffsetsOf(chart);
        std::visit([&](auto& content) { TakeOffsets(content, offsets, part.What); }, document.Content);
    });
}

} // namespace host
