#pragma once

#include "editing/ValueRanges.h"
#include "foundation/Export.h"

#include <functional>

/// Modal dialogs, in Chinese, in which a user edits a record.
///
/// Each opens on the host's active window and works on a copy. True after OK: the record then holds what the
/// user made of it. False after Cancel, or for a null record: the record, its pens and fonts are untouched.
/// Call them on the thread of the user interface. On Linux they are in libmillichart-editing.so, on Qt, and
/// need no QApplication of the host's; false comes back on any other thread than a QApplication's.
namespace penlode {
class Pen;
}

namespace millichart {

struct ChartPart;
struct CurveProp;
struct HalfPieHalfPieProp;
struct HalfPieHistogramProp;
struct HalfPieProp;
struct HistogramProp;
struct PieProp;
struct TextProperty;

} // namespace millichart

extern "C" {

/// Colour, width and dash style. A translucent pen becomes opaque. A pen whose fill is no plain colour is
/// shown as black, and WrongState is recorded in it.
MILLICHART_API bool EditPen(penlode::Pen* pen);

MILLICHART_API bool EditTextProperty(millichart::TextProperty* property);

/// A whole chart's properties, on a sheet of pages. A page that the user did not open changes nothing.
MILLICHART_API bool EditPieProp(millichart::PieProp* prop);
MILLICHART_API bool EditHalfPieProp(millichart::HalfPieProp* prop);
MILLICHART_API bool EditHalfPieHalfPieProp(millichart::HalfPieHalfPieProp* prop);
MILLICHART_API bool EditHalfPieHistogramProp(millichart::HalfPieHistogramProp* prop);
MILLICHART_API bool EditHistogramProp(millichart::HistogramProp* prop);
MILLICHART_API bool EditCurveProp(millichart::CurveProp* prop);
}

namespace millichart {

/// The same, for hosts that show what the user is doing: `preview` gets what OK would give now, after every
/// change that OK would accept, at most once a frame, and on Cancel the record as it was.
MILLICHART_API bool EditWithPreview(penlode::Pen* pen,
                                    const std::function<void(const penlode::Pen&)>& preview);
MILLICHART_API bool EditWithPreview(TextProperty* property,
                                    const std::function<void(const TextProperty&)>& preview);
MILLICHART_API bool EditWithPreview(PieProp* prop, const std::function<void(const PieProp&)>& preview);
MILLICHART_API bool EditWithPreview(HalfPieProp* prop,
                                    const std::function<void(const HalfPieProp&)>& preview);
MILLICHART_API bool EditWithPreview(HalfPieHalfPieProp* prop,
                                    const std::function<void(const HalfPieHalfPieProp&)>& preview);
MILLICHART_API bool EditWithPreview(HalfPieHistogramProp* prop,
                                    const std::function<void(const HalfPieHistogramProp&)>& preview);
MILLICHART_API bool EditWithPreview(HistogramProp* prop,
                                    const std::function<void(const HistogramProp&)>& preview);
MILLICHART_API bool EditWithPreview(CurveProp* prop, const std::function<void(const CurveProp&)>& preview);

/// The same of a sheet, for hosts whose user pointed at a part of the chart: it opens on the page on which
/// that is set, at the control that does it and, in a list, at its row. A part that the sheet does not set,
/// such as a pie's title, opens it as ever.
MILLICHART_API bool EditWithPreview(PieProp* prop, const std::function<void(const PieProp&)>& preview,
                                    const ChartPart& at);
MILLICHART_API bool EditWithPreview(HalfPieProp* prop, const std::function<void(const HalfPieProp&)>& preview,
                                    const ChartPart& at);
MILLICHART_API bool EditWithPreview(HalfPieHalfPieProp* prop,
                                    const std::function<void(const HalfPieHalfPieProp&)>& preview,
                                    const ChartPart& at);
MILLICHART_API bool EditWithPreview(HalfPieHistogramProp* prop,
                                    const std::function<void(const HalfPieHistogramProp&)>& preview,
                                    const ChartPart& at);
MILLICHART_API bool EditWithPreview(HistogramProp* prop,
                                    const std::function<void(const HistogramProp&)>& preview,
                                    const ChartPart& at);
MILLICHART_API bool EditWithPreview(CurveProp* prop, const std::function<void(const CurveProp&)>& preview,
                                    const ChartPart& at);

} // namespace millichart
