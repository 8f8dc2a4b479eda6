#include "documents/Bars.h"
#include "documents/ChartDocument.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// Sizing a chart so that its whole figure is as large as asked. What stands round a plot is as large as its
/// texts, whatever the plot's size is, so that two layouts are enough in most cases.
namespace millichart {

using penlode::SizeF;

namespace {

constexpr float kLeastPlot = 5.0F;
constexpr double kTolerance = 0.03;
constexpr int kMostLayouts = 12;
constexpr int kFewLayouts = 3;

/// Looks for the size at which a measure that grows with it is as asked.
class Approach {
public:
    explicit Approach(double size) : m_size(std::max<double>(size, kLeastPlot)) {}

    /// In whole hundredths of a millimetre, as people write it.
    float Size() const { return static_cast<float>(std::round(m_size * 100.0) / 100.0); }

    bool IsThere() const { return std::abs(m_excess) <= kTolerance; }

    /// Is the least size too large?
    bool IsHopeless() const { return m_size <= kLeastPlot && m_excess > kTolerance; }

    /// What was measured less what was asked for.
    void Take(double excess) {
        if (m_size != m_lastSize && !std::isnan(m_lastSize)) {
            m_slope = std::clamp((excess - m_excess) / (m_size - m_lastSize), 0.25, 4.0);
        }
        (excess > 0.0 ? m_tooLarge : m_tooSmall) = m_size;
        m_lastSize = m_size;
        m_excess = excess;
    }

    void Move() {
        double next = m_size - m_excess / m_slope;
        if (next <= m_tooSmall || next >= m_tooLarge) {
            next = std::isinf(m_tooLarge) ? 2.0 * m_size : (m_tooSmall + m_tooLarge) / 2.0;
        }
        m_size = std::max<double>(next, kLeastPlot);
    }

    /// How large is too large, as another size has changed what was measured.
    void Forget() {
        m_tooSmall = 0.0;
        m_tooLarge = std::numeric_limits<double>::infinity();
    }

private:
    double m_size;
    double m_lastSize = std::numeric_limits<double>::quiet_NaN();
    double m_excess = 0.0;
    double m_slope = 1.0;
    double m_tooSmall = 0.0;
    double m_tooLarge = std::numeric_limits<double>::infinity();
};

/// The largest figure seen that is not too large. Where a name is wrapped or left out a figure jumps, and no
/// size makes it as large as asked.
class Largest {
public:
    void Take(SizeF figure, SizeF asked, const std::vector<float>& sizes) {
        const bool fits =
            figure.Width <= asked.Width + kTolerance && figure.Height <= asked.Height + kTolerance;
        const double area = static_cast<double>(figure.Width) * figure.Height;
        if (fits && area > m_area) {
            m_area = area;
            m_sizes = sizes;
        }
    }

