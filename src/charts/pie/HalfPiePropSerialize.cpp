#include "charts/pie/HalfPiePropSerialize.h"

#include "charts/histogram/HistogramPropSerialize.h"
#include "charts/pie/PieFields.h"

namespace millichart {
namespace {

constexpr EnumName kHalfPiePartNames[] = {{HalfPiePart::Upper, "Top"}, {HalfPiePart::Lower, "Lower"}};

/// Every number that draws the lower half is stored under its name, so that a load draws the same half.
void DescribeWhichPart(KeyedRecord& record, std::int32_t& whichPart) {
    std::int32_t named = whichPart == HalfPiePart::Upper ? HalfPiePart::Upper : HalfPiePart::Lower;
    record.Field("WhichPart", named, kHalfPiePartNames, HalfPiePart::Upper);
    if (!record.IsSaving()) {
        whichPart = named;
    }
}

void DescribeWhichPart(PositionalRecord& record, std::int32_t& whichPart) {
    record.Field("WhichPart", whichPart);
}

} // namespace

template <class Fields> void Describe(Fields& record, HalfPieBasicProp& prop) {
    DescribeWhichPart(record, prop.WhichPart);
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
