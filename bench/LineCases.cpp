#include "LineByHand.h"
#include "Series.h"
#include "Suite.h"
#include "penlode/GraphicsEngine.h"

#include <random>

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

/// From lists that stay the caller's.
std::size_t BorrowedPng(const Series& data) {
    millichart::CurveProp prop = BareRecord();
    prop.Plot.CurveName = {"curve"};
    prop.Plot.CurveWidth = {static_cast<float>(kLineWidth)};
    millichart::CBasicCurve chart = ChartOf({}, prop);
    chart.SetCurveDataView({{std::span(data.Values), std::span(data.Times)}});
    chart.Layout();
    const auto engine = PictureEngine();
    chart.Draw(engine.get());
    return engine->EncodePng().size();
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
    suite.Add(name + ", borrowed, PNG", [data] { return BorrowedPng(*data); });
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
    const std::string most = "line 1e7 " + kind;
    suite.Compare(most + ", borrowed, PNG / by hand", most + ", borrowed, PNG", most + ", PNG by hand", 1.5);
    suite.Compare("line 1e6 / 1e3 " + kind + ", PNG", million + ", PNG", "line 1e3 " + kind + ", PNG",
                  shape == Shape::Walk ? 1.8 : 1.2);
    suite.Compare("line 1e7 / 1e3 " + kind + ", PNG", "line 1e7 " + kind + ", PNG",
                  "line 1e3 " + kind + ", PNG", 8.0);
}

/// Points anywhere on the picture.
std::vector<penlode::PointF> Scribble(std::size_t count) {
    std::mt19937 random(3);
    std::vector<penlode::PointF> points;
    for (std::size_t i = 0; i < count; ++i) {
        points.push_back({static_cast<float>(random() % (kPictureWidth * 10U)) / 10.0F,
                          static_cast<float>(random() % (kPictureHeight * 10U)) / 10.0F});
    }
    return points;
}

std::size_t ScribbleDrawn(const std::vector<penlode::PointF>& points) {
    const penlode::Pen pen(penlode::kBlack, static_cast<float>(kLineWidth));
    const auto engine = PictureEngine();
    engine->DrawLines(&pen, points.data(), static_cast<std::int32_t>(points.size()));
    return points.size();
}

/// Cairo's strokes of a few segments each.
std::size_t ScribbleByHand(const std::vector<penlode::PointF>& points) {
    constexpr std::size_t kPiece = 32;
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kPictureWidth, kPictureHeight);
    cairo_t* context = cairo_create(surface);
    cairo_set_line_width(context, kLineWidth);
    for (std::size_t i = 0; i < points.size(); ++i) {
        cairo_line_to(context, static_cast<double>(points[i].X), static_cast<double>(points[i].Y));
        if (i % kPiece == kPiece - 1) {
            cairo_stroke(context);
            cairo_move_to(context, static_cast<double>(points[i].X), static_cast<double>(points[i].Y));
        }
    }
    cairo_stroke(context);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    return points.size();
}

void AddScribbles(Suite& suite) {
    for (const auto& [name, count] :
         {std::pair{"1e4", 10000U}, std::pair{"2e4", 20000U}, std::pair{"1e6", 1000000U}}) {
        const std::string scribble = std::string("scribble ") + name;
        const auto points = std::make_shared<const std::vector<penlode::PointF>>(Scribble(count));
        suite.Add(scribble + ", drawn", [points] { return ScribbleDrawn(*points); });
        if (count <= 20000U) {
            suite.Add(scribble + ", strokes", [points] { return ScribbleByHand(*points); });
            suite.Compare(scribble + ", drawn / strokes", scribble + ", drawn", scribble + ", strokes", 1.1);
        }
    }
    // Most of a million falls on tiles that are full.
    suite.Compare("scribble 1e6 / strokes of 1e4", "scribble 1e6, drawn", "scribble 1e4, strokes", 1.0);
}

} // namespace

void AddLineCases(Suite& suite) {
    AddScribbles(suite);
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
