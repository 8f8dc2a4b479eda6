#include "charts/parts/PartSink.h"
#include "charts/pie/BasicHalfPieHalfPie.h"
#include "charts/pie/BasicHalfPieHistogram.h"
#include "charts/pie/BasicPie.h"
#include "charts/pie/SliceShape.h"

/// What a user can point at in pies and in what is composed of them.
namespace millichart {

using penlode::PointF;

namespace {

void AddSlices(PartSink& sink, const PieShapes& shapes) {
    for (std::size_t i = 0; i < shapes.Slices.size(); ++i) {
        if (CanBeSeen(shapes.Slices[i], shapes)) {
            sink.Add({PartKind::Slice, i}, SliceShape(shapes.Slices[i], shapes));
        }
    }
}

} // namespace

void CBasicPie::ListParts(PartSink& sink) const {
    AddSlices(sink, GetShapes());
    const TextVisitor texts = sink.Texts();
    VisitLabels(m_prop.Label, texts);
    VisitTitle(texts);
    sink.AddLegend(m_prop.Legend, m_prop.Basic.ComponentName, m_layout.LegendItemRects, kLegendSquareFactor,
                   m_layout.Legend);
}

void CBasicHalfPie::ListParts(PartSink& sink) const {
    AddSlices(sink, GetShapes());
    VisitTexts(sink.Texts());
}

void CBasicHalfPieHalfPie::ListParts(PartSink& sink) const {
    m_first.ListParts(sink);
    sink.BeginPart(1);
    m_second.ListParts(sink);
}

void CBasicHalfPieHistogram::ListParts(PartSink& sink) const {
    m_halfPie.ListParts(sink);
    sink.BeginPart(1);
    m_histogram.ListParts(sink);
}

std::optional<PlacedPart> CBasicPie::HitTest(PointF point, float reach) const {
    return FindPart(point, reach, [this](PartSink& sink) { ListParts(sink); });
}

void CBasicPie::VisitParts(const PartVisitor& visit) const {
    PartLister lister(visit);
    ListParts(lister);
}

std::optional<PlacedPart> CBasicHalfPie::HitTest(PointF point, float reach) const {
    return FindPart(point, reach, [this](PartSink& sink) { ListParts(sink); });
}

void CBasicHalfPie::VisitParts(const PartVisitor& visit) const {
    PartLister lister(visit);
    ListParts(lister);
}

std::optional<PlacedPart> CBasicHalfPieHalfPie::HitTest(PointF point, float reach) const {
    return FindPart(point, reach, [this](PartSink& sink) { ListParts(sink); });
}

void CBasicHalfPieHalfPie::VisitParts(const PartVisitor& visit) const {
    PartLister lister(visit);
    ListParts(lister);
}

std::optional<PlacedPart> CBasicHalfPieHistogram::HitTest(PointF point, float reach) const {
    return FindPart(point, reach, [this](PartSink& sink) { ListParts(sink); });
}

void CBasicHalfPieHistogram::VisitParts(const PartVisitor& visit) const {
    PartLister lister(visit);
    ListParts(lister);
}

} // namespace millichart
