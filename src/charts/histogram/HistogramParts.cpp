#include "charts/cartesian/CartesianParts.h"
#include "charts/histogram/BasicHistogram.h"

/// What a user can point at in a bar chart.
namespace millichart {

void CBasicHistogram::ListParts(PartSink& sink) const {
    if (IsEmpty()) {
        return;
    }
    const TextVisitor texts = sink.Texts();
    const BarShapes shapes = GetShapes();
    sink.Add({PartKind::Plot}, BoxShape(m_layout.Plot, shapes.Depth));
    AddVerAxis(sink, m_prop.VerAxis, m_layout);
    VisitVerLabels(texts, m_prop.VerAxis, m_layout);
    VisitVerCaption(texts, m_options, m_prop.VerAxis, m_layout);
    AddHorAxis(sink);
    VisitGroupNames(texts);
    VisitHorCaption(texts, m_options, m_prop.HorAxis, m_layout);
    for (const BarShape& bar : shapes.Bars) {
        sink.Add({PartKind::Bar, bar.Group, bar.Component}, BoxShape(bar.Front, shapes.Depth));
    }
    VisitBarLabels(texts);
    VisitCaption(texts, m_options, m_prop.Caption, m_layout);
    sink.AddLegend(m_prop.Legend, m_prop.Plot.ComponentName, m_layout.LegendItemRects, kLegendSquareFactor,
                   m_layout.Legend);
}

/// The line on which bars stand is the axis's too.
void CBasicHistogram::AddHorAxis(PartSink& sink) const {
    const HistogramHorAxisProp& axis = m_prop.HorAxis;
    if (axis.ShowHorAxis == 0 || axis.HorAxisPen.Get() == nullptr) {
        return;
    }
    const penlode::RectF& plot = m_layout.Plot;
    LinesShape shape = HorAxisShape(m_layout, axis.ScaleStyle);
    const std::optional<float> base = m_layout.BaseLine;
    if (base && *base > plot.Y && *base < plot.Bottom()) {
        shape.Add(Segment{{plot.X, *base}, {plot.Right(), *base}});
    }
    sink.Add({PartKind::HorAxis}, shape);
}

std::optional<PlacedPart> CBasicHistogram::HitTest(penlode::PointF point, float reach) const {
    return FindPart(point, reach, [this](PartSink& sink) { ListParts(sink); });
}

void CBasicHistogram::VisitParts(const PartVisitor& visit) const {
    PartLister lister(visit);
    ListParts(lister);
}

} // namespace millichart
