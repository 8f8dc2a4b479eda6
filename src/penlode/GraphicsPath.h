#pragma once

#include "penlode/Export.h"
#include "penlode/Geometry.h"
#include "penlode/GraphicsTypes.h"
#include "penlode/Matrix.h"

#include <array>
#include <span>
#include <variant>
#include <vector>

namespace penlode {

/// An outline of lines, elliptical arcs and Bézier curves, in one or more figures.
///
/// A piece that is added joins the open figure: its first point is reached by a straight line from the
/// figure's last point. Filling closes every figure; stroking does so only after CloseFigure. Overlapping
/// parts are filled by the even-odd rule, as a GDI+ path is by default.
///
/// Arc angles are degrees, clockwise on screen from the positive x axis, and true angles: an arc starts and
/// ends where the ray at that angle from the ellipse's centre meets it. A sweep beyond ±360 counts as ±360.
class PENLODE_API GraphicsPath {
public:
    struct Line {
        PointF From;
        PointF To;
        friend bool operator==(const Line&, const Line&) = default;
    };

    struct Arc {
        RectF Ellipse;
        float StartAngle;
        float SweepAngle;
        friend bool operator==(const Arc&, const Arc&) = default;
    };

    /// A cubic curve by its four control points.
    struct Bezier {
        std::array<PointF, 4> Points;
        friend bool operator==(const Bezier&, const Bezier&) = default;
    };

    using Piece = std::variant<Line, Arc, Bezier>;

    struct Figure {
        std::vector<Piece> Pieces;
        bool Closed = false;
        friend bool operator==(const Figure&, const Figure&) = default;
    };

    void AddLine(PointF from, PointF to) { Add(Line{from, to}); }

    /// Straight lines from point to point. Fewer than two points add nothing.
    void AddLines(std::span<const PointF> points);
    void AddArc(const RectF& ellipse, float startAngle, float sweepAngle);

    /// A cardinal spline of tension 0.5 through the points. Fewer than two points add nothing.
    void AddCurve(std::span<const PointF> points);

    void AddBezier(PointF p0, PointF p1, PointF p2, PointF p3) { Add(Bezier{{p0, p1, p2, p3}}); }

    /// Closed figures of their own.
    void AddRectangle(const RectF& rect);
    void AddEllipse(const RectF& ellipse);
    void AddPolygon(std::span<const PointF> points);
    /// The sector from the centre along the first radius, the arc and back along the second radius.
    void AddPie(const RectF& ellipse, float startAngle, float sweepAngle);

    /// The next piece begins a new figure; the one before stays open.
    void StartFigure() { m_startNew = true; }

    void CloseFigure();

    void Reset() { *this = {}; }

    const std::vector<Figure>& Figures() const { return m_figures; }

    bool IsEmpty() const { return m_figures.empty(); }

    friend bool operator==(const GraphicsPath& a, const GraphicsPath& b) {
        return a.m_figures == b.m_figures;
    }

private:
    void Add(const Piece& piece);

    std::vector<Figure> m_figures;
    bool m_startNew = true;
};

/// Where the ray at `degrees` from the ellipse's centre meets the ellipse. An ellipse without width or height
/// gives the centre.
PENLODE_API PointF PointOnEllipse(const RectF& ellipse, double degrees);

/// Receives an outline in the terms that every platform knows.
class PENLODE_API OutlineSink {
public:
    virtual ~OutlineSink() = default;
    virtual void MoveTo(PointD point) = 0;
    virtual void LineTo(PointD point) = 0;
    virtual void CurveTo(PointD control1, PointD control2, PointD end) = 0;
    virtual void Close() = 0;
};

/// Walks a path's figures, each point mapped by `transform`. Arcs become cubic curves of at most 45 degrees
/// each, less than 1 part in 100,000 of the radius from the true ellipse.
PENLODE_API void WalkOutline(const GraphicsPath& path, const Matrix& transform, OutlineSink& sink);

/// The same outline, mapped; arcs become Bézier pieces.
PENLODE_API GraphicsPath Transformed(const GraphicsPath& path, const Matrix& transform);

} // namespace penlode
