#pragma once

#include "penlode/Color.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsPath.h"
#include "penlode/Matrix.h"
#include "penlode/Pen.h"

#include <span>
#include <string>

/// Elements for shapes given in world coordinates. A shape that shows nothing gives an empty text.
namespace penlode::svg {

/// The thinnest line of a page, in millimetres; a pen of width 0 draws it. A line that keeps one pixel at
/// every zoom (vector-effect) would be as readable on screen, but printers, converters and office programs
/// pass that over and draw nothing, or a line of a whole millimetre.
inline constexpr double kThinnestLine = 0.05;

/// ` fill="#336699" fill-opacity="0.502"`, or the same for a pen under a transform that makes lengths grow by
/// `lengthFactor`, with its width and dashes in millimetres.
std::string FillAttributes(Color color);
std::string StrokeAttributes(const Pen& pen, double lengthFactor);

/// A box without extent is a line for a pen and nothing for a brush; a negative one is nothing.
std::string StrokedBox(const Matrix& toPage, const RectF& rect, const std::string& stroke);
std::string FilledBox(const Matrix& toPage, const RectF& rect, const std::string& fill);

std::string LineElement(const Matrix& toPage, PointF from, PointF to, const std::string& stroke);
/// Nothing for fewer than two points. Points that fall together when rounded are written once.
std::string PolylineElement(const Matrix& toPage, std::span<const PointF> points, const std::string& stroke);
std::string PolygonElement(const Matrix& toPage, std::span<const PointF> points, const std::string& paint);
std::string EllipseElement(const Matrix& toPage, const RectF& rect, const std::string& paint);
std::string PathElement(const Matrix& toPage, const GraphicsPath& path, const std::string& paint);

} // namespace penlode::svg
