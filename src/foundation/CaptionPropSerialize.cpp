#include "foundation/CaptionPropSerialize.h"

#include "foundation/SerializeFrame.h"
#include "foundation/TextPropertySerialize.h"

namespace millichart {

void CCaptionPropSerialize::SerializeCaptionProp(penlode::ISerialize& stream, CaptionProp& prop) {
    PositionalRecord record(stream);
    record(prop.ShowCaption, prop.Caption);
    CTextPropertySerialize::SerializeTextProperty(stream, prop.CaptionTextProperty);
}

void CCaptionPropSerialize::SerializeCaptionProp(penlode::CSerializeStream& stream, CaptionProp& prop) {
    KeyedRecord record(stream, "CaptionProp");
    record.Integer("ShowCaption", prop.ShowCaption, 0);
    record.Text("Caption", prop.Caption, "");
    CTextPropertySerialize::SerializeTextProperty(stream, prop.CaptionTextProperty, "CaptionTextProperty");
}

} // namespace millichart
