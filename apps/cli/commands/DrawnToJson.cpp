#include "commands/Json.h"

#include <array>
#include <utility>

namespace cli {
namespace {

using namespace millichart;

/// In the order of TextRole.
constexpr std::array kRoleNames{"sliceLabel", "verAxisLabel", "verCaption", "horAxisLabel", "groupName",
                                "horCaption", "barLabel",     "caption",    "legendName"};

Json ToJson(const TextOwner& owner) {
    return {{"role", kRoleNames[static_cast<std::size_t>(owner.Role)]},
            {"index", owner.Index},
            {"component", owner.Component},
            {"part", owner.Part}};
}

Json ToJson(const PieSlice& slice) {
    Json walls = Json::array();
    for (const PieWall& wall : slice.FrontWalls()) {
        walls.push_back(cli::ToJson(penlode::PointF{wall.From, wall.To}));
    }
    return {{"start", cli::ToJson(static_cast<double>(slice.StartAngle))},
            {"sweep", cli::ToJson(static_cast<double>(slice.SweepAngle))},
            {"fill", slice.Fill ? Json(Form(*slice.Fill)) : Json()},
            {"walls", std::move(walls)}};
}

Json ToJson(const BarShape& bar) {
    return {{"group", bar.Group},
            {"component", bar.Component},
            {"front", cli::ToJson(bar.Front)},
            {"fill", Form(bar.Fill)}};
}

/// How many points each line has.
Json ToJson(const CurveShape& curve) {
    Json lines = Json::array();
    for (const auto& line : curve.Lines) {
        lines.push_back(line.size());
    }
    return lines;
}

template <class Shape> Json ShapeList(const std::vector<Shape>& shapes) {
    Json list = Json::array();
    for (const Shape& shape : shapes) {
        list.push_back(ToJson(shape));
    }
    return list;
}

Json ToJson(const PieShapes& pie) {
    return {{"face", cli::ToJson(pie.Face)},
            {"depth", cli::ToJson(static_cast<double>(pie.Depth))},
            {"slices", ShapeList(pie.Slices)}};
}

Json ToJson(const BarShapes& bars) {
    return {{"depth", cli::ToJson(bars.Depth)}, {"bars", ShapeList(bars.Bars)}};
}

Json ToJson(const std::vector<CurveShape>& curves) {
    return {{"curves", ShapeList(curves)}};
}

Json ToJson(const HalfPieHalfPieShapes& halves) {
    return {{"first", ToJson(halves.First)}, {"second", ToJson(halves.Second)}};
}

Json ToJson(const HalfPieHistogramShapes& both) {
    return {{"halfPie", ToJson(both.HalfPie)}, {"histogram", ToJson(both.Histogram)}};
}

struct ShapesOf {
    Json operator()(std::monostate) const { return nullptr; }

    template <class Chart> Json operator()(const Chart& chart) const { return ToJson(chart.GetShapes()); }
};

} // namespace

Json DrawnTextsToJson(const LaidOutChart& chart) {
    Json texts = Json::array();
    chart.VisitTexts([&texts](ChartText&& text) {
        texts.push_back({{"owner", ToJson(text.Owner)},
                         {"text", penlode::CStringUtil::WideToUtf8(text.Text)},
                         {"box", cli::ToJson(text.Box())},
                         {"turn", text.Angle}});
    });
    return texts;
}

Json ShapesToJson(const LaidOutChart& chart) {
    return std::visit(ShapesOf(), chart.Chart);
}

} // namespace cli
