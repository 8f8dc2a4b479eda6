#include "charts/curve/CurvePropSerialize.h"

#include "charts/cartesian/VerAxisPropSerialize.h"
#include "charts/curve/CurveStyle.h"
#include "foundation/CaptionPropSerialize.h"
#include "foundation/LegendPropSerialize.h"
#include "foundation/TextPropertySerialize.h"

namespace millichart {
namespace {

constexpr EnumName kDotStyleNames[] = {
    {CurveDotStyle::None, "none"},
    {CurveDotStyle::SolidSquare, "solid_square"},
    {CurveDotStyle::HollowSquare, "hollow_square"},
    {CurveDotStyle::SolidCircle, "solid_circle"},
    {CurveDotStyle::HollowCircle, "hollow_circle"},
    {CurveDotStyle::SolidDiamond, "solid_diamond"},
    {CurveDotStyle::HollowDiamond, "hollow_diamond"},
    {CurveDotStyle::SolidTriangle, "solid_triangle"},
    {CurveDotStyle::HollowTriangle, "hollow_triangle"},
    {CurveDotStyle::SolidInvertedTriangle, "solid_inverted_triangle"},
    {CurveDotStyle::HollowInvertedTriangle, "hollow_inverted_triangle"},
};

constexpr EnumName kNullValueStyleNames[] = {{CurveNullValueStyle::Break, "break"},
                                             {CurveNullValueStyle::AsZero, "as_zero"}};

} // namespace

void CCurvePropSerialize::SerializeCurveProp(penlode::ISerialize& stream, CurveProp& prop) {
    SerializeCaptionProp(stream, prop.Caption);
    SerializeVerAxisProp(stream, prop.VerAxis);
    SerializeHorAxisProp(stream, prop.HorAxis);
    SerializePlotProp(stream, prop.Plot);
    CLegendPropSerialize::SerializeLegendProp(stream, prop.Legend);
}

void CCurvePropSerialize::SerializeCurveProp(penlode::CSerializeStream& stream, CurveProp& prop,
                                             const char* tag) {
    const KeyedRecord record(stream, tag);
    SerializeCaptionProp(stream, prop.Caption);
    SerializeVerAxisProp(stream, prop.VerAxis);
    SerializeHorAxisProp(stream, prop.HorAxis);
    SerializePlotProp(stream, prop.Plot);
    CLegendPropSerialize::SerializeLegendProp(stream, prop.Legend, "CurveLegendProp");
}

void CCurvePropSerialize::SerializeCaptionProp(penlode::ISerialize& stream, CaptionProp& prop) {
    CCaptionPropSerialize::SerializeCaptionProp(stream, prop);
}

void CCurvePropSerialize::SerializeCaptionProp(penlode::CSerializeStream& stream, CaptionProp& prop) {
    CCaptionPropSerialize::SerializeCaptionProp(stream, prop);
}

void CCurvePropSerialize::SerializeVerAxisProp(penlode::ISerialize& stream, CurveVerAxisProp& prop) {
    SerializeVerAxis(stream, prop);
}

void CCurvePropSerialize::SerializeVerAxisProp(penlode::CSerializeStream& stream, CurveVerAxisProp& prop) {
    SerializeVerAxis(stream, prop, "CurveVerAxisProp");
}

void CCurvePropSerialize::SerializeHorAxisProp(penlode::ISerialize& stream, CurveHorAxisProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowHorAxis, prop.HorAxisPen, prop.ScaleStyle, prop.ScaleStep, prop.ShowLabel, prop.LabelStep,
           prop.ShowVerGrid, prop.VerGridStep, prop.VerGridPen, prop.ShowHorCaption, prop.HorCaption);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.HorLabelTextProperty);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.HorCaptionTextProperty);
}

void CCurvePropSerialize::SerializeHorAxisProp(penlode::CSerializeStream& stream, CurveHorAxisProp& prop) {
    KeyedRecord record(stream, "CurveHorAxisProp");
    record.Integer("ShowHorAxis", prop.ShowHorAxis, 1);
    record.Pen("HorAxisPen", prop.HorAxisPen);
    record.Enumeration("ScaleStyle", prop.ScaleStyle, kScaleStyleNames, ScaleStyle::Outer);
    record.Integer("ScaleStep", prop.ScaleStep, 1);
    record.Integer("ShowLabel", prop.ShowLabel, 1);
    record.Integer("LabelStep", prop.LabelStep, 1);
    record.Integer("ShowVerGrid", prop.ShowVerGrid, 0);
    record.Integer("VerGridStep", prop.VerGridStep, 1);
    record.Pen("VerGridPen", prop.VerGridPen, kDefaultVerGridPen);
    record.Integer("ShowHorCaption", prop.ShowHorCaption, 0);
    record.Text("HorCaption", prop.HorCaption, "");
    CTextPropertySerialize::SerializeTextProperty(stream, prop.HorCaptionTextProperty,
                                                  "HorCaptionTextProperty");
    CTextPropertySerialize::SerializeTextProperty(stream, prop.HorLabelTextProperty, "HorLabelTextProperty");
}

void CCurvePropSerialize::SerializePlotProp(penlode::ISerialize& stream, CurvePlotProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowBackground, prop.PlotBackgroundColor, prop.ShowEdge, prop.EdgePen, prop.PlotWidth,
           prop.PlotHeight, prop.LogarithmScale);
    record(prop.CurveName, prop.CurveColor, prop.CurveWidth, prop.CurveDashStyle, prop.CurveDotStyle,
           prop.CurveDotColor, prop.CurveDotWidth, prop.NullValueStyle);
}

void CCurvePropSerialize::SerializePlotProp(penlode::CSerializeStream& stream, CurvePlotProp& prop) {
    const CurveStyle missing;
    KeyedRecord record(stream, "CurvePlotProp");
    record.Integer("ShowBackground", prop.ShowBackground, 1);
    record.Color("PlotBackgroundColor", prop.PlotBackgroundColor, penlode::kWhite);
    record.Integer("ShowEdge", prop.ShowEdge, 1);
    record.Pen("EdgePen", prop.EdgePen, kDefaultEdgePen);
    record.TextList("CurveName", prop.CurveName);
    record.ColorList("CurveColor", prop.CurveColor);
    record.FloatList("CurveWidth", prop.CurveWidth, missing.Width);
    record.IntegerList("CurveDashStyle", prop.CurveDashStyle);
    record.EnumerationList("CurveDotStyle", prop.CurveDotStyle, kDotStyleNames);
    record.ColorList("CurveDotColor", prop.CurveDotColor);
    record.FloatList("CurveDotWidth", prop.CurveDotWidth, missing.DotWidth);
    record.Float("PlotWidth", prop.PlotWidth, 80.0F);
    record.Float("PlotHeight", prop.PlotHeight, 30.0F);
    record.Integer("LogarithmScale", prop.LogarithmScale, 0);
    record.EnumerationList("NullValueStyle", prop.NullValueStyle, kNullValueStyleNames);
}

} // namespace millichart
