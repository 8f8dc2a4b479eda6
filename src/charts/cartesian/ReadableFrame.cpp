#include "charts/cartesian/ReadableFrame.h"

#include "charts/cartesian/CartesianPlacement.h"
#include "charts/reading/EveryNth.h"
#include "charts/reading/LegendSeat.h"
#include "charts/reading/Surroundings.h"
#include "foundation/TextPropertyOperation.h"

#include <algorithm>
#include <utility>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

bool IsSeen(SizeF size) {
    return size.Width > 0.0F || size.Height > 0.0F;
}

/// Round a plot, with all that its letters cover.
void AddText(Surroundings& around, const RectF& box, std::int32_t angle) {
    around.Add(CTextPropertyOperation::GetReach(box, angle));
}

/// Labels that would touch are thinned to every n-th, those left out being empty.
void ThinVerLabels(CartesianLayout& layout) {
    std::vector<RectF>& rects = layout.VerLabelRects;
    const std::size_t n = LeastStepApart(rects.size(), [&rects](std::size_t lower, std::size_t upper) {
        return rects[upper].Bottom() > rects[lower].Y;
    });
    for (std::size_t i = 0; i < rects.size(); ++i) {
        if (i % n != 0) {
            rects[i] = {rects[i].Right(), rects[i].Center().Y, 0.0F, 0.0F};
            layout.VerLabelTexts[i].clear();
            layout.VerLabelSizes[i] = {};
        }
    }
}

/// Moves labels away from the axis, so that air is between them.
void PlaceVerLabels(const FramePlan& plan, Surroundings& around, CartesianLayout& layout) {
    if (plan.Options.Labels == LabelFit::Fitted) {
        ThinVerLabels(layout);
    }
    const float air = AirOf(plan.Options, plan.VerAxis.VerAxisLabelTextProperty.Font);
    const float further = std::max(air - kTickRoom, 0.0F);
    Move(layout.VerLabelRects, {-further, 0.0F});
    std::vector<RectF> reaches;
    for (const RectF& label : layout.VerLabelRects) {
        if (IsSeen({label.Width, label.Height})) {
            reaches.push_back(
                CTextPropertyOperation::GetReach(label, plan.VerAxis.VerAxisLabelTextProperty.Angle));
        }
    }
    around.AddAsOne(reaches);
}

std::vector<FittedName> Fitted(const NamesBelow& names, float top) {
    std::vector<std::string> texts;
    std::vector<float> centers;
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < names.Names.size() && i < names.Stands.size(); ++i) {
        if (!names.Names[i].empty()) {
            texts.push_back(names.Names[i]);
            centers.push_back(names.Stands[i].X);
            indexes.push_back(i);
        }
    }
    TextProperty level = names.Look;
    level.Angle = 0;
    std::vector<FittedName> fitted =
        FitNames({texts, centers, top, names.Look.Angle, names.AreOnScale, [&level](const std::string& text) {
                      return CTextPropertyOperation::GetTextSize(text, level);
                  }});
    for (FittedName& name : fitted) {
        name.Index = indexes[name.Index];
    }
    return fitted;
}

/// The names where the record puts them, but for the gap above.
std::vector<FittedName> Kept(const NamesBelow& names, float top) {
    std::vector<FittedName> kept;
    for (std::size_t i = 0; i < names.Rects.size() && i < names.Names.size(); ++i) {
        if (!names.Names[i].empty()) {
            const RectF& box = names.Rects[i];
            kept.push_back({i, names.Names[i], {box.X, top, box.Width, box.Height}, names.Look.Angle});
        }
    }
    return kept;
}

/// How far names have to go down so that none touches a label of the value axis that reaches below the plot.
float Overlap(const std::vector<FittedName>& names, const std::vector<RectF>& verLabels, std::int32_t angle) {
    float overlap = 0.0F;
    for (const RectF& rect : verLabels) {
        const RectF label = CTextPropertyOperation::GetReach(rect, angle);
        const auto touches = [&label](const FittedName& name) {
            const RectF box = CTextPropertyOperation::GetReach(name.Box, name.Angle);
            return box.X < label.Right() && box.Right() > label.X && box.Y < label.Bottom();
        };
        const bool reachesThem = !names.empty() && label.Bottom() - names.front().Box.Y > overlap;
        if (reachesThem && std::any_of(names.begin(), names.end(), touches)) {
            overlap = label.Bottom() - names.front().Box.Y;
        }
    }
    return overlap;
}

