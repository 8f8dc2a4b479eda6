#include "charts/cartesian/CartesianPlacement.h"

#include "foundation/TextPropertyOperation.h"

#include <algorithm>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

std::vector<PointF> OnLeftEdge(const RectF& plot, const std::vector<float>& positions) {
    std::vector<PointF> points;
    points.reserve(positions.size());
    for (const float position : positions) {
        points.push_back({plot.X, plot.Y + plot.Height - position});
    }
    return points;
}

} // namespace

void Reset(CartesianLayout& layout, PointF location) {
    const RectF bare{location.X, location.Y, 0.0F, 0.0F};
    const SizeF verCaption = layout.VerCaptionSize;
    const SizeF horCaption = layout.HorCaptionSize;
    layout = {bare, bare, bare, bare, bare, verCaption, horCaption, {}, {}, {}, {}, {}, {}, {}, {}, {}};
}

SizeF CaptionSize(std::int32_t isShown, const std::string& caption, const TextProperty& property) {
    return isShown != 0 ? CTextPropertyOperation::GetTextSize(caption, property) : SizeF{};
}

float TickAllowance(std::int32_t style, std::int32_t otherStyle) {
    return style != ScaleStyle::None || otherStyle != ScaleStyle::None ? kTickRoom : 0.0F;
}

void PlaceFrame(const FrameSizes& sizes, PointF location, SizeF depth, CartesianLayout& layout) {
    const SizeF verCaption = layout.VerCaptionSize;
    const SizeF horCaption = layout.HorCaptionSize;
    RectF& whole = layout.Whole;
    RectF& plot = layout.Plot;
    whole = {location.X, location.Y, sizes.Plot.Width + sizes.VerAxis.Width + depth.Width,
             sizes.Plot.Height + sizes.Caption.Height + sizes.HorAxis.Height + depth.Height};
    plot = {location.X + sizes.VerAxis.Width, location.Y + sizes.Caption.Height + depth.Height,
            sizes.Plot.Width, sizes.Plot.Height};
    layout.Caption = {plot.X + (plot.Width - sizes.Caption.Width) * 0.5F, location.Y + depth.Height,
                      sizes.Caption.Width, sizes.Caption.Height};
    layout.VerCaption = {location.X, plot.Y + (plot.Height - verCaption.Height) * 0.5F + depth.Height,
                         verCaption.Width, verCaption.Height};
    layout.HorCaption = {plot.X + (plot.Width - horCaption.Width) * 0.5F,
                         whole.Y + whole.Height - horCaption.Height + depth.Height, horCaption.Width,
                         horCaption.Height};
}

void TakeVerLabels(const VerAxisProp& prop, const ValueAxis& axis, const NumberFormat& numbers,
                   CartesianLayout& layout) {
    if (prop.ShowVerAxisLabel == 0) {
        return;
    }
    const TextProperty& look = prop.VerAxisLabelTextProperty;
    layout.VerLabelTexts = axis.TickLabels(numbers);
    layout.VerLabelSizes.clear();
    for (std::string& text : layout.VerLabelTexts) {
        text = Decorated(text, look);
        layout.VerLabelSizes.push_back(CTextPropertyOperation::GetTextSize(text, look));
    }
}

SizeF VerAxisSize(const VerAxisProp& prop, float plotHeight, const CartesianLayout& layout) {
    float labelWidth = 0.0F;
    for (const SizeF& size : layout.VerLabelSizes) {
        labelWidth = std::max(labelWidth, size.Width);
    }
    return {layout.VerCaptionSize.Width + labelWidth +
                TickAllowance(prop.MajorScaleStyle, prop.MinorScaleStyle),
            plotHeight};
}

void PlaceVerTicks(const VerAxisProp& prop, const ValueAxis& axis, CartesianLayout& layout) {
    if (prop.ShowVerAxis != 0) {
        layout.VerMajorTicks = OnLeftEdge(layout.Plot, axis.MajorTicks());
        layout.VerMinorTicks = OnLeftEdge(layout.Plot, axis.MinorTicks());
    }
}

void PlaceVerLabels(const VerAxisProp& prop, CartesianLayout& layout) {
    layout.VerLabelRects.clear();
    if (prop.ShowVerAxisLabel == 0) {
        return;
    }
    const std::size_t count = std::min(layout.VerLabelSizes.size(), layout.VerMajorTicks.size());
    for (std::size_t i = 0; i < count; ++i) {
        const SizeF size = layout.VerLabelSizes[i];
        layout.VerLabelRects.push_back({layout.Plot.X - kTickRoom - size.Width,
                                        layout.VerMajorTicks[i].Y - size.Height * 0.5F, size.Width,
                                        size.Height});
    }
}

void PlaceLegend(const LegendProp& prop, const std::vector<std::string>& names, float swatchFactor,
                 CartesianLayout& layout) {
    if (prop.ShowLegend == 0) {
        return;
    }
    layout.LegendItemRects = CLegendOperation::PlaceItems(prop, names, layout.Whole, swatchFactor);
    for (const RectF& item : layout.LegendItemRects) {
        layout.Whole = penlode::Union(layout.Whole, item);
    }
}

void Move(std::vector<PointF>& points, PointF by) {
    for (PointF& point : points) {
        point = point + by;
    }
}

void Move(std::vector<RectF>& rects, PointF by) {
    for (RectF& rect : rects) {
        rect = penlode::Translated(rect, by);
    }
}

void Move(CartesianLayout& layout, PointF by) {
    for (RectF* rect :
         {&layout.Whole, &layout.Caption, &layout.VerCaption, &layout.HorCaption, &layout.Plot}) {
        *rect = penlode::Translated(*rect, by);
    }
    Move(layout.VerMajorTicks, by);
    Move(layout.VerMinorTicks, by);
    Move(layout.VerLabelRects, by);
    Move(layout.HorTicks, by);
    Move(layout.LegendItemRects, by);
    layout.Legend.Box = penlode::Translated(layout.Legend.Box, by);
    layout.Legend.Rest = penlode::Translated(layout.Legend.Rest, by);
    for (FittedName& name : layout.FittedNames) {
        name.Box = penlode::Translated(name.Box, by);
    }
}

} // namespace millichart
