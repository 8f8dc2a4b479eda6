#include "charts/curve/BasicCurve.h"

#include "charts/cartesian/CartesianPlacement.h"
#include "charts/cartesian/ReadableFrame.h"
#include "charts/curve/CurvePlacement.h"
#include "foundation/TextPropertyOperation.h"

#include <algorithm>
#include <utility>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

/// The distance between neighbours of `count` labels, two or more, that stand over the plot's whole width.
float LabelDistance(const RectF& plot, std::size_t count) {
    return plot.Width / static_cast<float>(count - 1);
}

} // namespace

bool CBasicCurve::SetCurveProp(const CurveProp& prop) {
    m_prop = prop;
    return m_axis.ChooseScale(m_prop.Plot.LogarithmScale != 0, m_prop.Plot.PlotHeight);
}

void CBasicCurve::SetCurveData(std::vector<std::vector<double>> values,
                               std::vector<std::vector<std::int32_t>> times) {
    m_values = std::move(values);
    m_times = std::move(times);
    CalcTimeSpan();
}

void CBasicCurve::CalcTimeSpan() {
    const std::size_t curves = std::min(m_values.size(), m_times.size());
    m_timeSpan = TimeSpanOf(std::span(m_times).first(curves), m_timeSpan);
}

void CBasicCurve::Layout() {
    Reset(m_layout, m_location);
    m_layout.VerCaptionSize = {};
    m_layout.HorCaptionSize = {};
    m_layout.HorLabelRects.clear();
    m_layout.HorLabelSizes.clear();
    m_layout.Curves.resize(m_values.size());
    if (m_values.empty()) {
        return;
    }
    const FrameSizes sizes{CalcHorCaptionSize(), CalcVerAxisSize(), CalcHorAxisSize(), CalcPlotSize()};
    PlaceFrame(sizes, m_location, {}, m_layout);
    CalcVerAxisScale();
    CalcHorAxisScale();
    CalcVerAxisLabelRect();
    CalcHorAxisLabelRect();
    CalcCurvePoint();
    if (ReadsFrame(m_options)) {
        ReadFrame();
    } else {
        PlaceLegendAndShift();
    }
}

SizeF CBasicCurve::CalcHorCaptionSize() const {
    return CalcCaptionSize();
}

SizeF CBasicCurve::CalcVerCaptionSize() const {
    const CurveVerAxisProp& axis = m_prop.VerAxis;
    return CaptionSize(axis.ShowVerCaption, axis.VerCaption, axis.VerCaptionTextProperty);
}

SizeF CBasicCurve::CalcCaptionSize() const {
    const CaptionProp& caption = m_prop.Caption;
    return CaptionSize(caption.ShowCaption, caption.Caption, caption.CaptionTextProperty);
}

SizeF CBasicCurve::CalcPlotSize() const {
    return {m_prop.Plot.PlotWidth, m_prop.Plot.PlotHeight};
}

SizeF CBasicCurve::CalcVerAxisSize() {
    if (m_prop.VerAxis.ShowVerAxis == 0) {
        return {};
    }
    CalcVerAxisLabelText();
    m_layout.VerCaptionSize = CalcVerCaptionSize();
    return VerAxisSize(m_prop.VerAxis, m_prop.Plot.PlotHeight, m_layout);
}

void CBasicCurve::CalcVerAxisLabelText() {
    TakeVerLabels(m_prop.VerAxis, m_axis, NumberFormat(m_options), m_layout);
}

SizeF CBasicCurve::CalcHorAxisSize() {
    const CurveHorAxisProp& axis = m_prop.HorAxis;
    if (axis.ShowHorAxis == 0) {
        return {};
    }
    m_layout.HorCaptionSize = CaptionSize(axis.ShowHorCaption, axis.HorCaption, axis.HorCaptionTextProperty);
    const float labelHeight = CalcHorAxisLabelSize().Height;
    return {m_prop.Plot.PlotWidth,
            m_layout.HorCaptionSize.Height + labelHeight + TickAllowance(axis.ScaleStyle)};
}