void PlaceNames(const FramePlan& plan, NamesBelow& names, Surroundings& around, CartesianLayout& layout) {
    if (names.Rects.empty()) {
        return;
    }
    const float top = layout.Plot.Bottom() + std::max(kTickRoom, AirOf(plan.Options, names.Look.Font));
    layout.FittedNames = plan.Options.Labels == LabelFit::Fitted ? Fitted(names, top) : Kept(names, top);
    const float down =
        Overlap(layout.FittedNames, layout.VerLabelRects, plan.VerAxis.VerAxisLabelTextProperty.Angle);
    for (std::size_t i = 0; i < names.Rects.size(); ++i) {
        names.Rects[i] = {names.Rects[i].Center().X, top + down, 0.0F, 0.0F};
    }
    for (FittedName& name : layout.FittedNames) {
        name.Box.Y += down;
        names.Rects[name.Index] = name.Box;
        AddText(around, name.Box, name.Angle);
    }
}

void PlaceLegendBox(const FramePlan& plan, Surroundings& around, CartesianLayout& layout) {
    const RectF whole = around.All();
    if (plan.Options.Legend == LegendSeat::OnPlot) {
        SeatedLegend legend = SeatLegend(plan.Legend, plan.LegendNames, plan.SwatchFactor, layout.Plot, whole,
                                         plan.Options.Air == ChartAir::ThirdOfLine);
        layout.LegendItemRects = std::move(legend.Items);
        layout.Legend = std::move(legend);
    } else if (plan.Legend.ShowLegend != 0) {
        layout.LegendItemRects =
            CLegendOperation::PlaceItems(plan.Legend, plan.LegendNames, whole, plan.SwatchFactor);
    }
    const RectF box = LegendBoxOf(layout.LegendItemRects, layout.Legend);
    if (IsSeen({box.Width, box.Height})) {
        around.Add(box);
    }
}

SizeF SizeShown(const FramePlan& plan, SizeF size, const std::string& caption, const TextProperty& look) {
    const std::string shown = CaptionShown(plan.Options, caption);
    return !IsSeen(size) || shown == caption ? size : CTextPropertyOperation::GetTextSize(shown, look);
}

} // namespace

bool ReadsFrame(const ChartOptions& options) {
    return options.Labels == LabelFit::Fitted || options.Legend == LegendSeat::OnPlot ||
           options.Air == ChartAir::ThirdOfLine;
}

void PlaceReadably(const FramePlan& plan, NamesBelow names, CartesianLayout& layout) {
    const RectF plot = layout.Plot;
    Surroundings around;
    around.Add(penlode::Union(plot, penlode::Translated(plot, plan.Depth)));
    PlaceVerLabels(plan, around, layout);
    PlaceNames(plan, names, around, layout);
    const TextProperty& verLook = plan.VerAxis.VerCaptionTextProperty;
    layout.VerCaptionSize = SizeShown(plan, layout.VerCaptionSize, plan.VerAxis.VerCaption, verLook);
    if (IsSeen(layout.VerCaptionSize)) {
        layout.VerCaption =
            around.PlaceLeft(layout.VerCaptionSize, plot.Center().Y, AirOf(plan.Options, verLook.Font));
        AddText(around, layout.VerCaption, verLook.Angle);
    }
    layout.HorCaptionSize = SizeShown(plan, layout.HorCaptionSize, plan.HorCaption, plan.HorCaptionLook);
    if (IsSeen(layout.HorCaptionSize)) {
        layout.HorCaption = around.PlaceBelow(layout.HorCaptionSize, plot.Center().X,
                                              AirOf(plan.Options, plan.HorCaptionLook.Font));
        AddText(around, layout.HorCaption, plan.HorCaptionLook.Angle);
    }
    PlaceLegendBox(plan, around, layout);
    const TextProperty& look = plan.Caption.CaptionTextProperty;
    const SizeF caption =
        SizeShown(plan, {layout.Caption.Width, layout.Caption.Height}, plan.Caption.Caption, look);
    if (IsSeen(caption)) {
        layout.Caption = around.PlaceAbove(caption, plot.Center().X, AirOf(plan.Options, look.Font));
        AddText(around, layout.Caption, look.Angle);
    }
    layout.Whole = around.All();
}

} // namespace millichart
