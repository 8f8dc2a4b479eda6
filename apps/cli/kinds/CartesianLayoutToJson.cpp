#include "kinds/CartesianLayoutToJson.h"

namespace cli {

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
