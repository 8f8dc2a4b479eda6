#pragma once

#include "penlode/engine/DeviceGeometry.h"

#include <limits>
#include <span>
#include <vector>

/// The one grid on which axis-parallel lines, boxes and the faces of 3D bars stand on a surface of pixels.
///
///     device  3.4          7.6        an edge goes to the nearest whole number,
///     fill     |3|4|5|6|7|            a fill covers the pixels between its edges,
///     line     |3|       |8|          and a one-pixel line at an edge is the pixel that begins there
///
/// so what shares an edge on the page shares it on the surface, at any resolution.
namespace penlode {

class PixelGrid {
public:
    /// Without edges.
    PixelGrid() = default;

    /// A surface of that many pixels.
    PixelGrid(double width, double height) : m_width(width), m_height(height) {}

    /// The nearest whole number. A hair below the half goes up too: halves are common, and the noise of
    /// single precision must not send two neighbours different ways.
    static double Edge(double device);

    /// A line's width in whole pixels, at least one.
    static double WholeWidth(double width);

    /// The centre of a vertical line at `x`, `lineWidth` whole pixels wide. A line of odd width on the
    /// surface's far edge moves in by one pixel, where it is seen: a frame round the whole page has four
    /// sides.
    double LineX(double x, double lineWidth) const { return LineCentre(x, lineWidth, m_width); }

    double LineY(double y, double lineWidth) const { return LineCentre(y, lineWidth, m_height); }

    /// The box on whole pixels. One with extent keeps at least one pixel, and a small square (a marker, a
    /// legend's swatch) keeps its size wherever it stands.
    static BoxD Box(const BoxD& box);

    /// The box's outline as the centres of its lines.
    BoxD Outline(const BoxD& box, double lineWidth) const;

    /// All segments along an axis. Such a polyline, and no other, is snapped; data never come here, whose
    /// steps only happen to be steep.
    static bool IsAxisParallel(std::span<const PointD> polyline);

    /// The centres of a polyline's lines, grown at both ends by half a pixel for odd widths, so that the
    /// pixels at its ends belong to it and lines that meet in a corner close it.
    std::vector<PointD> Polyline(std::span<const PointD> points, double lineWidth) const;

    /// Four corners with two axis-parallel edges or more: a box or the face of a 3D bar, but no diamond.
    static bool IsFace(std::span<const PointD> polygon);

    static std::vector<PointD> Face(std::span<const PointD> polygon);
    std::vector<PointD> FaceOutline(std::span<const PointD> polygon, double lineWidth) const;

private:
    static double LineCentre(double device, double lineWidth, double extent);

    double m_width = std::numeric_limits<double>::infinity();
    double m_height = std::numeric_limits<double>::infinity();
};

/// The axis-parallel box that the polygon is, if it is one.
bool IsBox(std::span<const PointD> polygon);

} // namespace penlode
