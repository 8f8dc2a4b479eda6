#include "foundation/TextPropertySerialize.h"

#include "foundation/SerializeFrame.h"
#include "penlode/text/StringUtil.h"

namespace millichart {

void CTextPropertySerialize::SerializeTextProperty(penlode::ISerialize& stream, TextProperty& property) {
    PositionalRecord record(stream);
    record(property.Font, property.TextColor, property.EdgeColor, property.BkColor, property.DrawEdge,
           property.DrawBackGround, property.Prefix, property.Postfix, property.Angle);
}

void CTextPropertySerialize::SerializeTextProperty(penlode::CSerializeStream& stream, TextProperty& property,
                                                   const char* tag) {
    KeyedRecord record(stream, tag);
    // The font's key has always been this word; documents depend on it.
    record.Font(penlode::CStringUtil::WideToAnsiString(L"字体"), property.Font);
    record.Color("TextColor", property.TextColor, penlode::kBlack);
    record.Color("EdgeColor", property.EdgeColor, penlode::kBlack);
    record.Color("BkColor", property.BkColor, penlode::kBlack);
    record.Integer("DrawEdge", property.DrawEdge, 1);
    record.Integer("DrawBackGround", property.DrawBackGround, 1);
    record.Text("Prefix", property.Prefix, "");
    record.Text("Postfix", property.Postfix, "");
    record.Integer("Angle", property.Angle, 0);
}

} // namespace millichart
