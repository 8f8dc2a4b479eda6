#include "editing/PartPlaces.h"

#include <algorithm>
#include <limits>
#include <span>

namespace millichart {
namespace {

/// Which row of a list a part has, if its control is one.
enum class RowOf { None, Index, Component };

struct PartPlace {
    PartKind Kind;
    std::size_t Page;
    int Control;
    RowOf Row = RowOf::None;
};

// A legend shows what the first page lists, and is itself on a page of its own.
constexpr int kSliceRows = 18580;
constexpr int kBarRows = 18460;
constexpr int kCurveRows = 18490;
constexpr int kLegendPlaces = 18571;
constexpr int kSliceLabelLook = 18593;
constexpr int kCaptionText = 18561;

constexpr PartPlace kPie[] = {
    {PartKind::Slice, 0, kSliceRows, RowOf::Index},
    {PartKind::SliceLabel, 1, kSliceLabelLook},
    {PartKind::Legend, 2, kLegendPlaces},
    {PartKind::LegendSample, 0, kSliceRows, RowOf::Index},
    {PartKind::LegendName, 0, kSliceRows, RowOf::Index},
};

constexpr PartPlace kHalfPie[] = {
    {PartKind::Slice, 0, kSliceRows, RowOf::Index},
    {PartKind::SliceLabel, 1, kSliceLabelLook},
};

constexpr std::size_t kHalfPiePages = 2;

constexpr PartPlace kHistogram[] = {
    {PartKind::Plot, 0, 18450},
    {PartKind::Bar, 0, kBarRows, RowOf::Component},
    {PartKind::BarLabel, 0, 18423},
    {PartKind::VerAxis, 1, 18430},
    {PartKind::VerAxisLabel, 1, 18440},
    {PartKind::VerCaption, 1, 18467},
    {PartKind::HorAxis, 2, 18451},
    {PartKind::GroupName, 2, 18457},
    {PartKind::HorCaption, 2, 18468},
    {PartKind::Caption, 3, kCaptionText},
    {PartKind::Legend, 4, kLegendPlaces},
    {PartKind::LegendSample, 0, kBarRows, RowOf::Index},
    {PartKind::LegendName, 0, kBarRows, RowOf::Index},
};

constexpr std::size_t kHistogramPages = 5;

constexpr PartPlace kCurve[] = {
    {PartKind::Plot, 0, 18491},
    {PartKind::Curve, 0, kCurveRows, RowOf::Index},
    {PartKind::CurvePoint, 0, kCurveRows, RowOf::Index},
    {PartKind::VerAxis, 1, 18512},
    {PartKind::VerAxisLabel, 1, 18525},
    {PartKind::VerCaption, 1, 18514},
    {PartKind::HorAxis, 2, 18499},
    {PartKind::HorAxisLabel, 2, 18504},
    {PartKind::HorCaption, 2, 18501},
    {PartKind::Caption, 3, kCaptionText},
    {PartKind::Legend, 4, kLegendPlaces},
    {PartKind::LegendSample, 0, kCurveRows, RowOf::Index},
    {PartKind::LegendName, 0, kCurveRows, RowOf::Index},
};

int RowFor(RowOf row, const ChartPart& part) {
    if (row == RowOf::None) {
        return -1;
    }
    constexpr std::size_t kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(row == RowOf::Index ? part.Index : part.Component, kMost));
}

SheetStart PlaceIn(std::span<const PartPlace> places, const ChartPart& part) {
    const auto found = std::find_if(places.begin(), places.end(),
                                    [&part](const PartPlace& place) { return place.Kind == part.Kind; });
    return found == places.end() ? SheetStart{}
                                 : SheetStart{found->Page, found->Control, RowFor(found->Row, part)};
}

SheetStart PagesOn(SheetStart start, std::size_t pages) {
    start.Page += pages;
    return start;
}

} // namespace

SheetStart PlaceInPieSheet(const ChartPart& part) {
    return PlaceIn(kPie, part);
}

SheetStart PlaceInHalfPieSheet(const ChartPart& part) {
    return PlaceIn(kHalfPie, part);
}

SheetStart PlaceInHistogramSheet(const ChartPart& part) {
    return PlaceIn(kHistogram, part);
}

SheetStart PlaceInCurveSheet(const ChartPart& part) {
    return PlaceIn(kCurve, part);
}

SheetStart PlaceInHalfPieHalfPieSheet(const ChartPart& part) {
    return PagesOn(PlaceInHalfPieSheet(part), part.Part == 0 ? 0 : kHalfPiePages);
}

/// The bars, which are drawn second, have the first pages.
SheetStart PlaceInHalfPieHistogramSheet(const ChartPart& part) {
    return part.Part == 0 ? PagesOn(PlaceInHalfPieSheet(part), kHistogramPages) : PlaceInHistogramSheet(part);
}

} // namespace millichart
