#include "foundation/PropSerialize.h"

#include "foundation/RecordFields.h"

namespace millichart {

void CTextPropertySerialize::SerializeTextProperty(penlode::ISerialize& stream, TextProperty& prop) {
    SerializeFields(stream, prop);
}

void CTextPropertySerialize::SerializeTextProperty(penlode::CSerializeStream& stream, TextProperty& prop,
                                                   const char* tag) {
    SerializeFields(stream, prop, tag);
}

void CCaptionPropSerialize::SerializeCaptionProp(penlode::ISerialize& stream, CaptionProp& prop) {
    SerializeFields(stream, prop);
}

void CCaptionPropSerialize::SerializeCaptionProp(penlode::CSerializeStream& stream, CaptionProp& prop) {
    SerializeFields(stream, prop, "CaptionProp");
}

void CLegendPropSerialize::SerializeLegendProp(penlode::ISerialize& stream, LegendProp& prop) {
    SerializeFields(stream, prop);
}

void CLegendPropSerialize::SerializeLegendProp(penlode::CSerializeStream& stream, LegendProp& prop,
                                               const char* tag) {
    SerializeFields(stream, prop, tag);
}

} // namespace millichart
