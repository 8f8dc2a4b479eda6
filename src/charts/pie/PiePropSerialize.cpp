#include "charts/pie/PiePropSerialize.h"

#include "charts/pie/PieFields.h"

namespace millichart {
namespace {

constexpr EnumName kPieStyleNames[] = {{PieStyle::Flat, "2D"}, {PieStyle::WithDepth, "3D"}};

} // namespace

template <class Fields> void Describe(Fields& record, PieBasicProp& prop) {
    record.Field("PieStyle", prop.PieStyle, kPieStyleNames, PieStyle::WithDepth);
    DescribeSize(record, prop);
    record.Field("StartAngle", prop.StartAngle, 180.0F);
    DescribeSlices(record, prop);
}

template <class Fields> void Describe(Fields& record, PieProp& prop) {
    record.Record("PieBasicProp", prop.Basic);
    record.Record("PieLabelProp", prop.Label);
    record.Record("PieLegendProp", prop.Legend);
}

void CPieLabelPropSerialize::SerializePieLabelProp(penlode::ISerialize& stream, PieLabelProp& prop) {
    SerializeFields(stream, prop);
}

void CPieLabelPropSerialize::SerializePieLabelProp(penlode::CSerializeStream& stream, PieLabelProp& prop) {
    SerializeFields(stream, prop, "PieLabelProp");
}

void CPiePropSerialize::SerializePieProp(penlode::ISerialize& stream, PieProp& prop) {
    SerializeFields(stream, prop);
}

void CPiePropSerialize::SerializePieProp(penlode::CSerializeStream& stream, PieProp& prop, const char* tag) {
    SerializeFields(stream, prop, tag);
}

} // namespace millichart
