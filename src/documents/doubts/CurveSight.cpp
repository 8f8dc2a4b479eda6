#include "documents/doubts/CurveSight.h"

#include "documents/Fields.h"

#include <algorithm>
#include <cmath>

namespace millichart::documents {
namespace {

using penlode::PointF;

constexpr float kOnEdge = 0.05F; // mm

bool HasMarkers(const CurveStyle& style) {
    return style.Dot > CurveDotStyle::None && style.Dot <= CurveDotStyle::HollowInvertedTriangle &&
           style.DotWidth > 0.0F;
}

std::string CurveNamed(const CBasicCurve& chart, std::size_t curve) {
    const std::string name = NameAt(chart.GetCurveProp().Plot.CurveName, curve);
    return "curve " + (name.empty() ? std::to_string(curve + 1) : Quoted(name));
}

/// A curve that is drawn.
struct Seen {
    CurveStyle Style;
    const CurveTrace& Trace;
};

std::vector<Seen> CurvesOf(const CBasicCurve& chart) {
    std::vector<Seen> curves;
    const CurvePlotProp& plot = chart.GetCurveProp().Plot;
    const std::vector<CurveTrace>& traces = chart.GetLayout().Curves;
    for (std::size_t i = 0; i < std::min(plot.CurveName.size(), traces.size()); ++i) {
        curves.push_back({StyleOf(plot, i, chart.GetOptions()), traces[i]});
    }
    return curves;
}

/// The points of a curve that no line joins to another.
std::size_t PointsAlone(const Seen& curve) {
    const bool breaks = curve.Style.NullValue == CurveNullValueStyle::Break;
    std::size_t alone = 0;
    std::size_t run = 0;
    curve.Trace.ForEach([&](std::size_t index, penlode::PointF point) {
        const bool isGap =
            !std::isfinite(point.X) || !std::isfinite(point.Y) || (breaks && curve.Trace.IsNull(index));
        alone += isGap && run == 1 ? 1 : 0;
        run = isGap ? 0 : run + 1;
    });
    return alone + (run == 1 ? 1 : 0);
}

void AddLonePointDoubts(const CBasicCurve& chart, const std::vector<Seen>& curves, Diagnostics& diagnostics) {
    std::size_t alone = 0;
    std::string first;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const std::size_t own = HasMarkers(curves[i].Style) ? 0 : PointsAlone(curves[i]);
        first = alone == 0 && own > 0 ? CurveNamed(chart, i) : first;
        alone += own;
    }
    if (alone > 0) {
        diagnostics.push_back(penlode::Warning("property/CurvePlotProp/CurveDotStyle",
                                               Counted(alone, "point") + (alone == 1 ? " has" : " have") +
                                                   " neither a neighbour that a line leads to nor" +
                                                   " a marker, so that nothing is seen of " +
                                                   (alone == 1 ? "it" : "them") + ", first in " + first +
                                                   "; give the curve markers, such as \"solid_circle\""));
    }
}

/// Are there points, and all of them at one time?
bool IsOneTime(const CBasicCurve& chart) {
    const auto& curves = chart.GetCurveTime();
    const auto filled =
        std::find_if(curves.begin(), curves.end(), [](const auto& times) { return !times.empty(); });
    return filled != curves.end() && std::all_of(filled, curves.end(), [&filled](const auto& times) {
               return std::all_of(times.begin(), times.end(),
                                  [&filled](std::int32_t time) { return time == filled->front(); });
           });
}

penlode::Diagnostic OneTimeDoubt(const TableOrigin& origin) {
    penlode::Diagnostic told = penlode::Warning(origin.File.empty() ? "data/curves" : "",
                                                "all values are at one time and stand at the plot's left "
                                                "edge; a line needs two, and bars may say more");
    told.File = origin.File;
    return told;
}

/// Do the points of a curve, two or more, all stand at a height?
bool IsLevelAt(const CurveTrace& trace, float y) {
    std::size_t seen = 0;
    bool isLevel = true;
    trace.ForEach([&](std::size_t index, penlode::PointF point) {
        if (std::isfinite(point.Y) && !trace.IsNull(index)) {
            ++seen;
            isLevel = isLevel && std::abs(point.Y - y) < kOnEdge;
        }
    });
    return isLevel && seen > 1;
}

void AddFlatLineDoubts(const CBasicCurve& chart, const std::vector<Seen>& curves, Diagnostics& diagnostics) {
    const penlode::RectF& plot = chart.GetLayout().Plot;
    std::string names;
    std::size_t flat = 0;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        if (IsLevelAt(curves[i].Trace, plot.Bottom()) || IsLevelAt(curves[i].Trace, plot.Y)) {
            names = flat++ == 0 ? CurveNamed(chart, i) : names;
        }
    }
    if (flat > 0) {
        diagnostics.push_back(penlode::Warning(
            "range", names + (flat == 1 ? "" : " and " + Counted(flat - 1, "other")) +
                         (flat == 1 ? " is a flat line" : " are flat lines") +
                         " on the plot's edge, as all values are equal; give a range with room round them"));
    }
}

} // namespace

void AddCurveSightDoubts(const CBasicCurve& chart, const TableOrigin& origin, Diagnostics& diagnostics) {
    if (IsOneTime(chart)) {
        diagnostics.push_back(OneTimeDoubt(origin));
        return;
    }
    const std::vector<Seen> curves = CurvesOf(chart);
    AddLonePointDoubts(chart, curves, diagnostics);
    AddFlatLineDoubts(chart, curves, diagnostics);
}

} // namespace millichart::documents
