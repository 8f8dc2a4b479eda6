#include "charts/pie/HalfPieHistogramPropSerialize.h"

#include "charts/histogram/HistogramPropSerialize.h"
#include "charts/pie/HalfPiePropSerialize.h"
#include "foundation/SerializeFrame.h"

namespace millichart {

void CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(penlode::ISerialize& stream,
                                                                   HalfPieHistogramProp& prop) {
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop.HalfPie);
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop.Histogram);
}

void CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(penlode::CSerializeStream& stream,
                                                                   HalfPieHistogramProp& prop,
                                                                   const char* tag) {
    const KeyedRecord record(stream, tag);
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop.HalfPie, "HalfPie");
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop.Histogram, "Histogram");
}

} // namespace millichart
