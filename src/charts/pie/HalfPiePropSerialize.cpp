#include "charts/pie/HalfPiePropSerialize.h"

#include "charts/histogram/HistogramPropSerialize.h"
#include "charts/pie/PieFields.h"

namespace millichart {
namespace {

constexpr FlagNames kHalfPiePartNames{"Top", "Lower"};

} // namespace

template <class Fields> void Describe(Fields& record, HalfPieBasicProp& prop) {
    record.Field("WhichPart", prop.WhichPart, kHalfPiePartNames, HalfPiePart::Upper);
    DescribeSize(record, prop);
    DescribeSlices(record, prop);
}

template <class Fields> void Describe(Fields& record, HalfPieProp& prop) {
    record.Record("HalfPieBasicProp", prop.Basic);
    record.Record("PieLabelProp", prop.Label);
}

template <class Fields> void Describe(Fields& record, HalfPieHalfPieProp& prop) {
    record.Record("TopHalf", prop.First);
    record.Record("LowerHalf", prop.Second);
}

void CHalfPiePropSerialize::SerializeHalfPieProp(penlode::ISerialize& stream, HalfPieProp& prop) {
    SerializeFields(stream, prop);
}

void CHalfPiePropSerialize::SerializeHalfPieProp(penlode::CSerializeStream& stream, HalfPieProp& prop,
                                                 const char* tag) {
    SerializeFields(stream, prop, tag);
}

void CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(penlode::ISerialize& stream,
                                                               HalfPieHalfPieProp& prop) {
    SerializeFields(stream, prop);
}

void CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(penlode::CSerializeStream& stream,
                                                               HalfPieHalfPieProp& prop, const char* tag) {
    SerializeFields(stream, prop, tag);
}

void CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(penlode::ISerialize& stream,
                                                                   HalfPieHistogramProp& prop) {
    SerializeFields(stream, prop.HalfPie);
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop.Histogram);
}

void CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(penlode::CSerializeStream& stream,
                                                                   HalfPieHistogramProp& prop,
                                                                   const char* tag) {
    KeyedRecord record(stream, tag);
    record.Record("HalfPie", prop.HalfPie);
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop.Histogram, "Histogram");
}

} // namespace millichart
