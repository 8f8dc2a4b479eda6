#include "charts/pie/SliceLabels.h"

#include <algorithm>
#include <cmath>

namespace millichart {

using penlode::PointF;
using penlode::RectF;

namespace {

/// A label that is nearer to its slice needs no lead line, which would be a dot between them.
constexpr float kShortestLead = 2.0F;
constexpr float kLeadGap = 0.4F;
/// What is as near as this to its classical place stays there.
constexpr float kSamePlace = 1e-3F;

PointF OffsetOf(const LabelledSlices& slices, std::size_t label) {
    return label < slices.LabelOffsets.size() ? slices.LabelOffsets[label] : PointF{};
}

/// One that the user moved counts as a large slice's, so that it is not left out.
std::vector<SliceLabel> LabelsOf(const LabelledSlices& slices, const std::vector<RectF>& rects) {
    std::vector<SliceLabel> labels;
    float angle = slices.StartAngle;
    for (std::size_t i = 0; i < rects.size(); ++i) {
        const float sweep = slices.Sweeps[i];
        const float share = OffsetOf(slices, i) == PointF{} ? std::fabs(sweep) : kFullTurn;
        labels.push_back({angle + sweep * 0.5F, {rects[i].Width, rects[i].Height}, share});
        angle += sweep;
    }
    return labels;
}

bool AreAtOnePlace(const RectF& a, const RectF& b) {
    return std::fabs(a.X - b.X) <= kSamePlace && std::fabs(a.Y - b.Y) <= kSamePlace;
}

PointF Nearest(const RectF& box, PointF point) {
    return {std::max(box.X, std::min(point.X, box.Right())),
            std::max(box.Y, std::min(point.Y, box.Bottom()))};
}

/// A label that the user moved is met where it is nearest. The line ends just before its letters.
LeadLine LeadTo(const PlacedSliceLabel& placed, PointF offset) {
    const PointF tip =
        offset == PointF{} ? placed.Tip : Nearest(penlode::Translated(placed.Box, offset), placed.Rim);
    const PointF way = placed.Rim - tip;
    const float back = kLeadGap / std::max(kLeadGap, std::hypot(way.X, way.Y));
    return {placed.Rim, tip + PointF{way.X * back, way.Y * back}};
}

bool CanBeSeen(const LeadLine& line, const SliceRim& rim) {
    return std::hypot(line.To.X - line.From.X, line.To.Y - line.From.Y) > kShortestLead &&
           IsOutside(rim, line.To);
}

} // namespace

void KeepLabelsApart(const SliceRim& rim, const LabelledSlices& slices, PieLayout& layout) {
    const bool hasLeads = slices.Label.ShowLabelLeadLine == 1;
    const std::vector<PlacedSliceLabel> labels = SlicesApart(
        rim, slices.Label.DistBetweenLabelCenterAndPieCenter, hasLeads, LabelsOf(slices, layout.LabelRects));
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const PlacedSliceLabel& label = labels[i];
        const PointF offset = OffsetOf(slices, i);
        RectF& rect = layout.LabelRects[i];
        if (!label.IsShown) {
            layout.LabelTexts[i].clear();
            rect = label.Box;
            continue;
        }
        const RectF moved = penlode::Translated(label.Box, offset);
        rect = AreAtOnePlace(rect, moved) ? rect : moved;
        const LeadLine lead = LeadTo(label, offset);
        if (hasLeads && CanBeSeen(lead, rim)) {
            layout.LeadLines.push_back(lead);
        }
    }
}

void DrawLeadLines(penlode::IGraphicsEngine& engine, const PieLabelProp& label,
                   const std::vector<LeadLine>& lines) {
    if (const penlode::Pen* pen = label.LabelLeadLinePen.Get()) {
        for (const LeadLine& line : lines) {
            engine.DrawLine(pen, line.From.X, line.From.Y, line.To.X, line.To.Y);
        }
    }
}

} // namespace millichart
