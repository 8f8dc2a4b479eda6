#pragma once

#include "Json.h"
#include "Palette.h"
#include "charts/pie/PieProp.h"
#include "penlode/JsonSerializeStream.h"

namespace cli {

/// A record as a document holds it. `serialize` is its class's keyed operation, which takes a stream, the
/// record and a tag.
template <class Prop>
Json SavedRecord(void (*serialize)(penlode::CSerializeStream&, Prop&, const char*), Prop prop) {
    penlode::CJsonSerializeStream stream;
    serialize(stream, prop, "property");
    return Json::parse(stream.Text())["property"];
}

/// What every document to start from has in common, but for its version and kind.
inline Json ExampleDocument(const char* title, Json property, Json data) {
    return {{"title", title},
            {"description", "Figures made up as an example; put your own in their place."},
            {"source", ""},
            {"property", std::move(property)},
            {"data", std::move(data)},
            {"location", "0 0"}};
}

/// The look of pies and half pies: 60 mm across, with thin white lines, and the percentage at each slice.
template <class Basic> void LookLikeAnExample(Basic& basic, millichart::PieLabelProp& label) {
    basic.FixedSize = 1;
    basic.FixedWidth = 60.0F;
    basic.PenSepLine = penlode::Pen(penlode::kWhite, 0.3F);
    basic.ComponentColor = PaletteColors(4);
    label.ShowPercentLabel = 1;
    label.DistBetweenLabelCenterAndPieCenter = 1.5F;
    label.PieLabelTextProperty.Font = penlode::Font{L"Arial", 3.4F};
}

} // namespace cli
