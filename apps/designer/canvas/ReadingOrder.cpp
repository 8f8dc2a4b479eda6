#include "canvas/ReadingOrder.h"

#include <algorithm>
#include <tuple>

namespace designer {
namespace {

using millichart::ChartPart;
using millichart::PartKind;
using millichart::PlacedPart;

int Rank(PartKind kind) {
    switch (kind) {
    case PartKind::Caption:
        return 0;
    case PartKind::Slice:
    case PartKind::Bar:
    case PartKind::Curve:
    case PartKind::CurvePoint:
        return 1;
    case PartKind::SliceLabel:
    case PartKind::BarLabel:
        return 2;
    case PartKind::GroupName:
    case PartKind::HorAxisLabel:
        return 3;
    case PartKind::HorCaption:
        return 4;
    case PartKind::HorAxis:
        return 5;
    case PartKind::VerAxisLabel:
        return 6;
    case PartKind::VerCaption:
        return 7;
    case PartKind::VerAxis:
        return 8;
    case PartKind::Plot:
        return 9;
    case PartKind::Legend:
        return 10;
    case PartKind::LegendSample:
    case PartKind::LegendName:
        return 11;
    }
    return 12;
}

} // namespace

std::vector<PlacedPart> InReadingOrder(const millichart::LaidOutChart& chart) {
    std::vector<PlacedPart> parts;
    chart.VisitParts([&parts](const PlacedPart& part) { parts.push_back(part); });
    const auto key = [](const PlacedPart& placed) {
        const ChartPart& part = placed.Part;
        return std::tuple(part.Part, Rank(part.Kind), part.Index, part.Component, part.Kind);
    };
    std::stable_sort(parts.begin(), parts.end(),
                     [&key](const PlacedPart& a, const PlacedPart& b) { return key(a) < key(b); });
    return parts;
}

std::size_t PlaceOf(const std::vector<PlacedPart>& parts, const ChartPart& part) {
    const auto found = std::find_if(parts.begin(), parts.end(),
                                    [&part](const PlacedPart& placed) { return placed.Part == part; });
    return static_cast<std::size_t>(found - parts.begin());
}

} // namespace designer
