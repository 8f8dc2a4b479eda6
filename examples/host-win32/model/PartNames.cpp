#include "model/PartNames.h"

#include <array>
#include <string_view>
#include <utility>

namespace host {
namespace {

using millichart::PartKind;

constexpr std::array<std::pair<std::string_view, const char*>, 6> kKinds{{
    {"pie", "饼图"},
    {"half-pie", "半饼图"},
    {"half-pie-half-pie", "双半饼图"},
    {"half-pie-histogram", "半饼直方图"},
    {"histogram", "直方图"},
    {"curve", "曲线图"},
}};

/// A text of several lines in one.
std::string InOneLine(std::string text) {
    for (char& each : text) {
        each = each == '\n' || each == '\r' ? ' ' : each;
    }
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

} // namespace

std::string NameOf(PartKind kind) {
    switch (kind) {
    case PartKind::Plot:
        return "绘图区";
    case PartKind::VerAxis:
        return "数值轴";
    case PartKind::HorAxis:
        return "横轴";
    case PartKind::Slice:
        return "扇区";
    case PartKind::Bar:
        return "柱";
    case PartKind::Curve:
        return "曲线";
    case PartKind::CurvePoint:
        return "数据点";
    case PartKind::SliceLabel:
        return "扇区标签";
    case PartKind::BarLabel:
        return "柱标签";
    case PartKind::VerAxisLabel:
        return "数值轴标签";
    case PartKind::HorAxisLabel:
        return "横轴标签";
    case PartKind::GroupName:
        return "组名";
    case PartKind::VerCaption:
        return "数值轴标题";
    case PartKind::HorCaption:
        return "横轴标题";
    case PartKind::Caption:
        return "标题";
    case PartKind::Legend:
        return "图例";
    case PartKind::LegendSample:
        return "图例色块";
    case PartKind::LegendName:
        return "图例名称";
    }
    return {};
}

std::string Described(const millichart::ChartPart& part, const designer::PartFacts& facts) {
    std::string text = NameOf(part.Kind);
    const auto add = [&text](const char* before, const std::string& more) {
        if (!more.empty()) {
            text += before + InOneLine(more);
        }
    };
    add("　", facts.Name);
    add("：", facts.Value);
    add("，", facts.Share);
    return text;
}

std::string NameOfKind(const char* kind) {
    for (const auto& [known, name] : kKinds) {
        if (known == kind) {
            return name;
        }
    }
    return kind;
}

} // namespace host
