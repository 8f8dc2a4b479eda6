#include "charts/curve/BasicCurve.h"
#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <set>

using namespace millichart;

namespace {

constexpr std::size_t kMillion = 1000000;
constexpr penlode::SizeF kPage{180.0F, 100.0F};

/// Values that leap over the plot's whole height.
CBasicCurve NoiseOfAMillion() {
    std::vector<double> values(kMillion);
    std::uint32_t state = 1;
    for (double& value : values) {
        state = state * 1664525U + 1013904223U;
        value = state / 4294967296.0;
    }
    std::vector<std::int32_t> times(kMillion);
    std::iota(times.begin(), times.end(), 0);
    CurveProp prop;
    prop.Plot.PlotWidth = 160.0F;
    prop.Plot.PlotHeight = 80.0F;
    prop.Plot.CurveName = {"noise"};
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.SetNaturalValueRange(0.0, 1.0, 0.5, 0.1);
    chart.SetCurveData({std::move(values)}, {std::move(times)});
    chart.Layout();
    return chart;
}

/// A curve alone on a plot of 160 x 80 mm.
CurveProp CurveAlone() {
    CurveProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    prop.Plot.ShowBackground = 0;
    prop.Plot.ShowEdge = 0;
    prop.Plot.PlotWidth = 160.0F;
    prop.Plot.PlotHeight = 80.0F;
    prop.Plot.CurveName = {"curve"};
    prop.Plot.CurveWidth = {0.4F};
    return prop;
}

struct Data {
    std::vector<double> Values;
    std::vector<std::int32_t> Times;
};

/// Data of many kinds: walks and noise, few values or many to a column, times that repeat or go back, gaps
/// here and there or all over, values without a place.
Data AnyData(std::mt19937& random) {
    const auto chance = [&random](std::uint32_t of) { return random() % of == 0; };
    const std::size_t count = chance(4) ? random() % 200 : random() % 20000;
    const bool walks = chance(2);
    const bool goesBack = chance(4);
    const std::uint32_t step = 1 + static_cast<std::uint32_t>(random() % 3);
    const std::uint32_t gaps = chance(3) ? 3 + static_cast<std::uint32_t>(random() % 2000) : 0;
    Data data;
    double value = 0.0;
    std::int32_t time = static_cast<std::int32_t>(random() % 2000) - 1000;
    for (std::size_t i = 0; i < count; ++i) {
        const double leap = static_cast<double>(random() % 2049) / 1024.0 - 1.0;
        value = walks ? value + leap / 16.0 : std::round(leap * 8.0) / 8.0;
        time += static_cast<std::int32_t>(random() % (step + 1)) - (goesBack && chance(5) ? 3 : 0);
        const bool isGap = gaps != 0 && chance(gaps);
        data.Values.push_back(!isGap ? value : chance(2) ? kCurveNull : std::nan(""));
        data.Times.push_back(time);
    }
    return data;
}

CBasicCurve ChartOf(const Data& data, const CurveProp& prop) {
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.SetNaturalValueRange(-1.5, 1.5, 0.5, 0.1);
    chart.SetLogarithmValueRange(0.01, 10.0);
    chart.SetCurveData({data.Values}, {data.Times});
    chart.SetLocation({7.0F, 3.0F});
    chart.Layout();
    return chart;
}

std::string PngOf(const CBasicCurve& chart) {
    const auto engine = penlode::CGraphicsEngine::ForRaster(kPage, 100.0, penlode::kWhite);
    chart.Draw(engine.get());
    return engine->EncodePng();
}

/// The curve's lists of points, each drawn as one.
template <class Engine> void DrawLists(const CBasicCurve& chart, Engine& engine) {
    for (const CurveShape& shape : chart.GetShapes()) {
        const penlode::Pen pen(shape.Style.LineColor, shape.Style.Width);
        for (const auto& line : shape.Lines) {
            engine.DrawLines(&pen, line.data(), static_cast<std::int32_t>(line.size()));
        }
    }
}

/// Between gaps, of each column the first row, the lowest, the highest and the last, and the first once more
/// where that leaves any out: at least 66 then.
Data OfColumns(const Data& data, const std::vector<std::int32_t>& starts) {
    Data kept;
    const auto columnOf = [&starts](std::int32_t time) {
        return std::upper_bound(starts.begin(), starts.end(), time) - starts.begin();
    };
    const auto take = [&](std::size_t i) {
        kept.Values.push_back(data.Values[i]);
        kept.Times.push_back(data.Times[i]);
    };
    const auto isGap = [&](std::size_t i) {
        return std::isnan(data.Values[i]) || IsCurveNull(data.Values[i]);
    };
    for (std::size_t first = 0; first < data.Values.size();) {
        if (isGap(first)) {
            take(first++);
            continue;
        }
        std::size_t end = first;
        while (end < data.Values.size() && !isGap(end)) {
            ++end;
        }
        // Fewer than 65 rows are drawn as they are.
        for (const bool isShort = end - first < 65; isShort && first < end;) {
            take(first++);
        }
        std::size_t again = 66;
        while (first < end) {
            std::size_t last = first;
            while (last + 1 < end && columnOf(data.Times[last + 1]) == columnOf(data.Times[first])) {
                ++last;
            }
            const auto from = data.Values.begin() + static_cast<std::ptrdiff_t>(first);
            const auto to = data.Values.begin() + static_cast<std::ptrdiff_t>(last) + 1;
            const auto low = first + static_cast<std::size_t>(std::min_element(from, to) - from);
            const auto high = first + static_cast<std::size_t>(std::max_element(from, to) - from);
            const std::set<std::size_t> places{first, low, high, last};
            for (; again > 0 && places.size() < last - first + 1; --again) {
                take(first);
            }
            std::for_each(places.begin(), places.end(), take);
            first = last + 1;
        }
    }
    return kept;
}

} // namespace

