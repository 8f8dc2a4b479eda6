#pragma once

#include "charts/pie/PieProp.h"
#include "foundation/RecordFields.h"

/// The fields that a pie's record and a half pie's have in common. `Basic` is either's.
namespace millichart {

template <class Fields, class Basic> void DescribeSize(Fields& record, Basic& prop) {
    record.Field("FixedSize", prop.FixedSize, 0);
    record.Field("FixedWidth", prop.FixedWidth, 20.0F);
    record.Field("BaseValue", prop.BaseValue, 100.0F);
    record.Field("BasePieWidth", prop.BasePieWidth, 10.0F);
}

template <class Fields, class Basic> void DescribeSlices(Fields& record, Basic& prop) {
    record.Field("DrawSepLine", prop.DrawSepLine, 1);
    record.Field("PenSepLine", prop.PenSepLine);
    record.JoinedTexts("ComponentName", prop.ComponentName);
    record.Field("ComponentColor", prop.ComponentColor);
}

template <class Fields> void Describe(Fields& record, PieLabelProp& prop) {
    record.Field("ShowNameLabel", prop.ShowNameLabel, 0);
    record.Field("ShowValueLabel", prop.ShowValueLabel, 0);
    record.Field("ShowPercentLabel", prop.ShowPercentLabel, 0);
    record.Field("LabelsInSingleRow", prop.LabelsInSingleRow, 1);
    record.Field("LabelSeparator", prop.LabelSeparator, ";");
    record.Field("DistBetweenLabelCenterAndPieCenter", prop.DistBetweenLabelCenterAndPieCenter, 10.0F);
    record.Record("PieLabelTextProperty", prop.PieLabelTextProperty);
    record.Field("ShowLabelLeadLine", prop.ShowLabelLeadLine, 1);
    record.Field("LabelLeadLinePen", prop.LabelLeadLinePen);
}

/// The lead line comes before the distance here.
inline void SerializeFields(penlode::ISerialize& stream, PieLabelProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowNameLabel, prop.ShowValueLabel, prop.ShowPercentLabel, prop.LabelsInSingleRow,
           prop.LabelSeparator, prop.ShowLabelLeadLine, prop.DistBetweenLabelCenterAndPieCenter,
           prop.LabelLeadLinePen, prop.PieLabelTextProperty);
}

} // namespace millichart
