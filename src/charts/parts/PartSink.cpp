#include "charts/parts/PartSink.h"

#include "penlode/engine/Finite.h"

#include <algorithm>

namespace millichart {

using penlode::RectF;

namespace {

/// Larger than any page, and still a number beside any place on one.
constexpr float kMostReach = 1e6F;

PartKind KindOf(TextRole role) {
    switch (role) {
    case TextRole::SliceLabel:
        return PartKind::SliceLabel;
    case TextRole::VerAxisLabel:
        return PartKind::VerAxisLabel;
    case TextRole::VerCaption:
        return PartKind::VerCaption;
    case TextRole::HorAxisLabel:
        return PartKind::HorAxisLabel;
    case TextRole::GroupName:
        return PartKind::GroupName;
    case TextRole::HorCaption:
        return PartKind::HorCaption;
    case TextRole::BarLabel:
        return PartKind::BarLabel;
    case TextRole::Caption:
        return PartKind::Caption;
    case TextRole::LegendName:
        return PartKind::LegendName;
    }
    return PartKind::Caption;
}

bool CanBeSeen(const ChartText& text) {
    return text.Font != nullptr && !text.Text.empty() && text.Size.Width > 0.0F && text.Size.Height > 0.0F &&
           text.Owner.Role != TextRole::LegendName;
}

/// A legend in a place without a name has items without extent.
bool HasExtent(const RectF& rect) {
    return rect.Width > 0.0F && rect.Height > 0.0F;
}

} // namespace

void PartSink::Add(ChartPart part, const PartShape& shape) {
    part.Part = m_part;
    Take(part, shape);
}

TextVisitor PartSink::Texts() {
    return [this](const ChartText& text) {
        if (CanBeSeen(text)) {
            Add({KindOf(text.Owner.Role), text.Owner.Index, text.Owner.Component}, TextShape(text));
        }
    };
}

void PartSink::AddLegend(const LegendProp& prop, const std::vector<std::string>& names,
                         const std::vector<RectF>& items, float swatchFactor, const LegendFrame& frame) {
    const RectF box = LegendBoxOf(items, frame);
    if (prop.ShowLegend == 0 || items.empty() || !HasExtent(box)) {
        return;
    }
    Add({PartKind::Legend}, BoxShape(box));
    for (std::size_t i = 0; i < items.size(); ++i) {
        const RectF& item = items[i];
        const float swatch = std::min(swatchFactor * item.Height, item.Width);
        Add({PartKind::LegendSample, i}, BoxShape({item.X, item.Y, swatch, item.Height}));
        if (i < names.size() && !names[i].empty()) {
            Add({PartKind::LegendName, i},
                BoxShape({item.X + swatch, item.Y, item.Width - swatch, item.Height}));
        }
    }
}

void PartLister::Take(const ChartPart& part, const PartShape& shape) {
    const RectF box = shape.Box();
    if (penlode::IsFinite(box)) {
        m_visit({part, box});
    }
}

PartFinder::PartFinder(penlode::PointF point, float reach)
    : m_point{point.X, point.Y}, m_reach(reach > 0.0F ? std::min(reach, kMostReach) : 0.0F),
      m_distance(kFarAway) {}

void PartFinder::Take(const ChartPart& part, const PartShape& shape) {
    const double distance = shape.Distance(m_point, m_reach);
    const bool isGround = part.Kind == PartKind::Plot;
    if (!(distance <= m_reach) || (!isGround && distance > m_distance)) {
        return;
    }
    const PlacedPart hit = shape.At(part, m_point);
    if (!penlode::IsFinite(hit.Box)) {
        return;
    }
    if (isGround) {
        m_ground = hit;
    } else {
        m_found = hit;
        m_distance = distance;
    }
    if (isGround && distance == 0.0) { // it covers what was drawn before
        m_found.reset();
        m_distance = kFarAway;
    }
}

} // namespace millichart
