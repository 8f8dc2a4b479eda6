#pragma once

#include "foundation/CaptionProp.h"
#include "foundation/Export.h"
#include "foundation/Legend.h"
#include "foundation/TextProperty.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

/// Save and load the records that all charts share; keyed, in a group named `tag`.
namespace millichart {

/// A loaded font replaces the old one, which is freed.
class MILLICHART_API CTextPropertySerialize {
public:
    static void SerializeTextProperty(penlode::ISerialize& stream, TextProperty& prop);
    static void SerializeTextProperty(penlode::CSerializeStream& stream, TextProperty& prop, const char* tag);
};

/// Keyed, in the group "CaptionProp".
class MILLICHART_API CCaptionPropSerialize {
public:
    static void SerializeCaptionProp(penlode::ISerialize& stream, CaptionProp& prop);
    static void SerializeCaptionProp(penlode::CSerializeStream& stream, CaptionProp& prop);
};

/// The saved order differs from the record's and is fixed. Keyed, the position is stored by its name.
class MILLICHART_API CLegendPropSerialize {
public:
    static void SerializeLegendProp(penlode::ISerialize& stream, LegendProp& prop);
    static void SerializeLegendProp(penlode::CSerializeStream& stream, LegendProp& prop, const char* tag);
};

} // namespace millichart
