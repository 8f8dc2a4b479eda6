// How long the designer takes from a change to its picture on the screen, beside the layout and the drawing
// of such a picture alone.
#include "penlode/GraphicsEngine.h"
#include "window/MainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

namespace {

using millichart::ChartDocument;

constexpr int kRuns = 15;

/// The middle one, in ms.
double Median(const std::function<double()>& measure) {
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i) {
        times.push_back(measure());
    }
    std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
    return times[kRuns / 2];
}

double Since(const QElapsedTimer& begin) {
    return static_cast<double>(begin.nsecsElapsed()) / 1e6;
}

ChartDocument New(const char* kind) {
    return ChartDocument::FromText(std::string(millichart::FindChartKind(kind)->Template));
}

ChartDocument TwelveGroupsOfSix() {
    ChartDocument document = New("histogram");
    auto& bars = std::get<millichart::HistogramDocument>(document.Content);
    bars.Data = {};
    bars.Prop.Plot.ComponentName.clear();
    bars.Prop.Plot.ComponentColor.clear();
    for (int group = 0; group < 12; ++group) {
        bars.Data.GroupNames.push_back(std::to_string(group + 1));
        bars.Data.Values.emplace_back();
        for (int i = 0; i < 6; ++i) {
            bars.Data.Values.back().push_back(10.0 + (group * 7 + i * 5) % 23);
        }
    }
    for (int i = 0; i < 6; ++i) {
        bars.Data.ComponentNames.push_back("Series " + std::to_string(i + 1));
    }
    return document;
}

ChartDocument MillionPoints() {
    constexpr std::int32_t kPoints = 1000000;
    ChartDocument document = New("curve");
    auto& curve = std::get<millichart::CurveDocument>(document.Content);
    curve.Data = {};
    curve.Prop.Plot.CurveName.clear();
    std::mt19937 random(1);
    double value = 1000.0;
    std::vector<double> values;
    std::vector<std::int32_t> times;
    for (std::int32_t i = 0; i < kPoints; ++i) {
        value = std::max(0.0, value + static_cast<double>(random() % 1001U) / 500.0 - 1.0);
        values.push_back(value);
        times.push_back(i);
    }
    curve.Data.CurveNames = {"walk"};
    curve.Data.Values = {std::move(values)};
    curve.Data.Times = {std::move(times)};
    return document;
}

/// Each picture has another description, which changes nothing that is seen.
double FromChangeToPicture(designer::MainWindow& window) {
    static int count = 0;
    QElapsedTimer begin;
    begin.start();
    window.Session().Change({},
                            [](ChartDocument& document) { document.Description = std::to_string(++count); });
    window.Canvas().WaitUntilShown();
    QCoreApplication::processEvents();
    return Since(begin);
}

/// As large as the chart on the window's page.
double LaidOutAndDrawn(const ChartDocument& document, double zoom) {
    constexpr double kScreenDpi = 96.0;
    QElapsedTimer begin;
    begin.start();
    const millichart::LaidOutChart chart = document.LayOut();
    const penlode::RectF ink = chart.InkExtent();
    const auto engine = penlode::CGraphicsEngine::ForRaster({ink.Width + 12.0F, ink.Height + 12.0F},
                                                            kScreenDpi * zoom, penlode::kWhite);
    engine->TranslateTransform(6.0F - ink.X, 6.0F - ink.Y, penlode::MatrixOrder::Prepend);
    chart.Draw(*engine);
    return Since(begin);
}

void Measure(const char* name, ChartDocument document) {
    designer::MainWindow window;
    window.show();
    window.Session().Start(designer::Editor(document));
    window.Canvas().WaitUntilShown();
    const double zoom = window.Canvas().Zoom();
    FromChangeToPicture(window);
    const double shown = Median([&] { return FromChangeToPicture(window); });
    const double bare = Median([&] { return LaidOutAndDrawn(document, zoom); });
    std::printf("%-40s %9.2f ms  %9.2f ms  %6.2f\n", name, shown, bare, shown / bare);
    window.Session().DropRecovery();
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QTemporaryDir state;
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    const QApplication application(argc, argv);
    std::printf("%-40s %12s  %12s  %6s\n", "designer, from a change to its picture", "shown", "bare drawing",
                "ratio");
    Measure("bars 12 x 6", TwelveGroupsOfSix());
    Measure("line of 1e6 points", MillionPoints());
}