bool CBasicCurve::ShowsHorLabels() const {
    return m_prop.HorAxis.ShowLabel != 0 && m_labels.size() >= kFewestLabels;
}

SizeF CBasicCurve::CalcHorAxisLabelSize() {
    m_layout.HorLabelSizes.clear();
    SizeF largest;
    if (!ShowsHorLabels()) {
        return largest;
    }
    for (const std::string& label : m_labels) {
        const SizeF size = CTextPropertyOperation::GetTextSize(label, m_prop.HorAxis.HorLabelTextProperty);
        m_layout.HorLabelSizes.push_back(size);
        largest = {std::max(largest.Width, size.Width), std::max(largest.Height, size.Height)};
    }
    return largest;
}

void CBasicCurve::CalcVerAxisScale() {
    PlaceVerTicks(m_prop.VerAxis, m_axis, m_layout);
}

void CBasicCurve::CalcHorAxisScale() {
    m_layout.HorTicks.clear();
    if (m_labels.size() < kFewestLabels) {
        return;
    }
    const RectF& plot = m_layout.Plot;
    const float distance = LabelDistance(plot, m_labels.size());
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        m_layout.HorTicks.push_back({plot.X + static_cast<float>(i) * distance, plot.Y + plot.Height});
    }
}

void CBasicCurve::CalcVerAxisLabelRect() {
    PlaceVerLabels(m_prop.VerAxis, m_layout);
}

void CBasicCurve::CalcHorAxisLabelRect() {
    const std::vector<SizeF>& sizes = m_layout.HorLabelSizes;
    m_layout.HorLabelRects.clear();
    if (m_prop.HorAxis.ShowLabel == 0 || sizes.size() < kFewestLabels) {
        return;
    }
    const RectF& plot = m_layout.Plot;
    const float distance = LabelDistance(plot, sizes.size());
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        m_layout.HorLabelRects.push_back({plot.X + static_cast<float>(i) * distance - sizes[i].Width * 0.5F,
                                          plot.Y + plot.Height + kTickRoom, sizes[i].Width, sizes[i].Height});
    }
}

void CBasicCurve::CalcCurvePoint() {
    const CurveScales scales{m_layout.Plot, m_timeSpan, m_axis};
    m_layout.Curves.resize(m_values.size());
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        const std::size_t count = i < m_times.size() ? std::min(m_values[i].size(), m_times[i].size()) : 0;
        const std::span times = count > 0 ? std::span<const std::int32_t>(m_times[i]).first(count)
                                          : std::span<const std::int32_t>();
        PlaceCurve(std::span<const double>(m_values[i]).first(count), times, scales, m_layout.Curves[i]);
    }
}

/// Only a legend at the left or above moves anything; points are not written twice for nothing.
void CBasicCurve::PlaceLegendAndShift() {
    PlaceLegend(m_prop.Legend, m_prop.Plot.CurveName, kLegendSampleFactor, m_layout);
    MoveAll(m_location - m_layout.Whole.TopLeft());
}

void CBasicCurve::ReadFrame() {
    const CurveHorAxisProp& hor = m_prop.HorAxis;
    std::vector<std::string> labels = m_labels;
    const std::size_t step = HorLabelStep();
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i] = i % step == 0 ? std::move(labels[i]) : std::string();
    }
    PlaceReadably({m_options,
                   m_prop.Caption,
                   m_prop.VerAxis,
                   hor.HorCaption,
                   hor.HorCaptionTextProperty,
                   m_prop.Legend,
                   m_prop.Plot.CurveName,
                   kLegendSampleFactor,
                   {}},
                  {labels, m_layout.HorTicks, hor.HorLabelTextProperty, true, m_layout.HorLabelRects},
                  m_layout);
    MoveAll(m_location - m_layout.Whole.TopLeft());
}

void CBasicCurve::MoveAll(PointF by) {
    if (by == PointF{}) {
        return;
    }
    Move(m_layout, by);
    Move(m_layout.HorLabelRects, by);
    for (CurveTrace& curve : m_layout.Curves) {
        Move(curve.Points, by);
    }
}

} // namespace millichart
