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

private:
    static void SerializeCaptionProp(penlode::ISerialize& stream, CaptionProp& prop);
    static void SerializeCaptionProp(penlode::CSerializeStream& stream, CaptionProp& prop);
    static void SerializeVerAxisProp(penlode::ISerialize& stream, CurveVerAxisProp& prop);
    static void SerializeVerAxisProp(penlode::CSerializeStream& stream, CurveVerAxisProp& prop);
    static void SerializeHorAxisProp(penlode::ISerialize& stream, CurveHorAxisProp& prop);
    static void SerializeHorAxisProp(penlode::CSerializeStream& stream, CurveHorAxisProp& prop);
    static void SerializePlotProp(penlode::ISerialize& stream, CurvePlotProp& prop);
    static void SerializePlotProp(penlode::CSerializeStream& stream, CurvePlotProp& prop);
};

} // namespace millichart
