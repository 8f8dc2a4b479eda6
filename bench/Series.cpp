#include "Series.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace bench {
namespace {

std::vector<double> RawValues(std::size_t count, Shape shape) {
    std::mt19937_64 random(20);
    std::normal_distribution<double> step;
    std::uniform_real_distribution<double> anywhere;
    std::vector<double> values(count);
    double place = 0.0;
    for (double& value : values) {
        place = shape == Shape::Walk ? place + step(random) : anywhere(random);
        value = place;
    }
    return values;
}

} // namespace

std::shared_ptr<const Series> MakeSeries(std::size_t count, Shape shape) {
    Series series{RawValues(count, shape), std::vector<std::int32_t>(count)};
    const auto [low, high] = std::minmax_element(series.Values.begin(), series.Values.end());
    const double first = *low;
    const double extent = *high - *low;
    for (double& value : series.Values) {
        value = (value - first) / extent;
    }
    std::iota(series.Times.begin(), series.Times.end(), 0);
    return std::make_shared<const Series>(std::move(series));
}

std::unique_ptr<penlode::CGraphicsEngine> PictureEngine() {
    constexpr double kPixelsPerInch = 25.4;
    return penlode::CGraphicsEngine::ForRaster(
        {static_cast<float>(kPictureWidth), static_cast<float>(kPictureHeight)}, kPixelsPerInch,
        penlode::kWhite);
}

millichart::CurveProp BareRecord() {
    millichart::CurveProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    prop.Plot.ShowBackground = 0;
    prop.Plot.ShowEdge = 0;
    prop.Plot.PlotWidth = static_cast<float>(kPictureWidth);
    prop.Plot.PlotHeight = static_cast<float>(kPictureHeight);
    return prop;
}

millichart::CBasicCurve ChartOf(std::vector<Series> curves, const millichart::CurveProp& prop) {
    std::vector<std::vector<double>> values;
    std::vector<std::vector<std::int32_t>> times;
    for (Series& curve : curves) {
        values.push_back(std::move(curve.Values));
        times.push_back(std::move(curve.Times));
    }
    millichart::CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.SetNaturalValueRange(0.0, 1.0, 0.1, 0.1);
    chart.SetCurveData(std::move(values), std::move(times));
    return chart;
}

} // namespace bench
