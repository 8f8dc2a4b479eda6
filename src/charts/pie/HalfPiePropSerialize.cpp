#include "charts/pie/HalfPiePropSerialize.h"

#include "charts/pie/PieFieldSerialize.h"
#include "charts/pie/PiePropSerialize.h"

namespace millichart {

namespace {

constexpr EnumName kHalfPiePartNames[] = {{HalfPiePart::Upper, "Top"}, {HalfPiePart::Lower, "Lower"}};

/// Every number that draws the lower half is stored under its name, so that a load draws the same half.
void SerializeWhichPart(KeyedRecord& record, std::int32_t& whichPart, bool saving) {
    std::int32_t named = whichPart == HalfPiePart::Upper ? HalfPiePart::Upper : HalfPiePart::Lower;
    record.Enumeration("WhichPart", named, kHalfPiePartNames, HalfPiePart::Upper);
    if (!saving) {
        whichPart = named;
    }
}

} // namespace

void CHalfPiePropSerialize::SerializeHalfPieProp(penlode::ISerialize& stream, HalfPieProp& prop) {
    SerializeHalfPieBasicProp(stream, prop.Basic);
    SerializeHalfPieLabelProp(stream, prop.Label);
}

void CHalfPiePropSerialize::SerializeHalfPieProp(penlode::CSerializeStream& stream, HalfPieProp& prop,
                                                 const char* tag) {
    const KeyedRecord record(stream, tag);
    SerializeHalfPieBasicProp(stream, prop.Basic);
    SerializeHalfPieLabelProp(stream, prop.Label);
}

void CHalfPiePropSerialize::SerializeHalfPieBasicProp(penlode::ISerialize& stream, HalfPieBasicProp& prop) {
    PositionalRecord record(stream);
    record(prop.WhichPart, prop.FixedSize, prop.FixedWidth, prop.BaseValue, prop.BasePieWidth,
           prop.DrawSepLine, prop.PenSepLine, prop.ComponentName, prop.ComponentColor);
}

void CHalfPiePropSerialize::SerializeHalfPieBasicProp(penlode::CSerializeStream& stream,
                                                      HalfPieBasicProp& prop) {
    KeyedRecord record(stream, "HalfPieBasicProp");
    SerializeWhichPart(record, prop.WhichPart, stream.IsSaving());
    SerializeSize(record, prop);
    SerializeSlices(record, prop);
}

void CHalfPiePropSerialize::SerializeHalfPieLabelProp(penlode::ISerialize& stream, PieLabelProp& prop) {
    CPieLabelPropSerialize::SerializePieLabelProp(stream, prop);
}

void CHalfPiePropSerialize::SerializeHalfPieLabelProp(penlode::CSerializeStream& stream, PieLabelProp& prop) {
    CPieLabelPropSerialize::SerializePieLabelProp(stream, prop);
}

void CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(penlode::ISerialize& stream,
                                                               HalfPieHalfPieProp& prop) {
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop.First);
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop.Second);
}

void CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(penlode::CSerializeStream& stream,
                                                               HalfPieHalfPieProp& prop, const char* tag) {
    const KeyedRecord record(stream, tag);
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop.First, "TopHalf");
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop.Second, "LowerHalf");
}

} // namespace millichart
