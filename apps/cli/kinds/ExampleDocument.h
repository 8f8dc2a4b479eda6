#pragma once

#include "charts/cartesian/VerAxisProp.h"
#include "charts/pie/PieProp.h"
#include "documents/Json.h"
#include "kinds/Palette.h"
#include "penlode/streams/JsonSerializeStream.h"

#include <string>

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

inline const penlode::Font kExampleFont{L"Arial", 3.4F};
inline const penlode::Pen kExampleGrid(penlode::Color{0xFFD0D0D0}, 0.1F);

/// The frame of bar and line charts: captions that stand off the plot and the labels, which the line break at
/// their ends does, grey grids, and ticks that do not meet the labels.
template <class Prop> void FrameLikeAnExample(Prop& prop, const char* caption, const char* unit) {
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = std::string(caption) + "\n";
    prop.Caption.CaptionTextProperty.Font = penlode::Font{L"Arial", 4.5F};
    prop.VerAxis.MajorScaleStyle = millichart::ScaleStyle::Inner;
    prop.VerAxis.MinorScaleStyle = millichart::ScaleStyle::None;
    prop.VerAxis.VerAxisLabelTextProperty.Font = kExampleFont;
    prop.VerAxis.HorMajorGridPen = kExampleGrid;
    prop.VerAxis.HorMinorGridPen = kExampleGrid;
    prop.VerAxis.ShowVerCaption = 1;
    prop.VerAxis.VerCaption = std::string(unit) + "\n";
    prop.VerAxis.VerCaptionTextProperty.Font = kExampleFont;
    prop.VerAxis.VerCaptionTextProperty.Angle = 90;
    prop.HorAxis.ScaleStyle = millichart::ScaleStyle::Inner;
    prop.HorAxis.HorCaptionTextProperty.Font = kExampleFont;
    prop.HorAxis.ShowVerGrid = 0;
    prop.Plot.EdgePen = kExampleGrid;
    prop.Plot.PlotWidth = 110.0F;
    prop.Plot.PlotHeight = 60.0F;
    prop.Legend.ShowLegend = 1;
    prop.Legend.ShowEdge = 0;
    prop.Legend.ItemDist = 1.0F;
    prop.Legend.Font = kExampleFont;
}

} // namespace cli
