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
    m_lists = std::make_shared<const Lists>(Lists{std::move(values), std::move(times)});
    m_data.clear();
    for (std::size_t i = 0; i < m_lists->Values.size(); ++i) {
        CurveDataView& curve = m_data.emplace_back(CurveDataView{std::span(m_lists->Values[i]), {}});
        if (i < m_lists->Times.size()) {
            curve.Times = std::span(m_lists->Times[i]);
        }
    }
    CalcTimeSpan();
}

void CBasicCurve::SetCurveDataView(std::vector<CurveDataView> curves) {
    m_lists.reset();
    m_data = std::move(curves);
    CalcTimeSpan();
}

const CBasicCurve::Lists& CBasicCurve::HandedOver() const {
    static const Lists none;
    return m_lists == nullptr ? none : *m_lists;
}

void CBasicCurve::CalcTimeSpan() {
    m_timeSpan = TimeSpanOf(m_data, m_timeSpan);
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
    m_layout.Curves.clear();
    m_layout.Curves.resize(m_data.size());
    if (m_data.empty()) {
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
        ticks = TimeTicksThatFit({m_timeSpan.First(), m_timeSpan.Last(), m_options.TimeUnit},
                                 m_prop.Plot.PlotWidth - 2.0F * Inset(), [&look](const std::string& text) {
                                     return CTextPropertyOperation::GetTextSize(text, look);
                                 });
    } else if (m_layout.LabelsBelow == HorLabels::AtTimes) {
        ticks = LabelsWithin(m_timeSpan.First(), m_timeSpan.Last(), m_labelTimes, m_labels);
    }
    for (TimeTick& tick : ticks) {
        m_layout.HorLabelTimes.push_back(tick.Time);
        m_layout.HorLabelTexts.push_back(std::move(tick.Text));
    }
}

bool CBasicCurve::HasTimes() const {
    return std::any_of(m_data.begin(), m_data.end(), [](const CurveDataView& curve) {
        return std::visit([](const auto& times) { return !times.empty(); }, curve.Times);
    });
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
    const std::size_t curves = std::min(m_prop.Plot.CurveName.size(), m_data.size());
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
    const CurvePlacement placement{TimeArea(), m_timeSpan, m_axis.Frozen(), {}};
    m_layout.Curves.clear();
    for (const CurveDataView& curve : m_data) {
        m_layout.Curves.emplace_back(curve, placement, m_lists);
    }
}

/// Only a legend at the left or above moves anything.
void CBasicCurve::PlaceLegendAndShift() {
    PlaceLegend(m_prop.Legend, m_prop.Plot.CurveName, kLegendSampleFactor, m_layout);
    const PointF by = m_location - m_layout.Whole.TopLeft();
    if (by == PointF{}) {
        return;
    }
    MoveFrame(by);
    for (CurveTrace& curve : m_layout.Curves) {
        curve.Move(by);
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
