#include "charts/curve/BasicCurve.h"

#include "charts/cartesian/CartesianPlacement.h"
#include "charts/cartesian/ReadableFrame.h"
#include "charts/curve/CurveMarker.h"
#include "charts/curve/CurvePlacement.h"
#include "charts/reading/TimeTicks.h"
#include "foundation/TextPropertyOperation.h"

#include <algorithm>
#include <utility>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

/// Do labels begin with digits, as numbers and dates do? What is left out can then be told from the others.
bool AreOnScale(const std::vector<std::string>& labels) {
    return std::all_of(labels.begin(), labels.end(), [](const std::string& label) {
        const std::size_t first = label.find_first_not_of("+-.");
        return label.empty() || (first != std::string::npos && label[first] >= '0' && label[first] <= '9');
    });
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
    m_layout.LabelsBelow = HorLabels::Spread;
    m_layout.HorLabelTimes.clear();
    m_layout.HorLabelTexts.clear();
    m_layout.HorLabelRects.clear();
    m_layout.HorLabelSizes.clear();
    m_layout.Curves.resize(m_values.size());
    if (m_values.empty()) {
        return;
    }
    TakeHorLabels();
    const FrameSizes sizes{CalcHorCaptionSize(), CalcVerAxisSize(), CalcHorAxisSize(), CalcPlotSize()};
    PlaceFrame(sizes, m_location, {}, m_layout);
    CalcVerAxisScale();
    CalcHorAxisScale();
    CalcVerAxisLabelRect();
    CalcHorAxisLabelRect();
    if (ReadsFrame(m_options)) {
        ReadFrame();
        CalcCurvePoint();
    } else {
        CalcCurvePoint();
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

HorLabels CBasicCurve::ChooseLabels() const {
    if (m_options.TimeLabels != TimeLabels::AtTimes) {
        return HorLabels::Spread;
    }
    if (m_options.TimeUnit == TimeUnit::Days || m_options.TimeUnit == TimeUnit::Seconds) {
        return HorLabels::Made;
    }
    return m_labelTimes.empty() ? HorLabels::Spread : HorLabels::AtTimes;
}

void CBasicCurve::TakeHorLabels() {
    m_layout.LabelsBelow = ChooseLabels();
    std::vector<TimeTick> ticks;
    if (m_layout.LabelsBelow == HorLabels::Made && HasTimes()) {
        const TextProperty& look = m_prop.HorAxis.HorLabelTextProperty;
        ticks = TimeTicksThatFit(
            {m_timeSpan.Min, m_timeSpan.Max, m_options.TimeUnit}, m_prop.Plot.PlotWidth - 2.0F * Inset(),
            [&look](const std::string& text) { return CTextPropertyOperation::GetTextSize(text, look); });
    } else if (m_layout.LabelsBelow == HorLabels::AtTimes) {
        ticks = LabelsWithin(m_timeSpan.Min, m_timeSpan.Max, m_labelTimes, m_labels);
    }
    for (TimeTick& tick : ticks) {
        m_layout.HorLabelTimes.push_back(tick.Time);
        m_layout.HorLabelTexts.push_back(std::move(tick.Text));
    }
}

bool CBasicCurve::HasTimes() const {
    const std::size_t curves = std::min(m_values.size(), m_times.size());
    return std::any_of(m_times.begin(), m_times.begin() + static_cast<std::ptrdiff_t>(curves),
                       [](const std::vector<std::int32_t>& times) { return !times.empty(); });
}

/// Those that are spread are the present ones, which may have changed since the layout.
const std::vector<std::string>& CBasicCurve::HorLabelTexts() const {
    return m_layout.LabelsBelow == HorLabels::Spread ? m_labels : m_layout.HorLabelTexts;
}

bool CBasicCurve::ShowsHorLabels() const {
    const std::size_t fewest = m_layout.LabelsBelow == HorLabels::Spread ? kFewestLabels : 1;
    return m_prop.HorAxis.ShowLabel != 0 && HorLabelTexts().size() >= fewest;
}

/// Half of the widest marker that is drawn.
float CBasicCurve::Inset() const {
    constexpr float kMostOfWidth = 0.1F;
    if (m_options.Air != ChartAir::ThirdOfLine) {
        return 0.0F;
    }
    float widest = 0.0F;
    const std::size_t curves = std::min(m_prop.Plot.CurveName.size(), m_values.size());
    for (std::size_t i = 0; i < curves; ++i) {
        const CurveStyle style = StyleOf(m_prop.Plot, i, m_options);
        widest = CurveMarker(style).IsDrawn() ? std::max(widest, style.DotWidth) : widest;
    }
    return std::min(widest * 0.5F, std::max(m_prop.Plot.PlotWidth, 0.0F) * kMostOfWidth);
}

RectF CBasicCurve::TimeArea() const {
    const float inset = Inset();
    const RectF& plot = m_layout.Plot;
    return {plot.X + inset, plot.Y, plot.Width - 2.0F * inset, plot.Height};
}

SizeF CBasicCurve::CalcHorAxisLabelSize() {
    m_layout.HorLabelSizes.clear();
    SizeF largest;
    if (!ShowsHorLabels()) {
        return largest;
    }
    for (const std::string& label : HorLabelTexts()) {
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
    const RectF area = TimeArea();
    const float bottom = area.Y + area.Height;
    const TimeScale across(area, m_timeSpan);
    for (const std::int32_t time : m_layout.HorLabelTimes) {
        m_layout.HorTicks.push_back({across.At(time), bottom});
    }
    if (m_layout.LabelsBelow != HorLabels::Spread || m_labels.size() < kFewestLabels) {
        return;
    }
    const float distance = area.Width / static_cast<float>(m_labels.size() - 1);
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        m_layout.HorTicks.push_back({area.X + static_cast<float>(i) * distance, bottom});
    }
}

void CBasicCurve::CalcVerAxisLabelRect() {
    PlaceVerLabels(m_prop.VerAxis, m_layout);
}

/// Under the ticks, of which there is one a label.
void CBasicCurve::CalcHorAxisLabelRect() {
    m_layout.HorLabelRects.clear();
    for (std::size_t i = 0; i < m_layout.HorLabelSizes.size(); ++i) {
        const SizeF size = m_layout.HorLabelSizes[i];
        const PointF tick = m_layout.HorTicks[i];
        m_layout.HorLabelRects.push_back(
            {tick.X - size.Width * 0.5F, tick.Y + kTickRoom, size.Width, size.Height});
    }
}

void CBasicCurve::CalcCurvePoint() {
    const CurveScales scales{TimeArea(), m_timeSpan, m_axis};
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
    const PointF by = m_location - m_layout.Whole.TopLeft();
    if (by == PointF{}) {
        return;
    }
    MoveFrame(by);
    for (CurveTrace& curve : m_layout.Curves) {
        Move(curve.Points, by);
    }
}

void CBasicCurve::ReadFrame() {
    const CurveHorAxisProp& hor = m_prop.HorAxis;
    std::vector<std::string> labels = HorLabelTexts();
    const std::size_t step = StepOf(hor.LabelStep);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i] = i % step == 0 ? std::move(labels[i]) : std::string();
    }
    PlaceReadably(
        {m_options,
         m_prop.Caption,
         m_prop.VerAxis,
         hor.HorCaption,
         hor.HorCaptionTextProperty,
         m_prop.Legend,
         m_prop.Plot.CurveName,
         kLegendSampleFactor,
         {}},
        {labels, m_layout.HorTicks, hor.HorLabelTextProperty, AreOnScale(labels), m_layout.HorLabelRects},
        m_layout);
    MoveFrame(m_location - m_layout.Whole.TopLeft());
}

void CBasicCurve::MoveFrame(PointF by) {
    Move(m_layout, by);
    Move(m_layout.HorLabelRects, by);
}

} // namespace millichart
