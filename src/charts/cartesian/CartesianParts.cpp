#include "charts/cartesian/CartesianParts.h"

namespace millichart {

using penlode::PointF;
using penlode::RectF;

namespace {

void AddVerTicks(LinesShape& shape, const std::vector<PointF>& ticks, TickSpan tick) {
    if (tick.From != tick.To) {
        shape.Add(SegmentRow{ticks, {{-tick.From, 0.0F}, {-tick.To, 0.0F}}});
    }
}

} // namespace

void AddVerAxis(PartSink& sink, const VerAxisProp& prop, const CartesianLayout& layout) {
    if (prop.ShowVerAxis == 0 || prop.VerAxisPen.Get() == nullptr) {
        return;
    }
    const RectF& plot = layout.Plot;
    LinesShape shape;
    shape.Add(Segment{plot.TopLeft(), {plot.X, plot.Bottom()}});
    AddVerTicks(shape, layout.VerMajorTicks, TickOf(prop.MajorScaleStyle, kMajorTickLength));
    AddVerTicks(shape, layout.VerMinorTicks, TickOf(prop.MinorScaleStyle, kMinorTickLength));
    sink.Add({PartKind::VerAxis}, shape);
}

LinesShape HorAxisShape(const CartesianLayout& layout, std::int32_t scaleStyle, std::size_t step) {
    const RectF& plot = layout.Plot;
    LinesShape shape;
    shape.Add(Segment{{plot.X, plot.Bottom()}, {plot.Right(), plot.Bottom()}});
    const TickSpan tick = TickOf(scaleStyle, kMajorTickLength);
    if (tick.From != tick.To) {
        shape.Add(SegmentRow{layout.HorTicks, {{0.0F, tick.From}, {0.0F, tick.To}}, step});
    }
    return shape;
}

} // namespace millichart
