#include "charts/histogram/BasicHistogram.h"

#include "charts/cartesian/CartesianPlacement.h"
#include "charts/cartesian/ReadableFrame.h"
#include "foundation/TextPropertyOperation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

constexpr float kMinGroupWidth = 1.0F;
constexpr float kDepthOfWidth = 0.5F;
// 30 degrees; its digits are part of the bars' depth.
constexpr float kDepthAngle = 0.5235988F;
constexpr float kNoHeight = std::numeric_limits<float>::quiet_NaN();

} // namespace

bool CBasicHistogram::SetHistogramProp(const HistogramProp& prop) {
    m_prop = prop;
    return m_axis.ChooseScale(m_prop.Plot.LogarithmScale != 0, m_prop.Plot.PlotHeight);
}

void CBasicHistogram::Layout() {
    Reset(m_layout, m_location);
    m_layout.GroupNameRects.clear();
    m_layout.GroupNameSizes.clear();
    m_layout.ComponentRects.clear();
    m_layout.ComponentWidth = -1.0F;
    m_layout.GroupGap = -1.0F;
    m_layout.BaseLine = std::nullopt;
    m_layout.ValueLabels.clear();
    if (m_values.empty()) {
        return;
    }
    CalcFrame();
    CalcVerAxisScale();
    CalcHorAxisScale();
    CalcVerAxisLabelRect();
    CalcGroupNameRect();
    FindBaseLine();
    CalcConponentRect();
    Read();
}

void CBasicHistogram::Read() {
    if (ReadsFrame(m_options)) {
        ReadFrame();
    } else {
        PlaceLegendAndShift();
    }
    if (m_options.Labels == LabelFit::Fitted) {
        PlaceValueLabels();
    }
}

void CBasicHistogram::CalcFrame() {
    const FrameSizes sizes{CalcCaptionSize(), CalcVerAxisSize(), CalcHorAxisSize(), CalcPlotSize()};
    CalcComponentWidth();
    float dx = 0.0F;
    float dy = 0.0F;
    Calc3DComponentBackSurfaceOffset(dx, dy);
    PlaceFrame(sizes, m_location, {dx, -dy}, m_layout);
}

SizeF CBasicHistogram::CalcCaptionSize() const {
    const CaptionProp& caption = m_prop.Caption;
    return CaptionSize(caption.ShowCaption, caption.Caption, caption.CaptionTextProperty);
}

SizeF CBasicHistogram::CalcVerCaptionSize() const {
    const HistogramVerAxisProp& axis = m_prop.VerAxis;
    return CaptionSize(axis.ShowVerCaption, axis.VerCaption, axis.VerCaptionTextProperty);
}

SizeF CBasicHistogram::CalcHorCaptionSize() const {
    const HistogramHorAxisProp& axis = m_prop.HorAxis;
    return CaptionSize(axis.ShowHorCaption, axis.HorCaption, axis.HorCaptionTextProperty);
}

SizeF CBasicHistogram::CalcPlotSize() const {
    return {m_prop.Plot.PlotWidth, m_prop.Plot.PlotHeight};
}

SizeF CBasicHistogram::CalcVerAxisSize() {
    if (m_prop.VerAxis.ShowVerAxis == 0) {
        return {};
    }
    CalcVerAxisLabelText();
    m_layout.VerCaptionSize = CalcVerCaptionSize();
    return VerAxisSize(m_prop.VerAxis, m_prop.Plot.PlotHeight, m_layout);
}

void CBasicHistogram::CalcVerAxisLabelText() {
    TakeVerLabels(m_prop.VerAxis, m_axis, NumberFormat(m_options), m_layout);
}

SizeF CBasicHistogram::CalcHorAxisSize() {
    if (m_prop.HorAxis.ShowHorAxis == 0) {
        return {};
    }
    const float nameHeight = CalcGroupNameSize();
    m_layout.HorCaptionSize = CalcHorCaptionSize();
    return {m_prop.Plot.PlotWidth,
            m_layout.HorCaptionSize.Height + nameHeight + TickAllowance(m_prop.HorAxis.ScaleStyle)};
}

float CBasicHistogram::CalcGroupNameSize() {
    m_layout.GroupNameSizes.clear();
    if (!ShowsGroupNames()) {
        return 0.0F;
    }
    float height = 0.0F;
    for (const std::string& name : m_groupNames) {
        const SizeF size = CTextPropertyOperation::GetTextSize(name, m_prop.HorAxis.GroupNameTextProperty);
        m_layout.GroupNameSizes.push_back(size);
        height = std::max(height, size.Height);
    }
    return height;
}

bool CBasicHistogram::ShowsGroupNames() const {
    return m_prop.HorAxis.ShowGroupName != 0 && m_groupNames.size() == m_values.size();
}

/// A group and its gap always take one share of the plot's width. A group keeps at least 1 mm, at the cost of
/// the gap, which may then be negative. Where no bar has a name there is none, and so no width.
void CBasicHistogram::CalcComponentWidth() {
    const HistogramPlotProp& plot = m_prop.Plot;
    const auto groups = static_cast<float>(m_values.size());
    float groupWidth = (plot.PlotWidth - plot.GroupDistane * groups) / groups;
    m_layout.GroupGap = plot.GroupDistane;
    if (groupWidth < kMinGroupWidth) {
        groupWidth = kMinGroupWidth;
        m_layout.GroupGap = (plot.PlotWidth - groups) / groups;
    }
    const std::size_t abreast = plot.Juxtaposition == 0 ? 1 : plot.ComponentName.size();
    m_layout.ComponentWidth = abreast == 0 ? 0.0F : groupWidth / static_cast<float>(abreast);
}

