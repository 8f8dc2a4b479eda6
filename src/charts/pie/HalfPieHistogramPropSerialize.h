#pragma once

#include "charts/pie/HalfPieHistogramProp.h"
#include "foundation/Export.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

/// Saves and loads a HalfPieHistogramProp, the half pie first, which is not the record's order; keyed, in a
/// group named `tag` as "HalfPie" and "Histogram".
class MILLICHART_API CHalfPieHistogramPropSerialize {
public:
    static void SerializeHalfPieHistogramProp(penlode::ISerialize& stream, HalfPieHistogramProp& prop);
    static void SerializeHalfPieHistogramProp(penlode::CSerializeStream& stream, HalfPieHistogramProp& prop,
                                              const char* tag);
};

} // namespace millichart
