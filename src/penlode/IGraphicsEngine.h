#pragma once

#include "penlode/Brush.h"
#include "penlode/Export.h"
#include "penlode/Font.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsPath.h"
#include "penlode/GraphicsTypes.h"
#include "penlode/Image.h"
#include "penlode/Matrix.h"
#include "penlode/Pen.h"
#include "penlode/Region.h"
#include "penlode/StringFormat.h"

#include <cstdint>

namespace penlode {

/// A corner of a gradient: device-independent position and 16-bit channels (0 to 0xFF00).
struct GradientVertex {
    std::int32_t X;
    std::int32_t Y;
    std::uint16_t Red;
    std::uint16_t Green;
    std::uint16_t Blue;
    std::uint16_t Alpha;
};

/// Mesh entries of GradientFill: indices into its vertex array.
struct GradientRect {
    std::uint32_t UpperLeft;
    std::uint32_t LowerRight;
};

struct GradientTriangle {
    std::uint32_t Vertex1;
    std::uint32_t Vertex2;
    std::uint32_t Vertex3;
};

/// An integer rectangle by its edges.
struct RectL {
    std::int32_t Left;
    std::int32_t Top;
    std::int32_t Right;
    std::int32_t Bottom;
};

/// Asked now and then while an image is drawn; true ends the drawing.
using DrawImageAbort = bool (*)(void* callbackData);

/// The surface that charts draw on.
///
/// Coordinates, pen widths and font sizes are in page units under the current transform; angles are degrees,
/// clockwise on screen from the positive x axis. Texts are zero-terminated wide strings with a length, −1
/// meaning up to the terminator; "\n" breaks a line, and nothing else does. A line of more than 8192
/// characters ends there. Pens, brushes, fonts, paths and images stay the caller's and are not kept.
///
/// A call with a null pen, brush, font, text, path, image or list of points or with a number that is not
/// finite is an InvalidParameter and changes nothing; so is a text drawn in a font of no size, which measures
/// nothing. What has no extent draws nothing, and is Ok: a rectangle of negative width or height, a fill, an
/// ellipse, an arc or a pie without width or height, a line of fewer than two points, an area of fewer than
/// three. A pen draws a rectangle without width or height as a line. Under a transform that folds the plane
/// to a line nothing can be seen, and what draws is Ok; there is no way back to world coordinates, which
/// GetClip and TransformPoints refuse.
///
/// The order of the operations is part of the interface; a compiler may still lay out overloads in an order
/// of its own.
class PENLODE_API IGraphicsEngine {
public:
    virtual ~IGraphicsEngine() = default;

