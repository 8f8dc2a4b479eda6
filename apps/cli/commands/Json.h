#pragma once

#include "documents/ChartDocument.h"
#include "penlode/recording/RecordingEngine.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

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

/// The UTF-8 text in which documents write a colour, a pen or a font.
template <class T> std::string Form(T value) {
    std::string text;
    penlode::ser_evaluate(value, text, true);
    return penlode::CStringUtil::AnsiToUtf8(text);
}

template <class T> Json ListToJson(const std::vector<T>& items) {
    Json list = Json::array();
    for (const T& item : items) {
        list.push_back(ToJson(item));
    }
    return list;
}

/// The results of a chart's layout, in its own millimetres.
Json LayoutToJson(const millichart::LaidOutChart& chart);

/// The texts as they are drawn now, in their order, each with what it belongs to, its upright box, and its
/// turn in degrees, counter-clockwise.
Json DrawnTextsToJson(const millichart::LaidOutChart& chart);

/// The slices and bars as they are drawn now, and of each curve how many points each of its lines has.
Json ShapesToJson(const millichart::LaidOutChart& chart);

/// One object a call: its operation under "call", and each argument under a name. Colours, pens and fonts are
/// written as documents write them.
Json CallsToJson(const std::vector<penlode::RecordedCall>& calls);

/// The text of a tree, indented by two blanks down to that many levels; deeper ones stand on one line.
std::string Printed(const Json& tree, int levels);

} // namespace cli
