#pragma once

#include "charts/pie/HalfPieHistogramProp.h"
#include "charts/pie/HalfPieProp.h"
#include "foundation/Export.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

/// Saves and loads a HalfPieProp. The saved order differs from the record's and is fixed. Where keys are
/// missing a load gives an upper half, with labels 10 mm off the rim.
class MILLICHART_API CHalfPiePropSerialize {
public:
    static void SerializeHalfPieProp(penlode::ISerialize& stream, HalfPieProp& prop);
    /// In a group named `tag`. The half is stored by its name, which loses any number but 0 and 1.
    static void SerializeHalfPieProp(penlode::CSerializeStream& stream, HalfPieProp& prop, const char* tag);
};

/// Saves and loads a HalfPieHalfPieProp; keyed, in a group named `tag` with the first half as "TopHalf" and
/// the second as "LowerHalf", whichever half of the circle each fills.
class MILLICHART_API CHalfPieHalfPiePropSerialize {
public:
    static void SerializeHalfPieHalfPieProp(penlode::ISerialize& stream, HalfPieHalfPieProp& prop);
    static void SerializeHalfPieHalfPieProp(penlode::CSerializeStream& stream, HalfPieHalfPieProp& prop,
                                            const char* tag);
};

/// Saves and loads a HalfPieHistogramProp, the half pie first, which is not the record's order; keyed, in a
/// group named `tag` as "HalfPie" and "Histogram".
class MILLICHART_API CHalfPieHistogramPropSerialize {
public:
    static void SerializeHalfPieHistogramProp(penlode::ISerialize& stream, HalfPieHistogramProp& prop);
    static void SerializeHalfPieHistogramProp(penlode::CSerializeStream& stream, HalfPieHistogramProp& prop,
                                              const char* tag);
};

} // namespace millichart
