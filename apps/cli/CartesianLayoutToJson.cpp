#include "CartesianLayoutToJson.h"

#include "penlode/StringUtil.h"

namespace cli {

Json TextsToJson(const std::vector<std::string>& texts) {
    Json list = Json::array();
    for (const std::string& text : texts) {
        list.push_back(penlode::CStringUtil::AnsiToUtf8(text));
    }
    return list;
}

Json CartesianLayoutToJson(const millichart::CartesianLayout& layout) {
    return {{"whole", ToJson(layout.Whole)},
            {"caption", ToJson(layout.Caption)},
            {"verCaption", ToJson(layout.VerCaption)},
            {"horCaption", ToJson(layout.HorCaption)},
            {"plot", ToJson(layout.Plot)},
            {"verMajorTicks", ListToJson(layout.VerMajorTicks)},
            {"verMinorTicks", ListToJson(layout.VerMinorTicks)},
            {"verLabelTexts", TextsToJson(layout.VerLabelTexts)},
            {"verLabelRects", ListToJson(layout.VerLabelRects)},
            {"horTicks", ListToJson(layout.HorTicks)},
            {"legendItemRects", ListToJson(layout.LegendItemRects)}};
}

} // namespace cli
