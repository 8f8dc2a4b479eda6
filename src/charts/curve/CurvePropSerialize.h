#pragma once

#include "charts/curve/CurveProp.h"
#include "foundation/Export.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

/// Saves and loads a CurveProp. Where keys are missing a load gives other values than construction does: no
/// value axis and no vertical grid, but the minor grid and the value axis's caption.
class MILLICHART_API CCurvePropSerialize {
public:
    static void SerializeCurveProp(penlode::ISerialize& stream, CurveProp& prop);
    /// In a group named `tag`.
    static void SerializeCurveProp(penlode::CSerializeStream& stream, CurveProp& prop, const char* tag);
};

} // namespace millichart