void CBasicHistogram::Calc3DComponentBackSurfaceOffset(float& dx, float& dy) const {
    if (m_prop.Plot.PieStyle == BarStyle::Flat) {
        dx = 0.0F;
        dy = 0.0F;
        return;
    }
    dx = m_layout.ComponentWidth * kDepthOfWidth;
    dy = static_cast<float>(-dx * std::tan(static_cast<double>(kDepthAngle)));
}

void CBasicHistogram::CalcVerAxisScale() {
    PlaceVerTicks(m_prop.VerAxis, m_axis, m_layout);
}

void CBasicHistogram::CalcHorAxisScale() {
    if (m_prop.HorAxis.ShowHorAxis == 0) {
        return;
    }
    const RectF& plot = m_layout.Plot;
    const auto groups = static_cast<float>(m_values.size());
    for (std::size_t i = 1; i < m_values.size(); ++i) {
        m_layout.HorTicks.push_back(
            {plot.X + static_cast<float>(i) * plot.Width / groups, plot.Y + plot.Height});
    }
}

void CBasicHistogram::CalcVerAxisLabelRect() {
    PlaceVerLabels(m_prop.VerAxis, m_layout);
}

void CBasicHistogram::CalcGroupNameRect() {
    const RectF& plot = m_layout.Plot;
    const float slot = plot.Width / static_cast<float>(m_values.size());
    for (std::size_t i = 0; i < m_layout.GroupNameSizes.size(); ++i) {
        const SizeF size = m_layout.GroupNameSizes[i];
        m_layout.GroupNameRects.push_back({plot.X + static_cast<float>(i) * slot + (slot - size.Width) * 0.5F,
                                           plot.Y + plot.Height + kTickRoom, size.Width, size.Height});
    }
}

void CBasicHistogram::CalcConponentRect() {
    const float gap = m_layout.GroupGap;
    const bool isStacked = m_prop.Plot.Juxtaposition == 0;
    float x = m_layout.Plot.X + gap * 0.5F;
    m_layout.ComponentRects.reserve(m_values.size());
    for (const std::vector<double>& values : m_values) {
        m_layout.ComponentRects.push_back(m_layout.BaseLine ? OnZero(values, x)
                                          : isStacked       ? Stacked(values, x)
                                                            : SideBySide(values, x));
        x += gap;
    }
}

std::vector<RectF> CBasicHistogram::SideBySide(const std::vector<double>& values, float& x) const {
    const float base = m_layout.Plot.Y + m_layout.Plot.Height;
    const std::size_t names = m_prop.Plot.ComponentName.size();
    std::vector<RectF> bars;
    bars.reserve(std::min(values.size(), names));
    for (std::size_t i = 0; i < values.size() && i < names; ++i) {
        const float height = m_axis.ValueToPosition(values[i]);
        bars.push_back({x, base - height, m_layout.ComponentWidth, height});
        x += m_layout.ComponentWidth;
    }
    x += static_cast<float>(names - bars.size()) * m_layout.ComponentWidth;
    return bars;
}

/// Each segment reaches from the sum before it to the sum with it. Where the sum before is not positive, it
/// starts at the axis's origin. A segment without a finite place is not drawn and carries none of the others
/// away.
std::vector<RectF> CBasicHistogram::Stacked(const std::vector<double>& values, float& x) const {
    float base = m_layout.Plot.Y + m_layout.Plot.Height;
    const std::size_t count = std::min(values.size(), m_prop.Plot.ComponentName.size());
    std::vector<RectF> bars;
    bars.reserve(count);
    double sum = 0.0;
    for (std::size_t i = 0; i < count; ++i) {
        const float bottom = sum > 0.0 ? m_axis.ValueToPosition(sum) : 0.0F;
        const bool isValue = std::isfinite(values[i]);
        sum += isValue ? values[i] : 0.0;
        const float height = isValue ? m_axis.ValueToPosition(sum) - bottom : kNoHeight;
        bars.push_back({x, base - height, m_layout.ComponentWidth, height});
        base -= std::isfinite(height) ? height : 0.0F;
    }
    x += m_layout.ComponentWidth;
    return bars;
}

void CBasicHistogram::PlaceLegendAndShift() {
    if (m_prop.Legend.ShowLegend == 0) {
        return;
    }
    PlaceLegend(m_prop.Legend, m_prop.Plot.ComponentName, kLegendSquareFactor, m_layout);
    MoveAll(m_location - m_layout.Whole.TopLeft());
}

void CBasicHistogram::MoveAll(PointF by) {
    Move(m_layout, by);
    Move(m_layout.GroupNameRects, by);
    for (std::vector<RectF>& bars : m_layout.ComponentRects) {
        Move(bars, by);
    }
    if (m_layout.BaseLine) {
        *m_layout.BaseLine += by.Y;
    }
}

} // namespace millichart
