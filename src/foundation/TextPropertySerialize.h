#pragma once

#include "foundation/Export.h"
#include "foundation/TextProperty.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

/// Saves and loads a TextProperty. A loaded font replaces the old one, which is freed.
class MILLICHART_API CTextPropertySerialize {
public:
    static void SerializeTextProperty(penlode::ISerialize& stream, TextProperty& property);
    /// In a group named `tag`.
    static void SerializeTextProperty(penlode::CSerializeStream& stream, TextProperty& property,
                                      const char* tag);
};

} // namespace millichart
