#pragma once

#include "charts/pie/PieProp.h"
#include "foundation/Export.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

/// Saves and loads a PieLabelProp, whose saved order differs from the record's and is fixed; keyed, in the
/// group "PieLabelProp".
class MILLICHART_API CPieLabelPropSerialize {
public:
    static void SerializePieLabelProp(penlode::ISerialize& stream, PieLabelProp& prop);
    static void SerializePieLabelProp(penlode::CSerializeStream& stream, PieLabelProp& prop);
};

/// Saves and loads a PieProp. Where keys are missing a load gives other values than construction does: a pie
/// with depth, and labels 10 mm off the rim.
class MILLICHART_API CPiePropSerialize {
public:
    static void SerializePieProp(penlode::ISerialize& stream, PieProp& prop);
    /// In a group named `tag`.
    static void SerializePieProp(penlode::CSerializeStream& stream, PieProp& prop, const char* tag);
};

} // namespace millichart
