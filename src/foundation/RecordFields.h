#pragma once

#include "foundation/CaptionProp.h"
#include "foundation/Legend.h"
#include "foundation/SerializeFrame.h"
#include "foundation/TextProperty.h"
#include "penlode/text/StringUtil.h"

/// The fields of the records that all charts share.
namespace millichart {

inline constexpr EnumName kLegendPosNames[] = {
    {LegendPosition::LeftTop, "LeftTop"},           {LegendPosition::LeftCenter, "LeftCenter"},
    {LegendPosition::LeftBottom, "LeftBottom"},     {LegendPosition::RightTop, "RightTop"},
    {LegendPosition::RightCenter, "RightCenter"},   {LegendPosition::RightBottom, "RightBottom"},
    {LegendPosition::TopLeft, "TopLeft"},           {LegendPosition::TopCenter, "TopCenter"},
    {LegendPosition::TopRight, "TopRight"},         {LegendPosition::BottomLeft, "BottomLeft"},
    {LegendPosition::BottomCenter, "BottomCenter"}, {LegendPosition::BottomRight, "BottomRight"},
};

template <> inline constexpr bool kIsStoredLast<TextProperty> = true;

template <class Fields> void Describe(Fields& record, TextProperty& prop) {
    // Documents hold the font under this word.
    record.Field(penlode::CStringUtil::WideToAnsiString(L"字体"), prop.Font);
    record.Field("TextColor", prop.TextColor, penlode::kBlack);
    record.Field("EdgeColor", prop.EdgeColor, penlode::kBlack);
    record.Field("BkColor", prop.BkColor, penlode::kBlack);
    record.Field("DrawEdge", prop.DrawEdge, 1);
    record.Field("DrawBackGround", prop.DrawBackGround, 1);
    record.Field("Prefix", prop.Prefix, "");
    record.Field("Postfix", prop.Postfix, "");
    record.Field("Angle", prop.Angle, 0);
}

template <class Fields> void Describe(Fields& record, CaptionProp& prop) {
    record.Field("ShowCaption", prop.ShowCaption, 0);
    record.Field("Caption", prop.Caption, "");
    record.Record("CaptionTextProperty", prop.CaptionTextProperty);
}

template <class Fields> void Describe(Fields& record, LegendProp& prop) {
    record.Field("ShowLegend", prop.ShowLegend, 0);
    record.Field("LegendPos", prop.LegendPos, kLegendPosNames, LegendPosition::RightCenter);
    record.Field("ShowEdge", prop.ShowEdge, 1);
    record.Field("ShowBackground", prop.ShowBackground, 0);
    record.Field("BackgroundColor", prop.BackgroundColor, penlode::kWhite);
    record.Field("ItemDist", prop.ItemDist, 0.0F);
    record.Field("PenEdge", prop.PenEdge);
    record.Field("Font", prop.Font);
}

} // namespace millichart
