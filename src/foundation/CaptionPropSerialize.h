#pragma once

#include "foundation/CaptionProp.h"
#include "foundation/Export.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

/// Saves and loads a CaptionProp; keyed, in the group "CaptionProp".
class MILLICHART_API CCaptionPropSerialize {
public:
    static void SerializeCaptionProp(penlode::ISerialize& stream, CaptionProp& prop);
    static void SerializeCaptionProp(penlode::CSerializeStream& stream, CaptionProp& prop);
};

} // namespace millichart
