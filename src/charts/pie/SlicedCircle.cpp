#include "charts/pie/SlicedCircle.h"

#include "charts/reading/Air.h"
#include "foundation/TextPropertyOperation.h"

#include <algorithm>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

bool IsShown(const CaptionProp& title) {
    return title.ShowCaption != 0 && !title.Caption.empty();
}

SizeF SizeOf(const ChartOptions& options) {
    return CTextPropertyOperation::GetTextSize(CaptionShown(options, options.Title.Caption),
                                               options.Title.CaptionTextProperty);
}

} // namespace

void CSlicedCircle::GetChildPosition(RectF& pie, std::vector<RectF>& labels, std::vector<RectF>&) const {
    pie = m_layout.Pie;
    labels = m_layout.LabelRects;
}

void CSlicedCircle::SetChildPosition(const RectF&, const std::vector<RectF>& labels,
                                     const std::vector<RectF>&) {
    const std::vector<RectF>& from = m_layout.LabelRects;
    const std::size_t count = std::min({m_labelOffsets.size(), from.size(), labels.size()});
    for (std::size_t i = 0; i < count; ++i) {
        m_labelOffsets[i] = m_labelOffsets[i] + (labels[i].TopLeft() - from[i].TopLeft());
    }
}

void CSlicedCircle::GetChildOffset(std::vector<PointF>& labels, std::vector<PointF>&) const {
    labels = m_labelOffsets;
}

void CSlicedCircle::SetChildOffset(const std::vector<PointF>& labels, const std::vector<PointF>&) {
    m_labelOffsets = labels;
}

void CSlicedCircle::TakeWhole(const RectF& pie, const TextProperty& look) {
    m_layout.Whole = pie;
    for (std::size_t i = 0; i < m_layout.LabelRects.size(); ++i) {
        const RectF& label = m_layout.LabelRects[i];
        const bool hasRoom = m_options.SliceLabels == SliceLabelFit::Apart && !m_layout.LabelTexts[i].empty();
        m_layout.Whole = penlode::Union(
            m_layout.Whole, hasRoom ? CTextPropertyOperation::GetReach(label, look.Angle) : label);
    }
}

RectF CSlicedCircle::WholeUnderTitle() const {
    const RectF& whole = m_layout.Whole;
    const float width = IsShown(m_options.Title) ? SizeOf(m_options).Width : 0.0F;
    return penlode::Union(whole, {m_layout.Pie.Center().X - width * 0.5F, whole.Y, width, whole.Height});
}

void CSlicedCircle::PlaceTitle(TitleSide side) {
    const CaptionProp& title = m_options.Title;
    if (!IsShown(title)) {
        return;
    }
    const RectF& whole = m_layout.Whole;
    const SizeF size = SizeOf(m_options);
    const float air = AirOf(m_options, title.CaptionTextProperty.Font);
    m_layout.Title = RectF{m_layout.Pie.Center().X - size.Width * 0.5F,
                           side == TitleSide::Above ? whole.Y - air - size.Height : whole.Bottom() + air,
                           size.Width, size.Height};
    m_layout.Whole = penlode::Union(
        whole, CTextPropertyOperation::GetReach(*m_layout.Title, title.CaptionTextProperty.Angle));
}

void CSlicedCircle::VisitTitle(const TextVisitor& visit) const {
    const CaptionProp& title = m_options.Title;
    if (m_layout.Title && title.ShowCaption != 0) {
        CTextPropertyOperation::Visit(visit, {TextRole::Caption}, CaptionShown(m_options, title.Caption),
                                      title.CaptionTextProperty, m_layout.Title->Center());
    }
}

void CSlicedCircle::VisitLabels(const PieLabelProp& label, const TextVisitor& visit) const {
    for (std::size_t i = 0; i < m_layout.LabelTexts.size(); ++i) {
        CTextPropertyOperation::Visit(visit, {TextRole::SliceLabel, i}, m_layout.LabelTexts[i],
                                      label.PieLabelTextProperty, m_layout.LabelRects[i].Center());
    }
}

} // namespace millichart
