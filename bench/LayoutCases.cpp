#include "Series.h"
#include "Suite.h"

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

std::size_t LaidOut(millichart::CBasicCurve& chart) {
    chart.Layout();
    return chart.GetLayout().Curves.front().Points.size();
}

} // namespace

void AddLayoutCases(Suite& suite) {
    const auto data = MakeSeries(kPoints, Shape::Walk);
    suite.AddPrepared("layout 1e6, first", [data] {
        const auto chart = std::make_shared<millichart::CBasicCurve>(ChartOf({*data}, BareRecord()));
        return [chart] { return LaidOut(*chart); };
    });
    suite.Add("layout 1e6, first by hand", [data] {
        const Points points = RoomFor(kPoints);
        PlaceByHand(*data, points.get());
        return static_cast<std::size_t>(points[kPoints - 1].X);
    });
    const auto chart = std::make_shared<millichart::CBasicCurve>(ChartOf({*data}, BareRecord()));
    suite.Add("layout 1e6, again", [chart] { return LaidOut(*chart); });
    const std::shared_ptr<penlode::PointF[]> points = RoomFor(kPoints);
    suite.Add("layout 1e6, again by hand", [data, points] {
        PlaceByHand(*data, points.get());
        return static_cast<std::size_t>(points[kPoints - 1].X);
    });
    for (const std::string name : {"layout 1e6, first", "layout 1e6, again"}) {
        suite.Compare(name + " / by hand", name, name + " by hand", 4.0);
    }
}

} // namespace bench
