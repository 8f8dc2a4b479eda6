#include "documents/doubts/Ground.h"

#include "charts/reading/Shade.h"
#include "foundation/Light.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Color;
using penlode::PointF;
using penlode::RectF;

bool Holds(const RectF& box, PointF point) {
    return point.X >= box.X && point.X <= box.Right() && point.Y >= box.Y && point.Y <= box.Bottom();
}

/// The slice in whose angles a point of the face's plane is; null where there is none.
const PieSlice* SliceAt(const PieShapes& shapes, PointF point) {
    const PointF center = shapes.Face.Center();
    const auto angle =
        static_cast<float>(std::atan2(point.Y - center.Y, point.X - center.X) * 180.0 / std::numbers::pi);
    const auto found =
        std::find_if(shapes.Slices.begin(), shapes.Slices.end(), [angle](const PieSlice& slice) {
            const float into = std::fmod(angle - slice.StartAngle + 2.0F * kFullTurn, kFullTurn);
            return into >= 0.0F && into <= slice.SweepAngle;
        });
    return found == shapes.Slices.end() ? nullptr : &*found;
}

void PaintSlice(const PieShapes& shapes, PointF point, Color& seen) {
    const RectF& face = shapes.Face;
    const PointF center = face.Center();
    const float across = (point.X - center.X) / (face.Width * 0.5F);
    if (!(std::abs(across) <= 1.0F)) {
        return;
    }
    const float rim = std::sqrt(1.0F - across * across) * face.Height * 0.5F;
    const float down = point.Y - center.Y;
    if (down < -rim || down > rim + shapes.Depth) {
        return;
    }
    const bool isOnWall = down > rim;
    const PieSlice* const slice = SliceAt(shapes, isOnWall ? PointF{point.X, center.Y + rim} : point);
    if (slice != nullptr && slice->Fill) {
        seen = isOnWall ? slice->WallFill : Over(*slice->Fill, seen);
    }
}

/// The front, and the top and the side of a bar with depth.
void PaintBar(const BarShape& bar, PointF depth, const ChartOptions& options, PointF point, Color& seen) {
    const RectF& front = bar.Front;
    if (Holds(front, point)) {
        seen = Over(bar.Fill, seen);
    }
    if (!(depth.X > 0.0F)) {
        return;
    }
    const float up = (point.Y - front.Y) / depth.Y;
    if (up > 0.0F && up < 1.0F && Holds(front, {point.X - up * depth.X, front.Y})) {
        seen = ShadeOf(bar.Fill, ShadedFace::BarTop, options);
    }
    const float right = (point.X - front.Right()) / depth.X;
    if (right > 0.0F && right < 1.0F && Holds(front, {front.Right(), point.Y - right * depth.Y})) {
        seen = ShadeOf(bar.Fill, ShadedFace::BarSide, options);
    }
}

/// Bars by where they begin, so that those round a point are found among many.
BarShapes InOrder(BarShapes shapes) {
    std::stable_sort(shapes.Bars.begin(), shapes.Bars.end(),
                     [](const BarShape& a, const BarShape& b) { return a.Front.X < b.Front.X; });
    return shapes;
}

Paint PlotPaint(std::int32_t isShown, const RectF& plot, Color color) {
    return PaintOf(plot, isShown != 0 ? color : Color{0});
}

} // namespace

Paint PaintOf(const RectF& box, Color fill) {
    return [box, fill](PointF point, Color& seen) { seen = Holds(box, point) ? Over(fill, seen) : seen; };
}

Paint PaintOf(const PieShapes& shapes) {
    return [shapes](PointF point, Color& seen) { PaintSlice(shapes, point, seen); };
}

/// The walls behind bars with depth count as the plot moved back.
Paint PaintOf(const CBasicHistogram& chart) {
    const HistogramPlotProp& prop = chart.GetHistogramProp().Plot;
    BarShapes shapes = InOrder(chart.GetShapes());
    const RectF& plot = chart.GetLayout().Plot;
    const Paint front = PlotPaint(prop.ShowBackground, plot, prop.PlotBackgroundColor);
    const Paint back =
        PlotPaint(prop.ShowBackground, penlode::Translated(plot, shapes.Depth), prop.PlotBackgroundColor);
    const float reach = chart.GetLayout().ComponentWidth + shapes.Depth.X;
    return [shapes = std::move(shapes), options = chart.GetOptions(), front, back, reach](PointF point,
                                                                                          Color& seen) {
        const Color page = seen;
        front(point, seen);
        if (seen == page) {
            back(point, seen);
        }
        const auto begin = std::lower_bound(shapes.Bars.begin(), shapes.Bars.end(), point.X - reach,
                                            [](const BarShape& bar, float x) { return bar.Front.X < x; });
        for (auto bar = begin; bar != shapes.Bars.end() && bar->Front.X <= point.X; ++bar) {
            PaintBar(*bar, shapes.Depth, options, point, seen);
        }
    };
}

Paint PaintOf(const CBasicCurve& chart) {
    const CurvePlotProp& prop = chart.GetCurveProp().Plot;
    return PlotPaint(prop.ShowBackground, chart.GetLayout().Plot, prop.PlotBackgroundColor);
}

Color ColorAt(const Ground& ground, PointF point) {
    Color seen = penlode::kWhite;
    for (const Paint& paint : ground) {
        paint(point, seen);
    }
    return seen;
}

} // namespace millichart::documents
