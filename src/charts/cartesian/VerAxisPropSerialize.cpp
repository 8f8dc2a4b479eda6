#include "charts/cartesian/VerAxisPropSerialize.h"

#include "foundation/TextPropertySerialize.h"

namespace millichart {

void SerializeVerAxis(penlode::ISerialize& stream, VerAxisProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowVerAxis, prop.MajorScaleStyle, prop.MinorScaleStyle, prop.VerAxisPen,
           prop.ShowVerAxisLabel, prop.ShowHorMajorGrid, prop.HorMajorGridPen, prop.ShowHorMinorGrid,
           prop.HorMinorGridPen, prop.ShowVerCaption, prop.VerCaption);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.VerAxisLabelTextProperty);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.VerCaptionTextProperty);
}

void SerializeVerAxis(penlode::CSerializeStream& stream, VerAxisProp& prop, const char* tag) {
    KeyedRecord record(stream, tag);
    record.Integer("ShowVerAxis", prop.ShowVerAxis, 0);
    record.Enumeration("MajorScaleStyle", prop.MajorScaleStyle, kScaleStyleNames, ScaleStyle::Outer);
    record.Enumeration("MinorScaleStyle", prop.MinorScaleStyle, kScaleStyleNames, ScaleStyle::Outer);
    record.Pen("VerAxisPen", prop.VerAxisPen);
    record.Integer("ShowVerAxisLabel", prop.ShowVerAxisLabel, 1);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.VerAxisLabelTextProperty,
                                                  "VerAxisLabelTextProperty");
    record.Integer("ShowHorMajorGrid", prop.ShowHorMajorGrid, 1);
    record.Pen("HorMajorGridPen", prop.HorMajorGridPen);
    record.Integer("ShowHorMinorGrid", prop.ShowHorMinorGrid, 1);
    record.Pen("HorMinorGridPen", prop.HorMinorGridPen);
    record.Integer("ShowVerCaption", prop.ShowVerCaption, 1);
    record.Text("VerCaption", prop.VerCaption, "");
    CTextPropertySerialize::SerializeTextProperty(stream, prop.VerCaptionTextProperty,
                                                  "VerCaptionTextProperty");
}

} // namespace millichart