    virtual Status DrawRectangle(const Pen* pen, float x, float y, float width, float height) = 0;
    virtual Status DrawLines(const Pen* pen, const PointF* points, std::int32_t count) = 0;
    virtual Status DrawLine(const Pen* pen, float x1, float y1, float x2, float y2) = 0;
    virtual Status DrawArc(const Pen* pen, float x, float y, float width, float height, float startAngle,
                           float sweepAngle) = 0;
    virtual Status DrawEllipse(const Pen* pen, float x, float y, float width, float height) = 0;
    /// Strokes the arc and both radii.
    virtual Status DrawPie(const Pen* pen, const RectF& rect, float startAngle, float sweepAngle) = 0;
    virtual Status DrawPolygon(const Pen* pen, const PointF* points, std::int32_t count) = 0;
    /// A cardinal spline of tension 0.5 through the points.
    virtual Status DrawCurve(const Pen* pen, const PointF* points, std::int32_t count) = 0;
    virtual Status DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                              const PointF& origin, const StringFormat* format, const SolidBrush* brush) = 0;
    virtual Status DrawString(const wchar_t* text, std::int32_t length, const Font* font,
                              const PointF& origin, const SolidBrush* brush) = 0;
    virtual Status DrawString(const wchar_t* text, std::int32_t length, const Font* font, const RectF& layout,
                              const StringFormat* format, const SolidBrush* brush) = 0;
    /// The source rectangle is in `sourceUnit` of the image, at the image's own resolution; InvalidParameter
    /// if that gives no number of pixels. `attributes` and `abort` may be null.
    virtual Status DrawImage(const Image* image, const RectF& destination, float sourceX, float sourceY,
                             float sourceWidth, float sourceHeight, Unit sourceUnit,
                             const ImageAttributes* attributes, DrawImageAbort abort, void* callbackData) = 0;
    virtual Status DrawImage(const Image* image, const RectF& destination) = 0;
    virtual Status ResetClip() = 0;
    /// The current container's clip in world coordinates. Under a transform that folds the plane it has none
    /// there: the answer is InvalidParameter, and the region stays as it was.
    virtual Status GetClip(Region* region) = 0;
    virtual Status SetClip(const GraphicsPath* path, CombineMode mode) = 0;
    virtual Status SetClip(const Region* region, CombineMode mode) = 0;
    virtual Status SetClip(const RectF& rect, CombineMode mode) = 0;
    virtual Status FillRectangle(const SolidBrush* brush, float x, float y, float width, float height) = 0;
    virtual Status FillEllipse(const SolidBrush* brush, float x, float y, float width, float height) = 0;
    virtual Status FillPie(const SolidBrush* brush, const RectF& rect, float startAngle,
                           float sweepAngle) = 0;
    virtual Status FillPolygon(const SolidBrush* brush, const PointF* points, std::int32_t count) = 0;
    virtual Status FillPath(const SolidBrush* brush, const GraphicsPath* path) = 0;
    /// Each of the last three may be null. The bounds are those of all lines, whether they fit or not, since
    /// lines are neither wrapped nor cut. What fits are whole lines, as many as have room in the layout's
    /// height whatever its width, and all of them in a layout without height: `charactersFitted` counts their
    /// characters with the breaks that end them, `linesFilled` the lines.
    virtual Status MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                 const RectF& layout, const StringFormat* format, RectF* bounds,
                                 std::int32_t* charactersFitted, std::int32_t* linesFilled) = 0;
    virtual Status MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                 const PointF& origin, RectF* bounds) = 0;
    virtual Status MeasureString(const wchar_t* text, std::int32_t length, const Font* font,
                                 const PointF& origin, const StringFormat* format, RectF* bounds) = 0;
    virtual Status SetTransform(const Matrix* matrix) = 0;
    virtual Status GetTransform(Matrix* matrix) = 0;
    virtual Status TransformPoints(CoordinateSpace destination, CoordinateSpace source, PointF* points,
                                   std::int32_t count) = 0;
    virtual Status TranslateTransform(float dx, float dy, MatrixOrder order) = 0;
    virtual Status RotateTransform(float degrees, MatrixOrder order) = 0;
    virtual Status ScaleTransform(float sx, float sy, MatrixOrder order) = 0;
    virtual Status ResetTransform() = 0;
    virtual float GetPageScale() = 0;
    virtual Unit GetPageUnit() = 0;
    virtual Status SetPageScale(float scale) = 0;
    virtual Status SetPageUnit(Unit unit) = 0;
    /// Saves transform, page unit, page scale, clip and smoothing. Inside, drawing starts with no transform
    /// of its own on top of the outer one, in Display units at scale 1; a caller that wants to keep its units
    /// sets them again.
    virtual std::uint32_t BeginContainer() = 0;
    /// Ends the container and any that was begun inside it and left open.
    virtual Status EndContainer(std::uint32_t container) = 0;
    /// Whether edges are smoothed: AntiAlias at first; None and HighSpeed leave them jagged.
    virtual Status SetSmoothingMode(SmoothingMode mode) = 0;
    virtual SmoothingMode GetSmoothingMode() = 0;
    /// Fills `mesh` (GradientRect or GradientTriangle entries, as `mode` says) with colours blended between
    /// the vertices, each moved by `origin`, inside `bounds`. Non-zero on success; zero, and nothing drawn,
    /// when an entry names a vertex that is not there.
    virtual std::int32_t GradientFill(const RectL& bounds, const PointF& origin,
                                      const GradientVertex* vertices, std::uint32_t vertexCount,
                                      const void* mesh, std::uint32_t meshCount, GradientMode mode) = 0;
    virtual SizeF MeasureScriptText(const wchar_t* text, const Font* font) = 0;
    virtual void DrawScriptText(const wchar_t* text, const Font* font, float x, float y,
                                const SolidBrush* brush) = 0;
    virtual Status SetClip(Region* region, CombineMode mode) = 0;
};

} // namespace penlode
