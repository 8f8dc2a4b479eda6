#include "charts/pie/PiePropSerialize.h"

#include "charts/pie/PieFieldSerialize.h"
#include "foundation/LegendPropSerialize.h"
#include "foundation/SerializeFrame.h"
#include "foundation/TextPropertySerialize.h"

namespace millichart {

void CPieLabelPropSerialize::SerializePieLabelProp(penlode::ISerialize& stream, PieLabelProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowNameLabel, prop.ShowValueLabel, prop.ShowPercentLabel, prop.LabelsInSingleRow,
           prop.LabelSeparator, prop.ShowLabelLeadLine, prop.DistBetweenLabelCenterAndPieCenter,
           prop.LabelLeadLinePen);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.PieLabelTextProperty);
}

void CPieLabelPropSerialize::SerializePieLabelProp(penlode::CSerializeStream& stream, PieLabelProp& prop) {
    KeyedRecord record(stream, "PieLabelProp");
    record.Integer("ShowNameLabel", prop.ShowNameLabel, 0);
    record.Integer("ShowValueLabel", prop.ShowValueLabel, 0);
    record.Integer("ShowPercentLabel", prop.ShowPercentLabel, 0);
    record.Integer("LabelsInSingleRow", prop.LabelsInSingleRow, 1);
    record.Text("LabelSeparator", prop.LabelSeparator, ";");
    record.Float("DistBetweenLabelCenterAndPieCenter", prop.DistBetweenLabelCenterAndPieCenter, 10.0F);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.PieLabelTextProperty, "PieLabelTextProperty");
    record.Integer("ShowLabelLeadLine", prop.ShowLabelLeadLine, 1);
    record.Pen("LabelLeadLinePen", prop.LabelLeadLinePen);
}

void CPiePropSerialize::SerializePieProp(penlode::ISerialize& stream, PieProp& prop) {
    SerializePieBasicProp(stream, prop.Basic);
    CPieLabelPropSerialize::SerializePieLabelProp(stream, prop.Label);
    CLegendPropSerialize::SerializeLegendProp(stream, prop.Legend);
}

void CPiePropSerialize::SerializePieProp(penlode::CSerializeStream& stream, PieProp& prop, const char* tag) {
    const KeyedRecord record(stream, tag);
    SerializePieBasicProp(stream, prop.Basic);
    CPieLabelPropSerialize::SerializePieLabelProp(stream, prop.Label);
    CLegendPropSerialize::SerializeLegendProp(stream, prop.Legend, "PieLegendProp");
}

void CPiePropSerialize::SerializePieBasicProp(penlode::ISerialize& stream, PieBasicProp& prop) {
    PositionalRecord record(stream);
    record(prop.PieStyle, prop.FixedSize, prop.FixedWidth, prop.BaseValue, prop.BasePieWidth, prop.StartAngle,
           prop.DrawSepLine, prop.PenSepLine, prop.ComponentName, prop.ComponentColor);
}

void CPiePropSerialize::SerializePieBasicProp(penlode::CSerializeStream& stream, PieBasicProp& prop) {
    KeyedRecord record(stream, "PieBasicProp");
    record.Enumeration("PieStyle", prop.PieStyle, kPieStyleNames, PieStyle::WithDepth);
    SerializeSize(record, prop);
    record.Float("StartAngle", prop.StartAngle, 180.0F);
    SerializeSlices(record, prop);
}

} // namespace millichart
