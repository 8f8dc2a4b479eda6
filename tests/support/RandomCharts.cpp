#include "support/RandomCharts.h"

#include "support/Texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>
#include <string_view>

using namespace millichart;
using penlode::Color;
using penlode::Font;
using penlode::Owned;
using penlode::Pen;
using penlode::PointF;

namespace {

/// Choices from a seed, the same on every platform: the standard library's distributions are not, nor is the
/// order in which a call's arguments are evaluated. So each choice is a statement of its own.
class Choices {
public:
    Choices(std::uint32_t seed, Variety variety) : m_engine(seed), m_isFull(variety == Variety::Full) {}

    bool IsFull() const { return m_isFull; }

    std::uint32_t Below(std::uint32_t count) { return static_cast<std::uint32_t>(m_engine()) % count; }

    std::int32_t Between(std::int32_t least, std::int32_t most) {
        return least + static_cast<std::int32_t>(Below(static_cast<std::uint32_t>(most - least + 1)));
    }

    /// Never for a count of 0.
    bool OneIn(std::uint32_t count) { return count != 0 && Below(count) == 0; }

    /// Is it time for what no person would choose?
    bool Odd() { return m_isFull && OneIn(25); }

    std::int32_t Flag() { return Odd() ? Between(-1, 2) : Between(0, 1); }

    /// From 0 to `most`, few more often than many.
    std::size_t Count(std::uint32_t most) { return Below(Below(most + 1) + 1); }

    /// In most charts from 1 to `few`, which takes less time, and in some from 0 to `most`.
    std::size_t FewOrUpTo(std::uint32_t few, std::uint32_t most) {
        return OneIn(20) ? Below(most + 1) : 1 + Below(few);
    }

    /// `most`, or sometimes less where lists may be too short.
    std::size_t Length(std::size_t most) {
        return Odd() ? Below(static_cast<std::uint32_t>(most) + 1) : most;
    }

    /// Between two numbers of hundredths.
    float Hundredths(std::int32_t least, std::int32_t most) {
        return static_cast<float>(Between(least, most)) / 100.0F;
    }

