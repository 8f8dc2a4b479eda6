#pragma once

#include "charts/histogram/HistogramProp.h"
#include "foundation/Export.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

/// Saves and loads a HistogramProp. Where keys are missing a load gives other values than construction does:
/// no value axis, but group names, captions, labels and the minor grid.
class MILLICHART_API CHistogramPropSerialize {
public:
    static void SerializeHistogramProp(penlode::ISerialize& stream, HistogramProp& prop);
    /// In a group named `tag`.
    static void SerializeHistogramProp(penlode::CSerializeStream& stream, HistogramProp& prop,
                                       const char* tag);

private:
    static void SerializeCaptionProp(penlode::ISerialize& stream, CaptionProp& prop);
    static void SerializeCaptionProp(penlode::CSerializeStream& stream, CaptionProp& prop);
    static void SerializeVerAxisProp(penlode::ISerialize& stream, HistogramVerAxisProp& prop);
    static void SerializeVerAxisProp(penlode::CSerializeStream& stream, HistogramVerAxisProp& prop);
    static void SerializeHorAxisProp(penlode::ISerialize& stream, HistogramHorAxisProp& prop);
    static void SerializeHorAxisProp(penlode::CSerializeStream& stream, HistogramHorAxisProp& prop);
    static void SerializePlotProp(penlode::ISerialize& stream, HistogramPlotProp& prop);
    static void SerializePlotProp(penlode::CSerializeStream& stream, HistogramPlotProp& prop);
};

} // namespace millichart
