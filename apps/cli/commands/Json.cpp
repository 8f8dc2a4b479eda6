#include "commands/Json.h"

#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>

namespace cli {
namespace {

constexpr double kStepsPerUnit = 1000.0;

std::string Compact(const Json& tree) {
    return tree.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void Print(const Json& tree, int levels, const std::string& indent, std::string& text) {
    const bool isFlatList = tree.is_array() && std::none_of(tree.begin(), tree.end(), [](const Json& item) {
                                return item.is_structured();
                            });
    if (levels == 0 || !tree.is_structured() || tree.empty() || isFlatList) {
        text += Compact(tree);
        return;
    }
    const std::string inner = indent + "  ";
    text += tree.is_object() ? "{" : "[";
    const char* separator = "\n";
    for (const auto& [key, value] : tree.items()) {
        text += separator + inner + (tree.is_object() ? Compact(key) + ": " : "");
        Print(value, levels - 1, inner, text);
        separator = ",\n";
    }
    text += "\n" + indent + (tree.is_object() ? "}" : "]");
}

} // namespace

Json ToJson(double number) {
    if (!std::isfinite(number)) {
        return nullptr;
    }
    const double rounded = std::round(number * kStepsPerUnit) / kStepsPerUnit;
    return penlode::IsPlainWhole(rounded) ? Json(static_cast<std::int64_t>(rounded)) : Json(rounded);
}

Json ToJson(penlode::PointF point) {
    return {ToJson(static_cast<double>(point.X)), ToJson(static_cast<double>(point.Y))};
}

Json ToJson(const penlode::RectF& rect) {
    Json list = ToJson(rect.TopLeft());
    list.push_back(ToJson(static_cast<double>(rect.Width)));
    list.push_back(ToJson(static_cast<double>(rect.Height)));
    return list;
}

Json TextsToJson(const std::vector<std::string>& texts) {
    Json list = Json::array();
    for (const std::string& text : texts) {
        list.push_back(penlode::CStringUtil::AnsiToUtf8(text));
    }
    return list;
}

std::string Printed(const Json& tree, int levels) {
    std::string text;
    Print(tree, levels, "", text);
    return text + "\n";
}

} // namespace cli
