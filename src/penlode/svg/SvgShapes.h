#pragma once

#include "penlode/Color.h"
#include "penlode/Pen.h"
#include "penlode/Units.h"
#include "penlode/engine/LineThinning.h"
#include "penlode/engine/Outline.h"
#include "penlode/svg/SvgGeometry.h"

#include <span>
#include <string>

/// Elements for shapes given in world coordinates. A shape that shows nothing gives an empty text. Of a shape
/// that reaches far, what lies near the page is written as a path of straight lines.
namespace penlode::svg {

/// ` fill="#336699" fill-opacity="0.502"`
std::string FillAttributes(Color color);

/// What fills or strokes a shape.
struct Paint {
    std::string Attributes;
    bool Strokes = false;
    double Margin = 0.0;     ///< how far a pen's marks may lie from its line, in millimetres
    double DashPeriod = 0.0; ///< the length of a pen's pattern, in millimetres; 0 for a solid line
};

/// A pen under a transform that makes lengths grow by `lengthFactor`. A thinnest line that keeps one pixel at
/// every zoom (vector-effect) would be as readable on screen as one of a fixed width, but printers,
/// converters and office programs pass that over and draw nothing, or a line of a whole millimetre.
Paint StrokePaint(const Pen& pen, double lengthFactor);

/// A box without extent is a line for a pen. Points that fall together when rounded are written once.
std::string ShapeElement(const PageMap& map, const Outline& outline, const Paint& paint);
/// The columns of data that a page shows, in millimetres.
inline constexpr double kColumnWidth = kMillimetresPerInch / kDocumentColumnsPerInch;

/// What 600 dots per inch can show of a run of data, whose end it finds.
std::string DataLineElement(const PageMap& map, DataRun& run, const Paint& stroke);

} // namespace penlode::svg
