#include "foundation/LegendPropSerialize.h"

#include "foundation/SerializeFrame.h"

namespace millichart {
namespace {

constexpr EnumName kLegendPosNames[] = {
    {LegendPosition::LeftTop, "LeftTop"},           {LegendPosition::LeftCenter, "LeftCenter"},
    {LegendPosition::LeftBottom, "LeftBottom"},     {LegendPosition::RightTop, "RightTop"},
    {LegendPosition::RightCenter, "RightCenter"},   {LegendPosition::RightBottom, "RightBottom"},
    {LegendPosition::TopLeft, "TopLeft"},           {LegendPosition::TopCenter, "TopCenter"},
    {LegendPosition::TopRight, "TopRight"},         {LegendPosition::BottomLeft, "BottomLeft"},
    {LegendPosition::BottomCenter, "BottomCenter"}, {LegendPosition::BottomRight, "BottomRight"},
};

} // namespace

void CLegendPropSerialize::SerializeLegendProp(penlode::ISerialize& stream, LegendProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowLegend, prop.LegendPos, prop.ShowEdge, prop.ShowBackground, prop.BackgroundColor,
           prop.ItemDist, prop.PenEdge, prop.Font);
}

void CLegendPropSerialize::SerializeLegendProp(penlode::CSerializeStream& stream, LegendProp& prop,
                                               const char* tag) {
    KeyedRecord record(stream, tag);
    record.Integer("ShowLegend", prop.ShowLegend, 0);
    record.Enumeration("LegendPos", prop.LegendPos, kLegendPosNames, LegendPosition::RightCenter);
    record.Integer("ShowEdge", prop.ShowEdge, 1);
    record.Integer("ShowBackground", prop.ShowBackground, 0);
    record.Color("BackgroundColor", prop.BackgroundColor, penlode::kWhite);
    record.Float("ItemDist", prop.ItemDist, 0.0F);
    record.Pen("PenEdge", prop.PenEdge);
    record.Font("Font", prop.Font);
}

} // namespace millichart
