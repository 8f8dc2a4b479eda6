#include "Series.h"
#include "Suite.h"
#include "Voices.h"

/// A million points placed on a linear axis, beside one plain loop that reads each time and value and writes
/// the point.
namespace bench {
namespace {

constexpr std::size_t kPoints = 1000000;

using Points = std::unique_ptr<penlode::PointF[]>;

Points RoomFor(std::size_t count) {
    return std::make_unique_for_overwrite<penlode::PointF[]>(count);
}

void PlaceByHand(const Series& data, penlode::PointF* points) {
    const double perTime = kPictureWidth / (static_cast<double>(data.Times.back()) - data.Times.front());
    for (std::size_t i = 0; i < data.Values.size(); ++i) {
        points[i] = {static_cast<float>((data.Times[i] - data.Times.front()) * perTime),
                     static_cast<float>((1.0 - data.Values[i]) * kPictureHeight)};
    }
}

/// With a legend below, which moves nothing.
millichart::CurveProp LegendRecord() {
    millichart::CurveProp prop = BareRecord();
    prop.Plot.CurveName = {"curve"};
    prop.Legend.ShowLegend = 1;
    prop.Legend.LegendPos = millichart::LegendPosition::BottomCenter;
    return prop;
}

std::size_t LaidOut(millichart::CBasicCurve& chart) {
    chart.Layout();
    return chart.GetLayout().Curves.front().Points().size();
}

} // namespace

void AddLayoutCases(Suite& suite) {
    const auto data = MakeSeries(kPoints, Shape::Walk);
    for (const Voice& voice : Voices()) {
        const auto chartOf = [data, options = voice.Options] {
            const auto chart = std::make_shared<millichart::CBasicCurve>(ChartOf({*data}, LegendRecord()));
            chart->SetOptions(options);
            return chart;
        };
        suite.AddPrepared("layout 1e6, first" + voice.Name,
                          [chartOf] { return [chart = chartOf()] { return LaidOut(*chart); }; });
        suite.Add("layout 1e6, again" + voice.Name, [chart = chartOf()] { return LaidOut(*chart); });
    }
    suite.Add("layout 1e6, first by hand", [data] {
        const Points points = RoomFor(kPoints);
        PlaceByHand(*data, points.get());
        return static_cast<std::size_t>(points[kPoints - 1].X);
    });
    const std::shared_ptr<penlode::PointF[]> points = RoomFor(kPoints);
    suite.Add("layout 1e6, again by hand", [data, points] {
        PlaceByHand(*data, points.get());
        return static_cast<std::size_t>(points[kPoints - 1].X);
    });
    for (const std::string name : {"layout 1e6, first", "layout 1e6, again"}) {
        suite.Compare(name + " / by hand", name, name + " by hand", 4.0);
        CompareVoices(suite, name, 1.2);
    }
}

} // namespace bench
