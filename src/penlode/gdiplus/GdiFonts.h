#pragma once

#include "penlode/Font.h"
#include "penlode/engine/FaceMetrics.h"
#include "penlode/gdiplus/GdiPlus.h"

#include <string>
#include <string_view>

namespace penlode {

/// The em size, in pixels, at which texts are measured and from which they are drawn: at 100 pixels a
/// millimetre that of the usual 4 mm. A text so has the same size on every device.
inline constexpr double kShapingEm = 400.0;

/// A typeface as GDI+ has it.
struct GdiFace {
    GdipFontFamily Family;
    GdipFont Face; ///< kShapingEm pixels high
    INT Style = 0;
    double CellAscent = 0.0; ///< from the top at which GDI+ draws a line to its baseline, in ems
    FaceMetrics Line;        ///< as texts are placed
};

/// The face for a font's family and style; the font's size does not count. A family that is not there is
/// replaced by the system's generic sans-serif. Null where there is none at all. Stays valid until the
/// thread asks for another.
const GdiFace* FaceFor(const Font& font);

/// The format in which all lines are measured and drawn, this thread's own: typographic, as long as they are,
/// nothing cut. Null where GDI+ does not start.
const Gdiplus::GpStringFormat* LineFormat();

/// A line as it is measured and drawn: up to the length that a line may have, and with a blank for each
/// character that steers a printer rather than shows.
std::wstring Printable(std::wstring_view line);

/// Width of a line in units of kShapingEm to the em.
double LineWidth(std::wstring_view line, const Font& font);

} // namespace penlode
