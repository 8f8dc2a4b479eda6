#include "penlode/streams/SerializeStream.h"

#include "penlode/Owned.h"
#include "penlode/streams/TextForms.h"

namespace penlode {
namespace {

/// One value under its text form. A default that is loaded is taken as it is, not by way of its text, which
/// may say less than the value.
template <class Value>
void Transfer(CSerializeStream& stream, const std::string& tag, Value& value, Value defaultValue,
              const char* form) {
    std::string defaultText;
    ser_evaluate(defaultValue, defaultText, true);
    std::string text = defaultText;
    if (stream.IsSaving()) {
        ser_evaluate(value, text, true);
        stream.Ser(tag, text, defaultText);
        return;
    }
    stream.Ser(tag, text, defaultText);
    value = defaultValue;
    if (text != defaultText && !ser_evaluate(value, text, false)) {
        stream.Refuse(tag, text, form);
    }
}

template <class Object>
void TransferObject(CSerializeStream& stream, const std::string& tag, Object** object,
                    const Object& defaultObject, const char* form) {
    Owned<Object> value;
    if (stream.IsSaving() && *object != nullptr) {
        value = **object;
    }
    Transfer(stream, tag, value, Owned<Object>(defaultObject), form);
    if (!stream.IsSaving()) {
        *object = value ? new Object(*value) : nullptr;
    }
}

} // namespace

CSerializeStream::~CSerializeStream() = default;

void CSerializeStream::Refuse(const std::string&, const std::string&, const std::string&) {}

void CSerializeStream::Ser(const std::string& tag, Color& value, Color defaultValue) {
    Transfer(*this, tag, value, defaultValue, kColorForm);
}

void CSerializeStream::Ser(const std::string& tag, Font** font, const Font& defaultFont) {
    TransferObject(*this, tag, font, defaultFont, kFontForm);
}

void CSerializeStream::Ser(const std::string& tag, Pen** pen, const Pen& defaultPen) {
    TransferObject(*this, tag, pen, defaultPen, kPenForm);
}

} // namespace penlode