    /// Empty when all were too large.
    const std::vector<float>& Sizes() const { return m_sizes; }

private:
    double m_area = 0.0;
    std::vector<float> m_sizes;
};

bool MayJump(const ChartDocument& chart) {
    return chart.Options.Labels == LabelFit::Fitted || chart.Options.SliceLabels == SliceLabelFit::Apart ||
           chart.Options.Legend == LegendSeat::OnPlot;
}

/// Nothing when there is no picture.
std::optional<SizeF> FigureOf(const LaidOutChart& chart) {
    const penlode::RectF ink = chart.FullExtent();
    const bool isPicture = !HasErrors(chart.Diagnostics) && ink.Width > 0.0F && ink.Height > 0.0F;
    return isPicture ? std::optional(SizeF{ink.Width, ink.Height}) : std::nullopt;
}

/// Gaps between groups keep their proportion to a plot that becomes narrower, and leave the groups room.
void FitGaps(HistogramDocument& document, const HistogramPlotProp& before) {
    constexpr float kLeastGroup = 0.25F; ///< of what a group and its gap share
    HistogramPlotProp& plot = document.Prop.Plot;
    const float slot =
        plot.PlotWidth / static_cast<float>(std::max<std::size_t>(document.Data.Values.size(), 1));
    const float narrowed = before.PlotWidth > 0.0F ? std::min(plot.PlotWidth / before.PlotWidth, 1.0F) : 1.0F;
    const float gap = before.GroupDistane * narrowed;
    plot.GroupDistane = slot - gap < slot * kLeastGroup ? slot * documents::kUsualGap : gap;
}

void FitGaps(CurveDocument&, const CurvePlotProp&) {}

/// In both directions, by the plot's width and height.
template <class Document> bool FitPlot(ChartDocument& chart, Document& document, SizeF figure) {
    const auto before = document.Prop.Plot;
    auto& plot = document.Prop.Plot;
    Approach width(std::min(before.PlotWidth, figure.Width));
    Approach height(std::min(before.PlotHeight, figure.Height));
    Largest largest;
    for (int i = 0; i < kMostLayouts; ++i) {
        plot.PlotWidth = width.Size();
        plot.PlotHeight = height.Size();
        FitGaps(document, before);
        const std::optional<SizeF> now = FigureOf(chart.LayOut());
        if (!now) {
            return false;
        }
        largest.Take(*now, figure, {plot.PlotWidth, plot.PlotHeight});
        width.Take(static_cast<double>(now->Width) - figure.Width);
        height.Take(static_cast<double>(now->Height) - figure.Height);
        if ((width.IsThere() && height.IsThere()) || width.IsHopeless() || height.IsHopeless()) {
            break;
        }
        // Bars are the deeper the wider they are, which takes height.
        if (i % kFewLayouts == kFewLayouts - 1) {
            width.Forget();
            height.Forget();
        }
        width.Move();
        height.Move();
    }
    const bool isThere = width.IsThere() && height.IsThere();
    constexpr float kStepDown = 0.97F;
    for (int i = 0; !isThere && MayJump(chart) && largest.Sizes().empty() && i < kMostLayouts; ++i) {
        plot.PlotWidth *= kStepDown;
        plot.PlotHeight *= kStepDown;
        FitGaps(document, before);
        largest.Take(FigureOf(chart.LayOut()).value_or(SizeF{}), figure, {plot.PlotWidth, plot.PlotHeight});
    }
    const bool isNear = !isThere && MayJump(chart) && !largest.Sizes().empty();
    if (isNear) {
        plot.PlotWidth = largest.Sizes()[0];
        plot.PlotHeight = largest.Sizes()[1];
        FitGaps(document, before);
    }
    return isThere || isNear;
}

/// Sizes that grow alike.
using Sizes = std::vector<float*>;

/// The circle's diameter, which the record says itself from here on.
template <class Basic> float* FixedDiameter(Basic& basic, const CSlicedCircle& circle) {
    basic.FixedSize = 1;
    basic.FixedWidth = circle.GetLayout().Pie.Width;
    return &basic.FixedWidth;
}

Sizes SizesOf(PieDocument& document, const CBasicPie& chart) {
    return {FixedDiameter(document.Prop.Basic, chart)};
}

Sizes SizesOf(HalfPieDocument& document, const CBasicHalfPie& chart) {
    return {FixedDiameter(document.Prop.Basic, chart)};
}

Sizes SizesOf(HalfPieHalfPieDocument& document, const CBasicHalfPieHalfPie& chart) {
    return {FixedDiameter(document.Prop.First.Basic, chart.GetFirstHalf()),
            FixedDiameter(document.Prop.Second.Basic, chart.GetSecondHalf())};
}

Sizes SizesOf(HalfPieHistogramDocument& document, const CBasicHalfPieHistogram& chart) {
    HistogramPlotProp& plot = document.Prop.Histogram.Plot;
    return {FixedDiameter(document.Prop.HalfPie.Basic, chart.GetHalfPie()), &plot.PlotWidth, &plot.PlotHeight,
            &plot.GroupDistane};
}

/// In one direction, by all sizes.
bool FitSizes(const ChartDocument& chart, const Sizes& sizes, SizeF figure) {
    std::vector<float> before;
    for (const float* size : sizes) {
        before.push_back(*size);
    }
    Approach first(std::min({before.front(), figure.Width, figure.Height}));
    Largest largest;
    const auto setTo = [&](float size) {
        for (std::size_t k = 0; k < sizes.size(); ++k) {
            *sizes[k] = before[k] * (size / before.front());
        }
    };
    for (int i = 0; i < kMostLayouts; ++i) {
        setTo(first.Size());
        const std::optional<SizeF> now = FigureOf(chart.LayOut());
        if (!now) {
            return false;
        }
        largest.Take(*now, figure, {first.Size()});
        first.Take(std::max(static_cast<double>(now->Width) - figure.Width,
                            static_cast<double>(now->Height) - figure.Height));
        if (first.IsThere() || first.IsHopeless()) {
            break;
        }
        first.Move();
    }
    const bool isNear = !first.IsThere() && MayJump(chart) && !largest.Sizes().empty();
    if (isNear) {
        setTo(largest.Sizes().front());
    }
    return first.IsThere() || isNear;
}

/// A gap that the document leaves open is found with a layout: it is kept from here on.
bool Fit(ChartDocument& chart, HistogramDocument& document, SizeF figure) {
    const LaidOutChart before = chart.LayOut();
    if (const auto* const bars = std::get_if<CBasicHistogram>(&before.Chart)) {
        document.Prop.Plot.GroupDistane = bars->GetHistogramProp().Plot.GroupDistane;
    }
    return FitPlot(chart, document, figure);
}

bool Fit(ChartDocument& chart, CurveDocument& document, SizeF figure) {
    return FitPlot(chart, document, figure);
}

template <class Document> bool Fit(ChartDocument& chart, Document& document, SizeF figure) {
    const LaidOutChart before = chart.LayOut();
    return FigureOf(before) && std::visit(
                                   [&](const auto& laidOut) {
                                       if constexpr (requires { SizesOf(document, laidOut); }) {
                                           return FitSizes(chart, SizesOf(document, laidOut), figure);
                                       } else {
                                           return false;
                                       }
                                   },
                                   before.Chart);
}

} // namespace

bool ChartDocument::FitTo(SizeF figure) {
    ChartDocument fitted = *this;
    const bool isFitted = std::visit(
        [&](auto& document) {
            if constexpr (std::is_same_v<std::decay_t<decltype(document)>, std::monostate>) {
                return false;
            } else {
                return Fit(fitted, document, figure);
            }
        },
        fitted.Content);
    if (isFitted) {
        *this = std::move(fitted);
    }
    return isFitted;
}

} // namespace millichart
