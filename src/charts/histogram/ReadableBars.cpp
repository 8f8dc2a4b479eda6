#include "charts/cartesian/ReadableFrame.h"
#include "charts/histogram/BasicHistogram.h"
#include "foundation/TextPropertyOperation.h"

#include <algorithm>
#include <cmath>
#include <limits>

/// What a bar chart does so that it reads well.
namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

constexpr float kNoHeight = std::numeric_limits<float>::quiet_NaN();

/// With a height that is not negative.
RectF Normal(const RectF& bar) {
    return bar.Height < 0.0F ? RectF{bar.X, bar.Y + bar.Height, bar.Width, -bar.Height} : bar;
}

/// A label with all that its letters cover; `letters` is what they do of an empty box at (0, 0).
SizeF WithLetters(SizeF size, const RectF& letters) {
    return size.Width > 0.0F ? SizeF{size.Width + letters.Width, size.Height + letters.Height} : size;
}

} // namespace

/// Of a value that has a place, within the plot: a bar ends where its axis does.
float CBasicHistogram::PositionInPlot(double value) const {
    const float position = m_axis.ValueToPosition(value);
    return std::isfinite(position) ? std::clamp(position, 0.0F, std::max(m_layout.Plot.Height, 0.0F))
                                   : kNoHeight;
}

/// A logarithmic axis has no 0; its lower end is the nearest.
void CBasicHistogram::FindBaseLine() {
    if (m_options.BarBase == BarBase::Zero) {
        const float zero = PositionInPlot(0.0);
        m_layout.BaseLine = m_layout.Plot.Bottom() - (std::isfinite(zero) ? zero : 0.0F);
    }
}

/// Side by side each from the base; in a stack, values above 0 from the base up and those below it down.
std::vector<RectF> CBasicHistogram::OnZero(const std::vector<double>& values, float& x) const {
    const float bottom = m_layout.Plot.Bottom();
    const float base = bottom - *m_layout.BaseLine;
    const bool isStacked = m_prop.Plot.Juxtaposition == 0;
    const std::size_t names = m_prop.Plot.ComponentName.size();
    const std::size_t count = std::min(values.size(), names);
    double up = 0.0;
    double down = 0.0;
    std::vector<RectF> bars;
    bars.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        double& sum = values[i] < 0.0 ? down : up;
        const float from = sum == 0.0 ? base : PositionInPlot(sum);
        const bool isValue = std::isfinite(values[i]);
        const float to = isValue ? PositionInPlot(sum + values[i]) : kNoHeight;
        sum += isStacked && isValue ? values[i] : 0.0;
        bars.push_back({x, bottom - std::max(from, to), m_layout.ComponentWidth, std::abs(to - from)});
        x += isStacked ? 0.0F : m_layout.ComponentWidth;
    }
    x += static_cast<float>(isStacked ? 1 : names - count) * m_layout.ComponentWidth;
    return bars;
}

/// The top of a bar with depth covers a part of the front above it, so that stacks are drawn from below; of
/// the segments that hang from 0 the last is the lowest.
std::vector<std::size_t> CBasicHistogram::DrawingOrder(std::size_t group, std::size_t bars) const {
    const bool isReversed = m_layout.BaseLine && m_prop.Plot.Juxtaposition == 0;
    const auto hangs = [&](std::size_t i) { return isReversed && m_values[group][i] < 0.0; };
    std::vector<std::size_t> order;
    order.reserve(bars);
    for (std::size_t i = bars; i-- > 0;) {
        if (hangs(i)) {
            order.push_back(i);
        }
    }
    for (std::size_t i = 0; i < bars; ++i) {
        if (!hangs(i)) {
            order.push_back(i);
        }
    }
    return order;
}

void CBasicHistogram::ReadFrame() {
    PointF depth;
    Calc3DComponentBackSurfaceOffset(depth.X, depth.Y);
    const HistogramHorAxisProp& hor = m_prop.HorAxis;
    std::vector<PointF> stands;
    const float slot = m_layout.Plot.Width / static_cast<float>(m_values.size());
    for (std::size_t i = 0; i < m_layout.GroupNameRects.size(); ++i) {
        stands.push_back({m_layout.Plot.X + (static_cast<float>(i) + 0.5F) * slot, m_layout.Plot.Bottom()});
    }
    PlaceReadably({m_options, m_prop.Caption, m_prop.VerAxis, hor.HorCaption, hor.HorCaptionTextProperty,
                   m_prop.Legend, m_prop.Plot.ComponentName, kLegendSquareFactor, depth},
                  {m_groupNames, stands, hor.GroupNameTextProperty, false, m_layout.GroupNameRects},
                  m_layout);
    MoveAll(m_location - m_layout.Whole.TopLeft());
}

void CBasicHistogram::PlaceValueLabels() {
    const HistogramPlotProp& prop = m_prop.Plot;
    if (prop.ShowComponentName == 0 && prop.ShowComponentValue == 0) {
        return;
    }
    PointF depth;
    Calc3DComponentBackSurfaceOffset(depth.X, depth.Y);
    const TextProperty& look = prop.ComponentInfoTextProperty;
    const RectF letters = CTextPropertyOperation::GetReach({}, look.Angle);
    const std::vector<Fill> fills = FillsOfBars();
    std::vector<ValueToPlace> values;
    for (std::size_t group = 0; group < m_layout.ComponentRects.size(); ++group) {
        for (std::size_t i = 0; i < m_layout.ComponentRects[group].size(); ++i) {
            const double value = m_values[group][i];
            const RectF& bar = m_layout.ComponentRects[group][i];
            const SizeF size = CTextPropertyOperation::GetTextSize(ComponentInfo(group, i), look);
            const bool isHatched = i < fills.size() && fills[i].Hatch != Hatch::None;
            const bool hangs = m_layout.BaseLine ? value < 0.0 : bar.Height < 0.0F;
            values.push_back(
                {Normal(bar), WithLetters(size, letters), value, hangs, prop.Juxtaposition == 0, isHatched});
        }
    }
    const RectF& plot = m_layout.Plot;
    std::vector<PlacedValue> placed =
        PlaceValues(values, penlode::Union(plot, penlode::Translated(plot, depth)), depth);
    for (PlacedValue& label : placed) {
        label.Center = label.Center - letters.Center();
    }
    auto from = placed.begin();
    for (const std::vector<RectF>& bars : m_layout.ComponentRects) {
        const auto end = from + static_cast<std::ptrdiff_t>(bars.size());
        m_layout.ValueLabels.emplace_back(from, end);
        from = end;
    }
}

} // namespace millichart
