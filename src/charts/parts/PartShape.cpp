#include "charts/parts/PartShape.h"

#include "penlode/Matrix.h"
#include "penlode/engine/Finite.h"

#include <algorithm>

namespace millichart {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

RectF BoxShape::Box() const {
    const RectF front = Upright(m_front);
    return penlode::Union(front, penlode::Translated(front, m_depth));
}

double BoxShape::Distance(PointD point, float reach) const {
    if (!Holds(Grown(Box(), reach), point)) {
        return kFarAway;
    }
    const double toFront = DistanceToRect(point, Upright(m_front));
    if (m_depth == PointF{}) {
        return toFront;
    }
    const PointF left = m_front.TopLeft();
    const PointF right{m_front.Right(), m_front.Y};
    const PointF below{m_front.Right(), m_front.Bottom()};
    return std::min({toFront, DistanceToQuad(point, {left, right, right + m_depth, left + m_depth}),
                     DistanceToQuad(point, {right, below, below + m_depth, right + m_depth})});
}

double TextShape::Distance(PointD point, float reach) const {
    if (!Holds(Grown(Box(), reach), point)) {
        return kFarAway;
    }
    penlode::Matrix toPage = penlode::Matrix::Rotation(-static_cast<double>(m_text.Angle));
    toPage.Dx = m_text.Origin.X;
    toPage.Dy = m_text.Origin.Y;
    const PointF middle = m_text.Layout.Center();
    const penlode::SizeF size = m_text.Size;
    return DistanceToRect(
        penlode::Mapped(toPage.Inverted(), point),
        {middle.X - size.Width * 0.5F, middle.Y - size.Height * 0.5F, size.Width, size.Height});
}

template <class Visit> void LinesShape::VisitLines(const Visit& visit) const {
    for (const Segment& line : m_lines) {
        visit(line);
    }
    for (const SegmentRow& row : m_rows) {
        for (std::size_t i = 0; i < row.Places.size(); i += row.Step) {
            const PointF at = row.Places[i];
            if (penlode::IsFinite(at)) {
                visit({at + row.Line.From, at + row.Line.To});
            }
        }
    }
}

RectF LinesShape::Box() const {
    RectF box;
    bool isFirst = true;
    VisitLines([&](const Segment& line) {
        const RectF own =
            Upright({line.From.X, line.From.Y, line.To.X - line.From.X, line.To.Y - line.From.Y});
        box = isFirst ? own : penlode::Union(box, own);
        isFirst = false;
    });
    return box;
}

double LinesShape::Distance(PointD point, float) const {
    double nearest = kFarAway;
    VisitLines([&](const Segment& line) {
        nearest = std::min(nearest, DistanceToSegment(point, line.From, line.To));
    });
    return nearest;
}

} // namespace millichart
