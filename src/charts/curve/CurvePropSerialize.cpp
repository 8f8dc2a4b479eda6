#include "charts/curve/CurvePropSerialize.h"

#include "charts/cartesian/VerAxisFields.h"
#include "charts/curve/CurveStyle.h"

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

constexpr FlagNames kNullValueStyleNames{"break", "as_zero"};

} // namespace

template <class Fields> void Describe(Fields& record, CurveHorAxisProp& prop) {
    record.Field("ShowHorAxis", prop.ShowHorAxis, 1);
    record.Field("HorAxisPen", prop.HorAxisPen);
    record.Field("ScaleStyle", prop.ScaleStyle, kScaleStyleNames, ScaleStyle::Outer);
    record.Field("ScaleStep", prop.ScaleStep, 1);
    record.Field("ShowLabel", prop.ShowLabel, 1);
    record.Field("LabelStep", prop.LabelStep, 1);
    record.Field("ShowVerGrid", prop.ShowVerGrid, 0);
    record.Field("VerGridStep", prop.VerGridStep, 1);
    record.Field("VerGridPen", prop.VerGridPen, kDefaultVerGridPen);
    record.Field("ShowHorCaption", prop.ShowHorCaption, 0);
    record.Field("HorCaption", prop.HorCaption, "");
    record.Record("HorCaptionTextProperty", prop.HorCaptionTextProperty);
    record.Record("HorLabelTextProperty", prop.HorLabelTextProperty);
}

/// The labels' look comes before the caption's here.
void SerializeFields(penlode::ISerialize& stream, CurveHorAxisProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowHorAxis, prop.HorAxisPen, prop.ScaleStyle, prop.ScaleStep, prop.ShowLabel, prop.LabelStep,
           prop.ShowVerGrid, prop.VerGridStep, prop.VerGridPen, prop.ShowHorCaption, prop.HorCaption,
           prop.HorLabelTextProperty, prop.HorCaptionTextProperty);
}

template <class Fields> void Describe(Fields& record, CurvePlotProp& prop) {
    const CurveStyle missing;
    record.Field("ShowBackground", prop.ShowBackground, 1);
    record.Field("PlotBackgroundColor", prop.PlotBackgroundColor, penlode::kWhite);
    record.Field("ShowEdge", prop.ShowEdge, 1);
    record.Field("EdgePen", prop.EdgePen, kDefaultEdgePen);
    record.Field("CurveName", prop.CurveName);
    record.Field("CurveColor", prop.CurveColor);
    record.Field("CurveWidth", prop.CurveWidth, missing.Width);
    record.Field("CurveDashStyle", prop.CurveDashStyle);
    record.Field("CurveDotStyle", prop.CurveDotStyle, kDotStyleNames);
    record.Field("CurveDotColor", prop.CurveDotColor);
    record.Field("CurveDotWidth", prop.CurveDotWidth, missing.DotWidth);
    record.Field("PlotWidth", prop.PlotWidth, 80.0F);
    record.Field("PlotHeight", prop.PlotHeight, 30.0F);
    record.Field("LogarithmScale", prop.LogarithmScale, 0);
    record.Field("NullValueStyle", prop.NullValueStyle, kNullValueStyleNames);
}

template <class Fields> void Describe(Fields& record, CurveProp& prop) {
    record.Record("CaptionProp", prop.Caption);
    record.Record("CurveVerAxisProp", prop.VerAxis);
    record.Record("CurveHorAxisProp", prop.HorAxis);
    record.Record("CurvePlotProp", prop.Plot);
    record.Record("CurveLegendProp", prop.Legend);
}

void CCurvePropSerialize::SerializeCurveProp(penlode::ISerialize& stream, CurveProp& prop) {
    SerializeFields(stream, prop);
}

void CCurvePropSerialize::SerializeCurveProp(penlode::CSerializeStream& stream, CurveProp& prop,
                                             const char* tag) {
    SerializeFields(stream, prop, tag);
}

} // namespace millichart