TEST(DenseCurve, IsDrawnAsItsListsOfPointsWouldBe) {
    std::mt19937 random(11);
    for (int i = 0; i < 100; ++i) {
        CurveProp prop = CurveAlone();
        prop.Plot.LogarithmScale = i % 5 == 0 ? 1 : 0;
        prop.Plot.NullValueStyle = {i % 2};
        prop.Plot.PlotHeight = i % 7 == 0 ? -80.0F : 80.0F;
        const CBasicCurve chart = ChartOf(AnyData(random), prop);
        const auto engine = penlode::CGraphicsEngine::ForRaster(kPage, 100.0, penlode::kWhite);
        DrawLists(chart, *engine);
        EXPECT_TRUE(PngOf(chart) == engine->EncodePng()) << i;
        penlode::CSvgEngine svg(kPage);
        chart.Draw(&svg);
        penlode::CSvgEngine lists(kPage);
        DrawLists(chart, lists);
        EXPECT_TRUE(svg.Text() == lists.Text()) << i;
    }
}

TEST(DenseCurve, IsDrawnAsWhatItsColumnsShow) {
    std::mt19937 random(12);
    const auto engine = penlode::CGraphicsEngine::ForRaster(kPage, 100.0, penlode::kWhite);
    std::size_t rows = 0;
    std::size_t left = 0;
    for (int i = 0; i < 100; ++i) {
        Data data = AnyData(random);
        std::sort(data.Times.begin(), data.Times.end());
        const CBasicCurve chart = ChartOf(data, CurveAlone());
        const std::vector<std::int32_t> starts = chart.DataColumns(*engine);
        EXPECT_TRUE(std::adjacent_find(starts.begin(), starts.end(), std::greater_equal<>()) == starts.end());
        // The ends stay, whatever they hold, as the axis spans over them.
        const Data columns = OfColumns(data, starts);
        rows += data.Values.size();
        left += columns.Values.size();
        EXPECT_TRUE(PngOf(ChartOf(columns, CurveAlone())) == PngOf(chart)) << i;
    }
    EXPECT_LT(left, rows / 2);
}

TEST(DenseCurve, DocumentsOfAMillionPointsStaySmall) {
    const CBasicCurve chart = NoiseOfAMillion();
    ASSERT_EQ(chart.GetLayout().Curves.front().Points().size(), kMillion);
    penlode::CSvgEngine svg(kPage);
    chart.Draw(&svg);
    // Four points in each of the columns, 600 to the inch, and not fewer.
    constexpr double kColumns = 160.0 / 25.4 * 600.0;
    EXPECT_GT(svg.Text().size(), kColumns * 4.0 * 8.0);
    EXPECT_LT(svg.Text().size(), kMillion);
    const auto pdf = penlode::CGraphicsEngine::ForPdf(kPage);
    chart.Draw(pdf.get());
    const std::string file = pdf->FinishPdf();
    EXPECT_EQ(file.substr(0, 5), "%PDF-");
    EXPECT_LT(file.size(), kMillion);
}
