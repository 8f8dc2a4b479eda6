#pragma once

#include "penlode/Geometry.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace cli {

/// A JSON tree whose keys keep their order.
using Json = nlohmann::ordered_json;

/// Numbers rounded to 0.001; null for what is not finite.
Json ToJson(double number);
/// [x, y]
Json ToJson(penlode::PointF point);
/// [x, y, width, height]
Json ToJson(const penlode::RectF& rect);
/// Narrow texts.
Json TextsToJson(const std::vector<std::string>& texts);

template <class T> Json ListToJson(const std::vector<T>& items) {
    Json list = Json::array();
    for (const T& item : items) {
        list.push_back(ToJson(item));
    }
    return list;
}

/// The text of a tree, indented by two blanks down to that many levels; deeper ones stand on one line.
std::string Printed(const Json& tree, int levels);

} // namespace cli
