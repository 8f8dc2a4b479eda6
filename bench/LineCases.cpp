#include "LineByHand.h"
#include "Series.h"
#include "Suite.h"
#include "penlode/cairo/GraphicsEngine.h"

/// One curve of many values over a whole picture, its line 1.5 pixels wide: from a host's lists through the
/// chart to the file.
namespace bench {
namespace {

using SharedSeries = std::shared_ptr<const Series>;

constexpr double kLineWidth = 1.5;

/// What a host keeps: its chart goes after the run, and that does not count.
struct Host {
    Series Data;
    millichart::CBasicCurve Chart;
};

std::unique_ptr<penlode::CGraphicsEngine> DrawnByChart(Host& host) {
    millichart::CurveProp prop = BareRecord();
    prop.Plot.CurveName = {"curve"};
    prop.Plot.CurveWidth = {static_cast<float>(kLineWidth)};
    std::vector<Series> curves;
    curves.push_back(std::move(host.Data));
    host.Chart = ChartOf(std::move(curves), prop);
    host.Chart.Layout();
    auto engine = PictureEngine();
    host.Chart.Draw(engine.get());
    return engine;
}

byhand::Picture DrawnByHand(const Series& data) {
    return byhand::DrawnLine({data.Values, data.Times, kLineWidth}, kPictureWidth, kPictureHeight);
}

/// A way that hands its own copy of the data over.
template <class Use> void AddChartWay(Suite& suite, std::string name, const SharedSeries& data, Use use) {
    suite.AddPrepared(std::move(name), [data, use] {
        const auto host = std::make_shared<Host>(Host{*data, {}});
        return [host, use] { return use(*DrawnByChart(*host)); };
    });
}

void AddWays(Suite& suite, const std::string& name, const SharedSeries& data, Memory memory) {
    const std::size_t first = suite.Ways.size();
    AddChartWay(suite, name + ", drawn", data, [](const auto&) { return std::size_t{1}; });
    AddChartWay(suite, name + ", PNG", data, [](const auto& engine) { return engine.EncodePng().size(); });
    suite.Add(name + ", drawn by hand", [data] {
        return static_cast<std::size_t>(cairo_image_surface_get_stride(DrawnByHand(*data).Surface.get()));
    });
    suite.Add(name + ", PNG by hand", [data] { return byhand::EncodePng(DrawnByHand(*data)).size(); });
    for (std::size_t i = first; i < suite.Ways.size(); ++i) {
        suite.Ways[i].Memory = memory;
    }
}

/// By its name in the table.
using NamedSeries = std::pair<std::string, SharedSeries>;

void AddShape(Suite& suite, Shape shape, Memory memory, const std::vector<NamedSeries>& data) {
    const std::string kind =
        std::string(shape == Shape::Walk ? "walk" : "noise") + (memory == Memory::New ? ", new memory" : "");
    for (const auto& [count, series] : data) {
        AddWays(suite, "line " + count + " " + kind, series, memory);
    }
    const std::string million = "line 1e6 " + kind;
    suite.Compare(million + ", drawn / by hand", million + ", drawn", million + ", drawn by hand", 2.0);
    suite.Compare(million + ", PNG / by hand", million + ", PNG", million + ", PNG by hand", 1.3);
    suite.Compare("line 1e6 / 1e3 " + kind + ", PNG", million + ", PNG", "line 1e3 " + kind + ", PNG",
                  shape == Shape::Walk ? 1.8 : 1.2);
    suite.Compare("line 1e7 / 1e3 " + kind + ", PNG", "line 1e7 " + kind + ", PNG",
                  "line 1e3 " + kind + ", PNG", 8.0);
}

} // namespace

void AddLineCases(Suite& suite) {
    for (const Shape shape : {Shape::Walk, Shape::Noise}) {
        const std::vector<NamedSeries> data{{"1e3", MakeSeries(1000, shape)},
                                            {"1e6", MakeSeries(1000000, shape)},
                                            {"1e7", MakeSeries(10000000, shape)}};
        for (const Memory memory : {Memory::Kept, Memory::New}) {
            AddShape(suite, shape, memory, data);
        }
    }
}

} // namespace bench
