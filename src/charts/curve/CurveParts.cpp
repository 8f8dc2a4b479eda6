#include "charts/cartesian/CartesianParts.h"
#include "charts/curve/BasicCurve.h"
#include "charts/curve/CurveOutline.h"

#include <algorithm>

/// What a user can point at in a line chart.
namespace millichart {

void CBasicCurve::ListParts(PartSink& sink) const {
    if (m_layout.Curves.empty()) {
        return;
    }
    const TextVisitor texts = sink.Texts();
    const CurveHorAxisProp& hor = m_prop.HorAxis;
    sink.Add({PartKind::Plot}, BoxShape(m_layout.Plot));
    AddVerAxis(sink, m_prop.VerAxis, m_layout);
    VisitVerLabels(texts, m_prop.VerAxis, m_layout);
    VisitVerCaption(texts, m_options, m_prop.VerAxis, m_layout);
    if (hor.ShowHorAxis != 0 && hor.HorAxisPen.Get() != nullptr) {
        sink.Add({PartKind::HorAxis}, HorAxisShape(m_layout, hor.ScaleStyle, StepOf(hor.ScaleStep)));
    }
    VisitHorLabels(texts);
    VisitHorCaption(texts, m_options, hor, m_layout);
    AddCurves(sink);
    VisitCaption(texts, m_options, m_prop.Caption, m_layout);
    sink.AddLegend(m_prop.Legend, m_prop.Plot.CurveName, m_layout.LegendItemRects, kLegendSampleFactor,
                   m_layout.Legend);
}

/// The same curves as the shapes, without a list of the lines between gaps.
void CBasicCurve::AddCurves(PartSink& sink) const {
    const std::size_t curves = std::min(m_prop.Plot.CurveName.size(), m_layout.Curves.size());
    for (std::size_t i = 0; i < curves; ++i) {
        sink.Add({PartKind::Curve, i}, CurveOutline(m_layout.Curves[i], StyleOf(m_prop.Plot, i, m_options)));
    }
}

std::optional<PlacedPart> CBasicCurve::HitTest(penlode::PointF point, float reach) const {
    return FindPart(point, reach, [this](PartSink& sink) { ListParts(sink); });
}

void CBasicCurve::VisitParts(const PartVisitor& visit) const {
    PartLister lister(visit);
    ListParts(lister);
}

} // namespace millichart
