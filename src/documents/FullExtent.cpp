#include "documents/ChartDocument.h"
#include "documents/ChartLayouts.h"

#include <algorithm>
#include <cmath>
#include <optional>

/// What a figure's page must hold if nothing of it may be cut off.
namespace millichart {
namespace {

using penlode::PointF;
using penlode::RectF;

/// Axes and frames stand on the edge of what was laid out.
constexpr float kHalfHairline = 0.05F;
/// What is farther away belongs to a value out of the axis's range.
constexpr float kNear = 10.0F;

RectF Grown(const RectF& rect, float by) {
    return {rect.X - by, rect.Y - by, rect.Width + 2.0F * by, rect.Height + 2.0F * by};
}

bool Holds(const RectF& outer, const RectF& inner) {
    return inner.X >= outer.X && inner.Y >= outer.Y && inner.Right() <= outer.Right() &&
           inner.Bottom() <= outer.Bottom();
}

/// The box round the points that have a place.
std::optional<RectF> BoxOf(const CurveTrace& curve) {
    PointF least{HUGE_VALF, HUGE_VALF};
    PointF most{-HUGE_VALF, -HUGE_VALF};
    curve.ForEach([&](std::size_t, PointF point) {
        if (std::isfinite(point.X) && std::isfinite(point.Y)) {
            least = {std::min(least.X, point.X), std::min(least.Y, point.Y)};
            most = {std::max(most.X, point.X), std::max(most.Y, point.Y)};
        }
    });
    if (least.X > most.X) {
        return std::nullopt;
    }
    return RectF{least.X, least.Y, most.X - least.X, most.Y - least.Y};
}

/// Half a line's width, or of its markers.
RectF WithCurves(RectF extent, const CBasicCurve& chart) {
    const RectF whole = Grown(chart.GetPositionAll(), kNear);
    const CurvePlotProp& plot = chart.GetCurveProp().Plot;
    const std::vector<CurveTrace>& curves = chart.GetLayout().Curves;
    for (std::size_t i = 0; i < std::min(plot.CurveName.size(), curves.size()); ++i) {
        const CurveStyle style = StyleOf(plot, i, chart.GetOptions());
        const bool hasMarkers = style.Dot != CurveDotStyle::None;
        const float reach = std::max({style.Width, hasMarkers ? style.DotWidth : 0.0F, 0.0F}) * 0.5F;
        const std::optional<RectF> box = BoxOf(curves[i]);
        if (box && std::isfinite(reach) && Holds(whole, Grown(*box, reach))) {
            extent = penlode::Union(extent, Grown(*box, reach));
        }
    }
    return extent;
}

template <class Chart> RectF WithCurves(RectF extent, const Chart&) {
    return extent;
}

} // namespace

RectF LaidOutChart::FullExtent() const {
    RectF extent = InkExtent();
    const RectF whole = Grown(extent, kNear);
    documents::WithContent(Chart, [&](const auto& chart) {
        extent = WithCurves(Grown(extent, kHalfHairline), chart);
        chart.VisitTexts([&](ChartText&& text) {
            const RectF box = text.Font == nullptr || text.Text.empty() ? RectF() : text.Box();
            if (box.Width > 0.0F && Holds(whole, box)) {
                extent = penlode::Union(extent, box);
            }
        });
    });
    return extent;
}

} // namespace millichart
