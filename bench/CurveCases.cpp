#include "MarkersByHand.h"
#include "Series.h"
#include "Suite.h"
#include "Voices.h"
#include "penlode/GraphicsEngine.h"

#include <cmath>
#include <memory>

/// Twenty curves of 500 points each over a whole picture, every point with a marker of one of four kinds.
namespace bench {
namespace {

constexpr std::uint32_t kCurves = 20;
constexpr std::int32_t kPoints = 500;
constexpr byhand::Marker kMarkers[] = {byhand::Marker::SolidSquare, byhand::Marker::SolidCircle,
                                       byhand::Marker::HollowCircle, byhand::Marker::SolidTriangle};

Series Wave(std::uint32_t which) {
    Series wave;
    for (std::int32_t i = 0; i < kPoints; ++i) {
        wave.Values.push_back(0.5 + std::sin(i * 0.02 * (1.0 + which * 0.1) + which) / 3.0);
        wave.Times.push_back(i);
    }
    return wave;
}

byhand::MarkedCurves Twenty() {
    byhand::MarkedCurves curves{{}, 3.0, 10.0, 1.0};
    for (std::uint32_t i = 0; i < kCurves; ++i) {
        curves.Curves.push_back({Wave(i), 0x102030U * (i % 8U) + i, kMarkers[i % 4U]});
    }
    return curves;
}

std::int32_t StyleOf(byhand::Marker marker) {
    using namespace millichart;
    switch (marker) {
    case byhand::Marker::SolidSquare:
        return CurveDotStyle::SolidSquare;
    case byhand::Marker::SolidCircle:
        return CurveDotStyle::SolidCircle;
    case byhand::Marker::HollowCircle:
        return CurveDotStyle::HollowCircle;
    default:
        return CurveDotStyle::SolidTriangle;
    }
}

/// A hollow marker's outline is 0.2 mm wide, which on this picture is the thinnest line, one pixel.
millichart::CurveProp RecordOf(const byhand::MarkedCurves& curves) {
    millichart::CurveProp prop = BareRecord();
    for (const byhand::MarkedCurve& curve : curves.Curves) {
        const penlode::Color color{0xFF000000U | curve.Color};
        prop.Plot.CurveName.push_back("curve");
        prop.Plot.CurveColor.push_back(color);
        prop.Plot.CurveWidth.push_back(static_cast<float>(curves.LineWidth));
        prop.Plot.CurveDotStyle.push_back(StyleOf(curve.Kind));
        prop.Plot.CurveDotColor.push_back(color);
        prop.Plot.CurveDotWidth.push_back(static_cast<float>(curves.MarkerWidth));
    }
    return prop;
}

std::size_t ChartPng(std::vector<Series> data, const millichart::CurveProp& prop) {
    millichart::CBasicCurve chart = ChartOf(std::move(data), prop);
    chart.Layout();
    const auto engine = PictureEngine();
    chart.Draw(engine.get());
    return engine->EncodePng().size();
}

/// What people draw: axes, captions, a legend, three lines with markers.
millichart::CurveProp ThreeRecord() {
    millichart::CurveProp prop;
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = "Three waves";
    prop.HorAxis.ShowLabel = 1;
    prop.Plot.PlotWidth = 120.0F;
    prop.Plot.PlotHeight = 70.0F;
    prop.Plot.CurveName = {"first", "second", "third"};
    prop.Plot.CurveColor = {{0xFF3B6FB6U}, {0xFFE58A3CU}, {0xFF57A168U}};
    prop.Plot.CurveWidth = {0.3F, 0.3F, 0.3F};
    prop.Legend.ShowLegend = 1;
    return prop;
}

std::vector<std::string> Years() {
    std::vector<std::string> years;
    for (int year = 2000; year <= 2020; ++year) {
        years.push_back(std::to_string(year));
    }
    return years;
}

std::size_t ThreePng(const millichart::ChartOptions& options) {
    constexpr double kDpi = 144.0;
    constexpr std::size_t kFew = 100;
    std::vector<Series> waves;
    for (std::uint32_t i = 0; i < 3; ++i) {
        waves.push_back(Wave(i));
        waves.back().Values.resize(kFew);
        waves.back().Times.resize(kFew);
    }
    millichart::CBasicCurve chart = ChartOf(std::move(waves), ThreeRecord());
    chart.SetOptions(options);
    chart.SetHorAxisLabel(Years());
    const auto shift = static_cast<float>(NextShift());
    chart.SetLocation({10.0F + shift, 10.0F + shift});
    chart.Layout();
    const auto engine = penlode::CGraphicsEngine::ForRaster({180.0F, 110.0F}, kDpi, penlode::kWhite);
    chart.Draw(engine.get());
    return engine->EncodePng().size();
}

} // namespace

void AddCurveCases(Suite& suite) {
    for (const Voice& voice : Voices()) {
        suite.Add("3 curves of 100, PNG" + voice.Name,
                  [options = voice.Options] { return ThreePng(options); });
    }
    CompareVoices(suite, "3 curves of 100, PNG");
    const auto curves = std::make_shared<const byhand::MarkedCurves>(Twenty());
    const auto prop = std::make_shared<const millichart::CurveProp>(RecordOf(*curves));
    suite.AddPrepared("20 curves of 500, PNG", [curves, prop] {
        const auto data = std::make_shared<std::vector<Series>>();
        for (const byhand::MarkedCurve& curve : curves->Curves) {
            data->push_back(curve.Data);
        }
        return [data, prop] { return ChartPng(std::move(*data), *prop); };
    });
    suite.Add("20 curves of 500, PNG by hand",
              [curves] { return byhand::MarkedCurvesPng(*curves, kPictureWidth, kPictureHeight).size(); });
    suite.Compare("20 curves of 500, PNG / by hand", "20 curves of 500, PNG", "20 curves of 500, PNG by hand",
                  1.2);
}

} // namespace bench
