#include "charts/pie/BasicHalfPieHistogram.h"

#include "charts/cartesian/FittedRange.h"
#include "charts/reading/Air.h"

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;

namespace {

void LeaveOnlyBars(HistogramProp& prop) {
    prop.Caption.ShowCaption = 0;
    HistogramVerAxisProp& ver = prop.VerAxis;
    ver.ShowVerAxis = 0;
    ver.MajorScaleStyle = ScaleStyle::None;
    ver.MinorScaleStyle = ScaleStyle::None;
    ver.ShowVerAxisLabel = 0;
    ver.ShowHorMajorGrid = 0;
    ver.ShowHorMinorGrid = 0;
    ver.ShowVerCaption = 0;
    HistogramHorAxisProp& hor = prop.HorAxis;
    hor.ShowHorAxis = 0;
    hor.ShowGroupName = 0;
    hor.ShowVerGrid = 0;
    hor.ShowHorCaption = 0;
}

} // namespace

void CBasicHalfPieHistogram::SetHalfPieHistogramProp(const HalfPieHistogramProp& prop) {
    m_prop = prop;
    LeaveOnlyBars(m_prop.Histogram);
}

void CBasicHalfPieHistogram::SetComponentValue(const std::vector<double>& slices,
                                               const std::vector<std::vector<double>>& groups,
                                               double largest) {
    m_slices = slices;
    m_groups = groups;
    m_largest = largest;
}

void CBasicHalfPieHistogram::ResetValueRange() {
    m_histogram.SetOptions(m_options);
    if (m_options.ValueRange == RangeStyle::BothEnds) {
        ValueSpan span = BarSpanOf(m_groups, m_prop.Histogram.Plot.Juxtaposition == 0, m_options);
        span.Take(m_largest);
        m_histogram.InitializeValueRange(
            m_prop.Histogram.Plot.LogarithmScale != 0 ? span.SmallestPositive() : span.Min(), span.Max());
    } else {
        m_histogram.InitializeValueRange(m_largest);
    }
}

void CBasicHalfPieHistogram::Layout() {
    m_halfPie.SetLocation(m_location);
    m_histogram.SetLocation(m_location);
    m_halfPie.SetOptions(m_options);
    m_histogram.SetOptions(m_options);
    m_halfPie.SetHalfPieProp(m_prop.HalfPie);
    if (m_histogram.SetHistogramProp(m_prop.Histogram)) {
        ResetValueRange();
    }
    m_halfPie.SetComponentValue(m_slices);
    m_histogram.SetComponentValue(m_groups);
    m_halfPie.Layout();
    m_histogram.Layout();
    StandOnTheBase();
    m_whole = penlode::Union(m_halfPie.GetPositionAll(), m_histogram.GetPositionAll());
}

/// The line through the centre, or the top of an upper half that keeps its labels apart.
float CBasicHalfPieHistogram::BarsBase() const {
    const bool isBelow =
        m_options.SliceLabels == SliceLabelFit::Apart && m_prop.HalfPie.Basic.WhichPart == HalfPiePart::Upper;
    const float air = AirOf(m_options, m_prop.HalfPie.Label.PieLabelTextProperty.Font);
    return isBelow ? m_halfPie.GetPositionAll().Y - air : m_location.Y;
}

/// The bar chart's size is known only from a layout, and its place from its size: it is laid out again.
void CBasicHalfPieHistogram::StandOnTheBase() {
    const RectF bars = m_histogram.GetPositionAll();
    m_histogram.SetLocation({m_location.X - bars.Width * 0.5F, BarsBase() - bars.Height});
    m_histogram.Layout();
}

void CBasicHalfPieHistogram::Draw(IGraphicsEngine* engine) const {
    m_halfPie.Draw(engine);
    m_histogram.Draw(engine);
}

void CBasicHalfPieHistogram::VisitTexts(const TextVisitor& visit) const {
    m_halfPie.VisitTexts(visit);
    m_histogram.VisitTexts(InPart(1, visit));
}

void CBasicHalfPieHistogram::GetChildPosition(RectF& pie, std::vector<RectF>& labels,
                                              std::vector<RectF>& legend) const {
    m_halfPie.GetChildPosition(pie, labels, legend);
}

void CBasicHalfPieHistogram::SetChildPosition(const RectF& pie, const std::vector<RectF>& labels,
                                              const std::vector<RectF>& legend) {
    m_halfPie.SetChildPosition(pie, labels, legend);
}

void CBasicHalfPieHistogram::GetChildOffset(std::vector<PointF>& labels, std::vector<PointF>& legend) const {
    m_halfPie.GetChildOffset(labels, legend);
}

void CBasicHalfPieHistogram::SetChildOffset(const std::vector<PointF>& labels,
                                            const std::vector<PointF>& legend) {
    m_halfPie.SetChildOffset(labels, legend);
}

} // namespace millichart
