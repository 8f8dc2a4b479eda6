#include "charts/curve/BasicCurve.h"
#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"

#include <gtest/gtest.h>
#include <numeric>

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

} // namespace

TEST(DenseCurve, DocumentsOfAMillionPointsStaySmall) {
    const CBasicCurve chart = NoiseOfAMillion();
    ASSERT_EQ(chart.GetLayout().Curves.front().Points.size(), kMillion);
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
