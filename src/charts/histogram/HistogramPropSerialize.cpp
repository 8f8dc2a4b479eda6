#include "charts/histogram/HistogramPropSerialize.h"

#include "charts/cartesian/VerAxisPropSerialize.h"
#include "foundation/CaptionPropSerialize.h"
#include "foundation/LegendPropSerialize.h"
#include "foundation/TextPropertySerialize.h"

namespace millichart {

void CHistogramPropSerialize::SerializeHistogramProp(penlode::ISerialize& stream, HistogramProp& prop) {
    SerializeCaptionProp(stream, prop.Caption);
    SerializeVerAxisProp(stream, prop.VerAxis);
    SerializeHorAxisProp(stream, prop.HorAxis);
    SerializePlotProp(stream, prop.Plot);
    CLegendPropSerialize::SerializeLegendProp(stream, prop.Legend);
}

void CHistogramPropSerialize::SerializeHistogramProp(penlode::CSerializeStream& stream, HistogramProp& prop,
                                                     const char* tag) {
    const KeyedRecord record(stream, tag);
    SerializeCaptionProp(stream, prop.Caption);
    SerializeVerAxisProp(stream, prop.VerAxis);
    SerializeHorAxisProp(stream, prop.HorAxis);
    SerializePlotProp(stream, prop.Plot);
    CLegendPropSerialize::SerializeLegendProp(stream, prop.Legend, "HistogramLegendProp");
}

void CHistogramPropSerialize::SerializeCaptionProp(penlode::ISerialize& stream, CaptionProp& prop) {
    CCaptionPropSerialize::SerializeCaptionProp(stream, prop);
}

void CHistogramPropSerialize::SerializeCaptionProp(penlode::CSerializeStream& stream, CaptionProp& prop) {
    CCaptionPropSerialize::SerializeCaptionProp(stream, prop);
}

void CHistogramPropSerialize::SerializeVerAxisProp(penlode::ISerialize& stream, HistogramVerAxisProp& prop) {
    SerializeVerAxis(stream, prop);
}

void CHistogramPropSerialize::SerializeVerAxisProp(penlode::CSerializeStream& stream,
                                                   HistogramVerAxisProp& prop) {
    SerializeVerAxis(stream, prop, "HistogramVerAxisProp");
}

void CHistogramPropSerialize::SerializeHorAxisProp(penlode::ISerialize& stream, HistogramHorAxisProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowHorAxis, prop.ScaleStyle, prop.HorAxisPen, prop.ShowGroupName, prop.ShowVerGrid,
           prop.VerGridPen, prop.ShowHorCaption, prop.HorCaption);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.GroupNameTextProperty);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.HorCaptionTextProperty);
}

void CHistogramPropSerialize::SerializeHorAxisProp(penlode::CSerializeStream& stream,
                                                   HistogramHorAxisProp& prop) {
    KeyedRecord record(stream, "HistogramHorAxisProp");
    record.Integer("ShowHorAxis", prop.ShowHorAxis, 1);
    record.Enumeration("ScaleStyle", prop.ScaleStyle, kScaleStyleNames, ScaleStyle::Outer);
    record.Pen("HorAxisPen", prop.HorAxisPen);
    record.Integer("ShowGroupName", prop.ShowGroupName, 1);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.GroupNameTextProperty,
                                                  "GroupNameTextProperty");
    record.Integer("ShowVerGrid", prop.ShowVerGrid, 1);
    record.Pen("VerGridPen", prop.VerGridPen, kDefaultVerGridPen);
    record.Integer("ShowHorCaption", prop.ShowHorCaption, 1);
    record.Text("HorCaption", prop.HorCaption, "");
    CTextPropertySerialize::SerializeTextProperty(stream, prop.HorCaptionTextProperty,
                                                  "HorCaptionTextProperty");
}

void CHistogramPropSerialize::SerializePlotProp(penlode::ISerialize& stream, HistogramPlotProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowBackground, prop.PlotBackgroundColor, prop.ShowEdge, prop.EdgePen, prop.ShowComponentName,
           prop.ShowComponentValue, prop.ConponentInfoInSingleRow, prop.ConponentInfoSeparator,
           prop.PlotWidth, prop.PlotHeight, prop.GroupDistane, prop.Juxtaposition, prop.PieStyle,
           prop.LogarithmScale);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.ComponentInfoTextProperty);
    record(prop.ComponentName, prop.ComponentColor);
}

void CHistogramPropSerialize::SerializePlotProp(penlode::CSerializeStream& stream, HistogramPlotProp& prop) {
    KeyedRecord record(stream, "HistogramPlotProp");
    record.Integer("ShowBackground", prop.ShowBackground, 1);
    record.Color("PlotBackgroundColor", prop.PlotBackgroundColor, penlode::kWhite);
    record.Integer("ShowEdge", prop.ShowEdge, 1);
    record.Pen("EdgePen", prop.EdgePen, kDefaultEdgePen);
    record.Integer("ShowComponentName", prop.ShowComponentName, 1);
    record.Integer("ShowComponentValue", prop.ShowComponentValue, 1);
    record.Integer("ConponentInfoInSingleRow", prop.ConponentInfoInSingleRow, 1);
    record.Text("ConponentInfoSeparator", prop.ConponentInfoSeparator, ";");
    CTextPropertySerialize::SerializeTextProperty(stream, prop.ComponentInfoTextProperty,
                                                  "ComponentInfoTextProperty");
    record.TextList("ComponentName", prop.ComponentName);
    record.ColorList("ComponentColor", prop.ComponentColor);
    record.Float("PlotWidth", prop.PlotWidth, 80.0F);
    record.Float("PlotHeight", prop.PlotHeight, 30.0F);
    record.Float("GroupDistane", prop.GroupDistane, 10.0F);
    record.Integer("Juxtaposition", prop.Juxtaposition, 1);
    record.Enumeration("PieStyle", prop.PieStyle, kPieStyleNames, BarStyle::Flat);
    record.Integer("LogarithmScale", prop.LogarithmScale, 0);
}

} // namespace millichart
