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
};

} // namespace millichart
