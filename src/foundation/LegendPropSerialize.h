#pragma once

#include "foundation/Export.h"
#include "foundation/Legend.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

/// Saves and loads a LegendProp. The saved order differs from the record's and is fixed.
class MILLICHART_API CLegendPropSerialize {
public:
    static void SerializeLegendProp(penlode::ISerialize& stream, LegendProp& prop);
    /// In a group named `tag`. The position is stored by its name.
    static void SerializeLegendProp(penlode::CSerializeStream& stream, LegendProp& prop, const char* tag);
};

} // namespace millichart