    template <class Item, std::size_t N> const Item& OneOf(const std::array<Item, N>& items) {
        return items[Below(static_cast<std::uint32_t>(N))];
    }

private:
    std::mt19937 m_engine;
    bool m_isFull;
};

template <class Make> auto ListOf(std::size_t count, const Make& make) {
    std::vector<decltype(make())> list(count);
    std::generate(list.begin(), list.end(), make);
    return list;
}

/// The size of a plot's side or of a pie, in mm.
float AnySize(Choices& any) {
    return any.IsFull() ? any.Hundredths(100, 30000) : any.Hundredths(3000, 20000);
}

PointF AnyPoint(Choices& any, std::int32_t farthest) {
    const float x = any.Hundredths(-farthest * 100, farthest * 100);
    return {x, any.Hundredths(-farthest * 100, farthest * 100)};
}

Color AnyColor(Choices& any) {
    const std::uint32_t opaque = any.Below(0x1000000U) | 0xFF000000U;
    return any.OneIn(8) ? Color{opaque & 0x80FFFFFFU} : Color{opaque};
}

std::vector<Color> AnyColors(Choices& any, std::size_t count) {
    return ListOf(any.Length(count), [&any] { return AnyColor(any); });
}

Owned<Pen> AnyPen(Choices& any) {
    if (any.Odd()) {
        return nullptr;
    }
    const Color color = AnyColor(any);
    const float width = any.OneIn(8) ? 0.0F : any.Hundredths(5, 100);
    return Pen(color, width, static_cast<penlode::DashStyle>(any.Between(0, 5)));
}

/// From 5 to 14 pt, or up to half as large and twice as large.
Owned<Font> AnyFont(Choices& any) {
    static const std::array<const wchar_t*, 4> kFamilies{L"宋体", L"Arial", L"Times New Roman", L""};
    if (any.Odd()) {
        return nullptr;
    }
    const wchar_t* const family = any.OneOf(kFamilies);
    const float size = any.IsFull() ? any.Hundredths(88, 988) : any.Hundredths(176, 494);
    return Font{family, size, any.OneIn(4) ? any.Between(0, 15) : 0};
}

/// 0 to 30 characters, Latin, Chinese or both, sometimes in two lines.
std::string AnyName(Choices& any) {
    constexpr std::wstring_view kLatin = L"abc deghi mnopr stuvy ABCEGSTW 0123456789-.,%|\\\"'()";
    constexpr std::wstring_view kChinese =
        L"年月日中国北京上海煤炭石油天然气水电核风能（百万吨）第一二三季度人口收入、：";
    const std::uint32_t chinese = any.Below(3); // none, all, every other one
    std::wstring name;
    for (std::size_t letters = any.Count(30); letters > 0; --letters) {
        const std::wstring_view alphabet = any.OneIn(chinese) ? kChinese : kLatin;
        name += alphabet[any.Below(static_cast<std::uint32_t>(alphabet.size()))];
    }
    if (any.OneIn(20)) {
        name.insert(name.size() / 2, 1, L'\n');
    }
    return Narrow(name);
}

std::vector<std::string> AnyNames(Choices& any, std::size_t count) {
    return ListOf(any.Length(count), [&any] { return AnyName(any); });
}

std::string AnySeparator(Choices& any) {
    static const std::array<const wchar_t*, 5> kSeparators{L";", L", ", L"：", L" ", L""};
    return Narrow(any.OneOf(kSeparators));
}

TextProperty AnyText(Choices& any) {
    static constexpr std::array<std::int32_t, 8> kAngles{0, 0, 0, 0, 0, 45, 90, -90};
    TextProperty text;
    text.Font = AnyFont(any);
    text.TextColor = AnyColor(any);
    text.EdgeColor = AnyColor(any);
    text.BkColor = AnyColor(any);
    text.DrawEdge = any.OneIn(4) ? any.Flag() : 0;
    text.DrawBackGround = any.OneIn(4) ? any.Flag() : 0;
    text.Prefix = any.OneIn(8) ? std::string("<") : std::string();
    text.Postfix = any.OneIn(8) ? Narrow(L"吨") : "";
    text.Angle = any.IsFull() && any.OneIn(4) ? any.Between(-400, 400) : any.OneOf(kAngles);
    return text;
}

LegendProp AnyLegend(Choices& any) {
    LegendProp legend;
    legend.ShowLegend = any.Flag();
    legend.LegendPos = any.Odd() ? -1 : any.Between(LegendPosition::LeftTop, LegendPosition::BottomRight);
    legend.ShowEdge = any.Flag();
    legend.PenEdge = AnyPen(any);
    legend.ShowBackground = any.Flag();
    legend.BackgroundColor = AnyColor(any);
    legend.ItemDist = any.Hundredths(0, 500);
    legend.Font = AnyFont(any);
    return legend;
}

/// Digits times a power of ten, as exact as a double is.
double Decimal(std::int32_t digits, std::int32_t exponent) {
    static constexpr std::array kPowers{1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};
    const double power = kPowers.at(static_cast<std::size_t>(std::abs(exponent)));
    return exponent < 0 ? digits / power : digits * power;
}

/// What the numbers of one chart are like: the power of ten of their last digit, and how many of them are out
/// of the ordinary: one in so many, or none for 0.
struct Numbers {
    std::int32_t Exponent = 0;
    std::uint32_t Negative = 0;
    std::uint32_t Zero = 0;
    std::uint32_t Tiny = 0;
    std::uint32_t Huge = 0;
};

Numbers AnyNumbers(Choices& any) {
    const auto share = [&any] { return any.OneIn(4) ? 1 + any.Below(10) : 0; };
    Numbers numbers;
    numbers.Exponent = any.OneIn(3) ? any.Between(-7, 6) : any.Between(-2, 0);
    numbers.Negative = share();
    numbers.Zero = share();
    numbers.Tiny = share();
    numbers.Huge = share();
    return numbers;
}

double AnyNumber(Choices& any, const Numbers& numbers) {
    if (any.Odd() && any.OneIn(4)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    double number = any.OneIn(numbers.Zero) ? 0.0 : Decimal(any.Between(1, 9999), numbers.Exponent);
    number /= any.OneIn(numbers.Tiny) ? 1000.0 : 1.0;
    number *= any.OneIn(numbers.Huge) ? 1000.0 : 1.0;
    return any.OneIn(numbers.Negative) ? -number : number;
}

std::vector<double> AnyValues(Choices& any, std::size_t count, const Numbers& numbers) {
    return ListOf(any.Length(count), [&] { return AnyNumber(any, numbers); });
}

double LargestOf(const std::vector<std::vector<double>>& lists) {
    double largest = 0.0;
    for (const std::vector<double>& list : lists) {
        for (const double value : list) {
            largest = std::isfinite(value) ? std::max(largest, value) : largest;
        }
    }
    return largest;
}

/// None is negative where a person chose them.
std::vector<double> AnySlices(Choices& any) {
    Numbers numbers = AnyNumbers(any);
    numbers.Negative = any.IsFull() ? numbers.Negative : 0;
    return AnyValues(any, any.FewOrUpTo(5, 50), numbers);
}

/// What pies and half pies have alike. The size that follows from the values is in most cases one that fits a
/// page.
template <class Basic> void MakeCircle(Choices& any, const std::vector<double>& values, Basic& basic) {
    const double total = std::accumulate(values.begin(), values.end(), 0.0);
    basic.FixedSize = any.Flag();
    basic.FixedWidth = AnySize(any);
    basic.BasePieWidth = AnySize(any);
    basic.BaseValue = any.Odd() || !(total > 0.0) ? any.Hundredths(1, 100000) : static_cast<float>(total);
    basic.DrawSepLine = any.Flag();
    basic.PenSepLine = AnyPen(any);
    basic.ComponentName = AnyNames(any, values.size());
    basic.ComponentColor = AnyColors(any, values.size());
}

PieLabelProp AnySliceLabels(Choices& any) {
    PieLabelProp label;
    label.ShowNameLabel = any.Flag();
    label.ShowValueLabel = any.Flag();
    label.ShowPercentLabel = any.Flag();
    label.LabelsInSingleRow = any.Flag();
    label.LabelSeparator = AnySeparator(any);
    label.PieLabelTextProperty = AnyText(any);
    label.DistBetweenLabelCenterAndPieCenter =
        any.IsFull() ? any.Hundredths(-500, 3000) : any.Hundredths(0, 500);
    label.ShowLabelLeadLine = any.Flag();
    label.LabelLeadLinePen = AnyPen(any);
    return label;
}

PieProp AnyPieProp(Choices& any, const std::vector<double>& values) {
    static constexpr std::array kStarts{0.0F, 90.0F, 180.0F, 270.0F};
    PieProp prop;
    prop.Basic.PieStyle = any.Odd() ? 2 : any.Between(0, 1);
    prop.Basic.StartAngle = any.OneIn(2) ? any.OneOf(kStarts) : any.Hundredths(0, 35999);
    prop.Basic.StartAngle = any.Odd() ? any.Hundredths(-72000, 72000) : prop.Basic.StartAngle;
    MakeCircle(any, values, prop.Basic);
    prop.Label = AnySliceLabels(any);
    prop.Legend = AnyLegend(any);
    return prop;
}

HalfPieProp AnyHalfPieProp(Choices& any, const std::vector<double>& values) {
    HalfPieProp prop;
    prop.Basic.WhichPart = any.Flag();
    MakeCircle(any, values, prop.Basic);
    prop.Label = AnySliceLabels(any);
    return prop;
}

/// Where a user moved the labels of so many slices to; in most cases nowhere.
std::vector<PointF> AnyOffsets(Choices& any, std::size_t count) {
    const bool isMoved = any.IsFull() && any.OneIn(3);
    return ListOf(any.Length(count), [&] { return isMoved ? AnyPoint(any, 20) : PointF{}; });
}

CaptionProp AnyCaption(Choices& any) {
    CaptionProp caption;
    caption.ShowCaption = any.Flag();
    caption.Caption = AnyName(any);
    caption.CaptionTextProperty = AnyText(any);
    return caption;
}

std::int32_t AnyScaleStyle(Choices& any) {
    return any.Odd() ? 4 : any.Between(ScaleStyle::None, ScaleStyle::Cross);
}

VerAxisProp AnyVerAxis(Choices& any) {
    VerAxisProp axis;
    axis.ShowVerAxis = any.OneIn(8) ? 0 : 1;
    axis.MajorScaleStyle = AnyScaleStyle(any);
    axis.MinorScaleStyle = AnyScaleStyle(any);
    axis.VerAxisPen = AnyPen(any);
    axis.ShowVerAxisLabel = any.Flag();
    axis.VerAxisLabelTextProperty = AnyText(any);
    axis.ShowHorMajorGrid = any.Flag();
    axis.HorMajorGridPen = AnyPen(any);
    axis.ShowHorMinorGrid = any.Flag();
    axis.HorMinorGridPen = AnyPen(any);
    axis.ShowVerCaption = any.Flag();
    axis.VerCaption = AnyName(any);
    axis.VerCaptionTextProperty = AnyText(any);
    return axis;
}

/// What the axes below bars and below curves have alike.
template <class HorAxisProp> void MakeHorAxis(Choices& any, HorAxisProp& axis) {
    axis.ShowHorAxis = any.OneIn(8) ? 0 : 1;
    axis.HorAxisPen = AnyPen(any);
    axis.ScaleStyle = AnyScaleStyle(any);
    axis.ShowVerGrid = any.Flag();
    axis.VerGridPen = AnyPen(any);
    axis.ShowHorCaption = any.Flag();
    axis.HorCaption = AnyName(any);
    axis.HorCaptionTextProperty = AnyText(any);
}

/// What the plots of bars and of curves have alike.
template <class PlotProp> void MakePlot(Choices& any, PlotProp& plot) {
    plot.ShowBackground = any.Flag();
    plot.PlotBackgroundColor = AnyColor(any);
    plot.ShowEdge = any.Flag();
    plot.EdgePen = AnyPen(any);
    plot.PlotWidth = AnySize(any);
    plot.PlotHeight = AnySize(any);
    plot.LogarithmScale = any.OneIn(3) ? 1 : 0;
}

HistogramProp AnyHistogramProp(Choices& any, std::size_t components) {
    HistogramProp prop;
    prop.Caption = AnyCaption(any);
    prop.VerAxis = AnyVerAxis(any);
    MakeHorAxis(any, prop.HorAxis);
    prop.HorAxis.ShowGroupName = any.Flag();
    prop.HorAxis.GroupNameTextProperty = AnyText(any);
    HistogramPlotProp& plot = prop.Plot;
    MakePlot(any, plot);
    plot.ComponentName = AnyNames(any, components);
    plot.ComponentColor = AnyColors(any, components);
    plot.ShowComponentName = any.Flag();
    plot.ShowComponentValue = any.Flag();
    plot.ConponentInfoInSingleRow = any.Flag();
    plot.ConponentInfoSeparator = AnySeparator(any);
    plot.ComponentInfoTextProperty = AnyText(any);
    plot.GroupDistane = any.Hundredths(0, any.IsFull() ? 3000 : 1000);
    plot.Juxtaposition = any.Flag();
    plot.PieStyle = any.Flag();
    prop.Legend = AnyLegend(any);
    return prop;
}

/// A list a group of up to 40.
std::vector<std::vector<double>> AnyGroups(Choices& any, std::size_t components, const Numbers& numbers) {
    return ListOf(any.FewOrUpTo(4, 40), [&] { return AnyValues(any, components, numbers); });
}

CurveProp AnyCurveProp(Choices& any, std::size_t curves) {
    CurveProp prop;
    prop.Caption = AnyCaption(any);
    prop.VerAxis = AnyVerAxis(any);
    MakeHorAxis(any, prop.HorAxis);
    prop.HorAxis.ScaleStep = any.Between(any.IsFull() ? 0 : 1, 5);
    prop.HorAxis.ShowLabel = any.Flag();
    prop.HorAxis.LabelStep = any.Between(any.IsFull() ? 0 : 1, 5);
    prop.HorAxis.HorLabelTextProperty = AnyText(any);
    prop.HorAxis.VerGridStep = any.Between(any.IsFull() ? 0 : 1, 5);
    CurvePlotProp& plot = prop.Plot;
    MakePlot(any, plot);
    plot.CurveName = AnyNames(any, curves);
    plot.CurveColor = AnyColors(any, curves);
    plot.CurveWidth = ListOf(any.Length(curves), [&any] { return any.Hundredths(0, 100); });
    plot.CurveDashStyle = ListOf(any.Length(curves), [&any] { return any.Between(0, any.Odd() ? 6 : 5); });
    plot.CurveDotStyle = ListOf(any.Length(curves), [&any] { return any.Between(0, any.Odd() ? 11 : 10); });
    plot.CurveDotColor = AnyColors(any, curves);
    plot.CurveDotWidth = ListOf(any.Length(curves), [&any] { return any.Hundredths(0, 400); });
    plot.NullValueStyle = ListOf(any.Length(curves), [&any] { return any.Flag(); });
    prop.Legend = AnyLegend(any);
    return prop;
}

std::vector<double> AnyCurveValues(Choices& any, std::size_t count, const Numbers& numbers) {
    const std::uint32_t gaps = any.OneIn(3) ? 1 + any.Below(10) : 0;
    return ListOf(count, [&] { return any.OneIn(gaps) ? kCurveNull : AnyNumber(any, numbers); });
}

/// Ascending, some of them twice, and in full variety sometimes in no order.
std::vector<std::int32_t> AnyTimes(Choices& any, std::size_t count) {
    const bool isDisordered = any.Odd();
    const std::int32_t longest = any.Between(1, 12);
    std::int32_t time = any.OneIn(2) ? 0 : any.Between(-1000, 2000);
    return ListOf(any.Length(count), [&] {
        time += any.Between(isDisordered ? -longest : 0, longest);
        return time;
    });
}

/// Lists of values and of times, one a curve.
void SetAnyCurves(Choices& any, std::size_t curves, const Numbers& numbers, CBasicCurve& chart) {
    std::vector<std::vector<double>> values;
    std::vector<std::vector<std::int32_t>> times;
    for (std::size_t i = 0; i < curves; ++i) {
        const std::size_t points = any.FewOrUpTo(12, 300);
        values.push_back(AnyCurveValues(any, points, numbers));
        times.push_back(AnyTimes(any, points));
    }
    chart.SetCurveData(std::move(values), std::move(times));
}

void SetAnyLogarithmRange(Choices& any, CCartesianChart& chart) {
    const std::int32_t first = any.Between(-6, 3);
    const double min = Decimal(any.OneIn(4) ? any.Between(2, 9) : 1, first);
    chart.SetLogarithmValueRange(min, Decimal(1, first + any.Between(1, 7)));
}

/// Of up to ten steps, in the order of magnitude of the numbers. Both ends are whole numbers of steps, or
/// half a step is left at the end.
void SetAnyNaturalRange(Choices& any, const Numbers& numbers, CCartesianChart& chart) {
    static constexpr std::array<std::int32_t, 5> kSteps{10, 20, 50, 25, 14};
    const std::int32_t exponent = numbers.Exponent + any.Between(0, 2);
    const std::int32_t step = any.OneOf(kSteps);
    const std::int32_t first = any.OneIn(2) ? 0 : any.Between(-5, 2) * step;
    const std::int32_t steps = any.Between(1, 10);
    const std::int32_t last = first + step * steps + (any.OneIn(8) ? step / 2 : 0);
    chart.SetNaturalValueRange(Decimal(first, exponent), Decimal(last, exponent), Decimal(step, exponent),
                               Decimal(step, exponent) / any.Between(1, 10));
}

void SetAnyRange(Choices& any, bool isLogarithm, const Numbers& numbers, double largest,
                 CCartesianChart& chart) {
    if (any.OneIn(2)) {
        chart.InitializeValueRange(largest);
    } else if (isLogarithm) {
        SetAnyLogarithmRange(any, chart);
    } else {
        SetAnyNaturalRange(any, numbers, chart);
    }
}

constexpr std::int32_t kFarthestPlace = 300;
constexpr std::uint32_t kMostComponents = 12;

} // namespace

CBasicPie RandomPie(std::uint32_t seed, Variety variety) {
    Choices any(seed, variety);
    const std::vector<double> values = AnySlices(any);
    CBasicPie chart;
    chart.SetPieProp(AnyPieProp(any, values));
    chart.SetComponentValue(values);
    chart.SetLocation(AnyPoint(any, kFarthestPlace));
    const std::vector<PointF> labels = AnyOffsets(any, values.size());
    chart.SetChildOffset(labels, AnyOffsets(any, 1));
    return chart;
}

CBasicHalfPie RandomHalfPie(std::uint32_t seed, Variety variety) {
    Choices any(seed, variety);
    const std::vector<double> values = AnySlices(any);
    CBasicHalfPie chart;
    chart.SetHalfPieProp(AnyHalfPieProp(any, values));
    chart.SetComponentValue(values);
    chart.SetLocation(AnyPoint(any, kFarthestPlace));
    chart.SetChildOffset(AnyOffsets(any, values.size()), {});
    return chart;
}

CBasicHalfPieHalfPie RandomHalfPieHalfPie(std::uint32_t seed, Variety variety) {
    Choices any(seed, variety);
    const std::vector<double> first = AnySlices(any);
    const std::vector<double> second = AnySlices(any);
    HalfPieHalfPieProp prop;
    prop.First = AnyHalfPieProp(any, first);
    prop.Second = AnyHalfPieProp(any, second);
    if (!any.IsFull()) {
        prop.Second.Basic.WhichPart = 1 - prop.First.Basic.WhichPart;
    }
    CBasicHalfPieHalfPie chart;
    chart.SetHalfPieHalfPieProp(prop);
    chart.SetComponentValue(first, second);
    chart.SetLocation(AnyPoint(any, kFarthestPlace));
    std::vector<PointF> offsets = AnyOffsets(any, first.size());
    offsets.push_back(kHalvesSeparator);
    const std::vector<PointF> others = AnyOffsets(any, second.size());
    offsets.insert(offsets.end(), others.begin(), others.end());
    chart.SetChildOffset(offsets, {});
    return chart;
}

CBasicHalfPieHistogram RandomHalfPieHistogram(std::uint32_t seed, Variety variety) {
    Choices any(seed, variety);
    const std::vector<double> slices = AnySlices(any);
    const Numbers numbers = AnyNumbers(any);
    const std::size_t components = any.FewOrUpTo(3, kMostComponents);
    const std::vector<std::vector<double>> groups = AnyGroups(any, components, numbers);
    HalfPieHistogramProp prop;
    prop.Histogram = AnyHistogramProp(any, components);
    prop.HalfPie = AnyHalfPieProp(any, slices);
    prop.HalfPie.Basic.WhichPart = any.IsFull() ? prop.HalfPie.Basic.WhichPart : HalfPiePart::Lower;
    CBasicHalfPieHistogram chart;
    chart.SetHalfPieHistogramProp(prop);
    chart.SetComponentValue(slices, groups, LargestOf(groups));
    chart.SetLocation(AnyPoint(any, kFarthestPlace));
    chart.SetChildOffset(AnyOffsets(any, slices.size()), {});
    return chart;
}

CBasicHistogram RandomHistogram(std::uint32_t seed, Variety variety) {
    Choices any(seed, variety);
    const Numbers numbers = AnyNumbers(any);
    const std::size_t components = any.FewOrUpTo(3, kMostComponents);
    const std::vector<std::vector<double>> groups = AnyGroups(any, components, numbers);
    const HistogramProp prop = AnyHistogramProp(any, components);
    CBasicHistogram chart;
    chart.SetHistogramProp(prop);
    chart.SetComponentValue(groups);
    chart.SetGroupName(AnyNames(any, groups.size()));
    chart.SetLocation(AnyPoint(any, kFarthestPlace));
    SetAnyRange(any, prop.Plot.LogarithmScale != 0, numbers, LargestOf(groups), chart);
    return chart;
}

CBasicCurve RandomCurve(std::uint32_t seed, Variety variety) {
    Choices any(seed, variety);
    const Numbers numbers = AnyNumbers(any);
    const std::size_t curves = any.FewOrUpTo(3, 20);
    const CurveProp prop = AnyCurveProp(any, curves);
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    SetAnyCurves(any, curves, numbers, chart);
    chart.SetHorAxisLabel(AnyNames(any, any.FewOrUpTo(6, 40)));
    chart.SetLocation(AnyPoint(any, kFarthestPlace));
    SetAnyRange(any, prop.Plot.LogarithmScale != 0, numbers, LargestOf(chart.GetCurveValue()), chart);
    return chart;
}
