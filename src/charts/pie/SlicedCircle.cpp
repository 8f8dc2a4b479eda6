#include "charts/pie/SlicedCircle.h"

#include "foundation/TextPropertyOperation.h"

#include <algorithm>

namespace millichart {

using penlode::PointF;
using penlode::RectF;

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

void CSlicedCircle::VisitLabels(const PieLabelProp& label, const TextVisitor& visit) const {
    for (std::size_t i = 0; i < m_layout.LabelTexts.size(); ++i) {
        CTextPropertyOperation::Visit(visit, {TextRole::SliceLabel, i}, m_layout.LabelTexts[i],
                                      label.PieLabelTextProperty, m_layout.LabelRects[i].Center());
    }
}

} // namespace millichart
