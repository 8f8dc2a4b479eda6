#include "charts/histogram/HistogramPropSerialize.h"

#include "charts/cartesian/VerAxisFields.h"

namespace millichart {
namespace {

constexpr FlagNames kBarStyleNames{"2D", "3D"};

} // namespace

template <class Fields> void Describe(Fields& record, HistogramHorAxisProp& prop) {
    record.Field("ShowHorAxis", prop.ShowHorAxis, 1);
    record.Field("ScaleStyle", prop.ScaleStyle, kScaleStyleNames, ScaleStyle::Outer);
    record.Field("HorAxisPen", prop.HorAxisPen);
    record.Field("ShowGroupName", prop.ShowGroupName, 1);
    record.Record("GroupNameTextProperty", prop.GroupNameTextProperty);
    record.Field("ShowVerGrid", prop.ShowVerGrid, 1);
    record.Field("VerGridPen", prop.VerGridPen, kDefaultVerGridPen);
    record.Field("ShowHorCaption", prop.ShowHorCaption, 1);
    record.Field("HorCaption", prop.HorCaption, "");
    record.Record("HorCaptionTextProperty", prop.HorCaptionTextProperty);
}

template <class Fields> void Describe(Fields& record, HistogramPlotProp& prop) {
    record.Field("ShowBackground", prop.ShowBackground, 1);
    record.Field("PlotBackgroundColor", prop.PlotBackgroundColor, penlode::kWhite);
    record.Field("ShowEdge", prop.ShowEdge, 1);
    record.Field("EdgePen", prop.EdgePen, kDefaultEdgePen);
    record.Field("ShowComponentName", prop.ShowComponentName, 1);
    record.Field("ShowComponentValue", prop.ShowComponentValue, 1);
    record.Field("ConponentInfoInSingleRow", prop.ConponentInfoInSingleRow, 1);
    record.Field("ConponentInfoSeparator", prop.ConponentInfoSeparator, ";");
    record.Record("ComponentInfoTextProperty", prop.ComponentInfoTextProperty);
    record.Field("ComponentName", prop.ComponentName);
    record.Field("ComponentColor", prop.ComponentColor);
    record.Field("PlotWidth", prop.PlotWidth, 80.0F);
    record.Field("PlotHeight", prop.PlotHeight, 30.0F);
    record.Field("GroupDistane", prop.GroupDistane, 10.0F);
    record.Field("Juxtaposition", prop.Juxtaposition, 1);
    record.Field("PieStyle", prop.PieStyle, kBarStyleNames, BarStyle::Flat);
    record.Field("LogarithmScale", prop.LogarithmScale, 0);
}

template <class Fields> void Describe(Fields& record, HistogramProp& prop) {
    record.Record("CaptionProp", prop.Caption);
    record.Record("HistogramVerAxisProp", prop.VerAxis);
    record.Record("HistogramHorAxisProp", prop.HorAxis);
    record.Record("HistogramPlotProp", prop.Plot);
    record.Record("HistogramLegendProp", prop.Legend);
}

void CHistogramPropSerialize::SerializeHistogramProp(penlode::ISerialize& stream, HistogramProp& prop) {
    SerializeFields(stream, prop);
}

void CHistogramPropSerialize::SerializeHistogramProp(penlode::CSerializeStream& stream, HistogramProp& prop,
                                                     const char* tag) {
    SerializeFields(stream, prop, tag);
}

} // namespace millichart
