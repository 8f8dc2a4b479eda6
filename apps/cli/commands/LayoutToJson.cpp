#include "commands/Json.h"

#include <utility>

namespace cli {
namespace {

using namespace millichart;

/// Without the legend, which only a whole pie has. What only options bring shows where it is.
Json ToJson(const PieLayout& layout) {
    Json json = {{"whole", cli::ToJson(layout.Whole)},
                 {"pie", cli::ToJson(layout.Pie)},
                 {"labelTexts", TextsToJson(layout.LabelTexts)},
                 {"labelRects", ListToJson(layout.LabelRects)}};
    for (const LeadLine& line : layout.LeadLines) {
        json["leadLines"].push_back({cli::ToJson(line.From), cli::ToJson(line.To)});
    }
    if (layout.Title) {
        json["title"] = cli::ToJson(*layout.Title);
    }
    return json;
}

/// What bar and line charts share.
Json CommonToJson(const CartesianLayout& layout) {
    return {{"whole", cli::ToJson(layout.Whole)},
            {"caption", cli::ToJson(layout.Caption)},
            {"verCaption", cli::ToJson(layout.VerCaption)},
            {"horCaption", cli::ToJson(layout.HorCaption)},
            {"plot", cli::ToJson(layout.Plot)},
            {"verMajorTicks", ListToJson(layout.VerMajorTicks)},
            {"verMinorTicks", ListToJson(layout.VerMinorTicks)},
            {"verLabelTexts", TextsToJson(layout.VerLabelTexts)},
            {"verLabelRects", ListToJson(layout.VerLabelRects)},
            {"horTicks", ListToJson(layout.HorTicks)},
            {"legendItemRects", ListToJson(layout.LegendItemRects)}};
}

Json ToJson(const HistogramLayout& layout) {
    Json json = CommonToJson(layout);
    json["groupNameRects"] = ListToJson(layout.GroupNameRects);
    json["componentWidth"] = cli::ToJson(static_cast<double>(layout.ComponentWidth));
    json["groupGap"] = cli::ToJson(static_cast<double>(layout.GroupGap));
    Json groups = Json::array();
    for (const std::vector<penlode::RectF>& bars : layout.ComponentRects) {
        groups.push_back(ListToJson(bars));
    }
    json["componentRects"] = std::move(groups);
    return json;
}

Json ToJson(const CurveTrace& curve) {
    Json nulls = Json::array();
    for (std::size_t i = 0; i < curve.NullFlags().size(); ++i) {
        if (curve.NullFlags()[i]) {
            nulls.push_back(i);
        }
    }
    return {{"points", ListToJson(curve.Points())}, {"nulls", std::move(nulls)}};
}

struct LayoutOf {
    Json operator()(std::monostate) const { return nullptr; }

    Json operator()(const CBasicPie& chart) const {
        Json json = ToJson(chart.GetLayout());
        json["legendItemRects"] = ListToJson(chart.GetLayout().LegendItemRects);
        return json;
    }

    Json operator()(const CBasicHalfPie& chart) const { return ToJson(chart.GetLayout()); }

    Json operator()(const CBasicHalfPieHalfPie& chart) const {
        return {{"whole", cli::ToJson(chart.GetPositionAll())},
                {"first", ToJson(chart.GetFirstHalf().GetLayout())},
                {"second", ToJson(chart.GetSecondHalf().GetLayout())}};
    }

    Json operator()(const CBasicHalfPieHistogram& chart) const {
        return {{"whole", cli::ToJson(chart.GetPositionAll())},
                {"halfPie", ToJson(chart.GetHalfPie().GetLayout())},
                {"histogram", ToJson(chart.GetHistogram().GetLayout())}};
    }

    Json operator()(const CBasicHistogram& chart) const { return ToJson(chart.GetLayout()); }

    Json operator()(const CBasicCurve& chart) const {
        const CurveLayout& layout = chart.GetLayout();
        Json json = CommonToJson(layout);
        json["horLabelRects"] = ListToJson(layout.HorLabelRects);
        Json curves = Json::array();
        for (const CurveTrace& curve : layout.Curves) {
            curves.push_back(ToJson(curve));
        }
        json["curves"] = std::move(curves);
        return json;
    }
};

} // namespace

Json LayoutToJson(const LaidOutChart& chart) {
    return std::visit(LayoutOf(), chart.Chart);
}

} // namespace cli
