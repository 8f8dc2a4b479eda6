#include "penlode/GraphicsPath.h"

#include "penlode/engine/DeviceGeometry.h"
#include "penlode/engine/EllipseAngle.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace penlode {
namespace {

constexpr double kMaxArc = std::numbers::pi / 4.0;

/// Alike but for the rounding of a point that was computed in two ways. A line between such points would have
/// no direction, and its joins would stick out.
bool IsSamePlace(PointD a, PointD b) {
    const auto alike = [](double u, double v) { return std::abs(u - v) <= 1e-6 * (1.0 + std::abs(u)); };
    return alike(a.X, b.X) && alike(a.Y, b.Y);
}

/// Sends one figure, piece by piece, each joined to the last point.
class FigureWalk {
public:
    FigureWalk(const Matrix& transform, OutlineSink& sink) : m_transform(transform), m_sink(sink) {}

    void operator()(const GraphicsPath::Line& line) {
        Reach(Mapped(m_transform, line.From));
        LineTo(Mapped(m_transform, line.To));
    }

    void operator()(const GraphicsPath::Bezier& bezier) {
        const auto& p = bezier.Points;
        Reach(Mapped(m_transform, p[0]));
        CurveTo(Mapped(m_transform, p[1]), Mapped(m_transform, p[2]), Mapped(m_transform, p[3]));
    }

    /// Control points at 4/3·tan(step/4) along the tangents, the usual cubic fit of a circular arc
    /// (e.g. Goldapp 1991, "Approximation of circular arcs by cubic polynomials").
    void operator()(const GraphicsPath::Arc& piece) {
        const EllipseArc arc(piece);
        const double sweep = arc.End - arc.Start;
        Reach(Mapped(m_transform, arc.At(arc.Start)));
        if (!std::isfinite(sweep) || sweep == 0.0) {
            return;
        }
        const int steps = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / kMaxArc - 1e-9)));
        const double step = sweep / steps;
        const double handle = 4.0 / 3.0 * std::tan(step / 4.0);
        for (int i = 0; i < steps; ++i) {
            const double from = arc.Start + i * step;
            const double to = i + 1 == steps ? arc.End : from + step;
            const PointD a = arc.At(from);
            const PointD b = arc.At(to);
            const PointD ta = arc.Tangent(from);
            const PointD tb = arc.Tangent(to);
            CurveTo(Mapped(m_transform, PointD{a.X + handle * ta.X, a.Y + handle * ta.Y}),
                    Mapped(m_transform, PointD{b.X - handle * tb.X, b.Y - handle * tb.Y}),
                    Mapped(m_transform, b));
        }
    }

private:
    void Reach(PointD point) {
        if (!m_started) {
            m_sink.MoveTo(point);
            m_started = true;
        } else if (!IsSamePlace(point, m_last)) {
            m_sink.LineTo(point);
        }
        m_last = point;
    }

    void LineTo(PointD point) {
        m_sink.LineTo(point);
        m_last = point;
    }

    void CurveTo(PointD c1, PointD c2, PointD end) {
        m_sink.CurveTo(c1, c2, end);
        m_last = end;
    }

    const Matrix& m_transform;
    OutlineSink& m_sink;
    PointD m_last;
    bool m_started = false;
};

PointF Narrowed(PointD p) {
    return {static_cast<float>(p.X), static_cast<float>(p.Y)};
}

/// Builds a path from an outline.
class PathBuilder final : public OutlineSink {
public:
    void MoveTo(PointD point) override {
        m_path.StartFigure();
        m_last = Narrowed(point);
    }

    void LineTo(PointD point) override {
        m_path.AddLine(m_last, Narrowed(point));
        m_last = Narrowed(point);
    }

    void CurveTo(PointD c1, PointD c2, PointD end) override {
        m_path.AddBezier(m_last, Narrowed(c1), Narrowed(c2), Narrowed(end));
        m_last = Narrowed(end);
    }

    void Close() override { m_path.CloseFigure(); }

    GraphicsPath Take() { return std::move(m_path); }

private:
    GraphicsPath m_path;
    PointF m_last;
};

} // namespace

void GraphicsPath::AddLines(std::span<const PointF> points) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        AddLine(points[i - 1], points[i]);
    }
}

void GraphicsPath::AddArc(const RectF& ellipse, float startAngle, float sweepAngle) {
    Add(Arc{ellipse, startAngle, std::clamp(sweepAngle, -360.0F, 360.0F)});
}

void GraphicsPath::AddCurve(std::span<const PointF> points) {
    constexpr float kTension = 0.5F;
    const auto handle = [&](std::size_t i) {
        const PointF before = points[i == 0 ? 0 : i - 1];
        const PointF after = points[std::min(i + 1, points.size() - 1)];
        return PointF{(after.X - before.X) * kTension / 3.0F, (after.Y - before.Y) * kTension / 3.0F};
    };
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        AddBezier(points[i], points[i] + handle(i), points[i + 1] - handle(i + 1), points[i + 1]);
    }
}

void GraphicsPath::AddRectangle(const RectF& rect) {
    AddPolygon(CornersOf(rect));
}

void GraphicsPath::AddEllipse(const RectF& ellipse) {
    StartFigure();
    AddArc(ellipse, 0.0F, 360.0F);
    CloseFigure();
}

void GraphicsPath::AddPolygon(std::span<const PointF> points) {
    StartFigure();
    AddLines(points);
    CloseFigure();
}

void GraphicsPath::AddPie(const RectF& ellipse, float startAngle, float sweepAngle) {
    StartFigure();
    const PointF center = ellipse.Center();
    AddLine(center, PointOnEllipse(ellipse, startAngle));
    AddArc(ellipse, startAngle, sweepAngle);
    CloseFigure();
}

void GraphicsPath::CloseFigure() {
    if (!m_startNew) {
        m_figures.back().Closed = true;
    }
    m_startNew = true;
}

void GraphicsPath::Add(const Piece& piece) {
    if (m_startNew) {
        m_figures.emplace_back();
        m_startNew = false;
    }
    m_figures.back().Pieces.push_back(piece);
}

PointF PointOnEllipse(const RectF& ellipse, double degrees) {
    if (ellipse.Width == 0.0F || ellipse.Height == 0.0F) {
        return ellipse.Center();
    }
    const EllipseArc arc({ellipse, static_cast<float>(degrees), 0.0F});
    return Narrowed(arc.At(EllipseParameter(arc.Rx, arc.Ry, degrees)));
}

void WalkOutline(const GraphicsPath& path, const Matrix& transform, OutlineSink& sink) {
    for (const GraphicsPath::Figure& figure : path.Figures()) {
        FigureWalk walk(transform, sink);
        for (const GraphicsPath::Piece& piece : figure.Pieces) {
            std::visit(walk, piece);
        }
        if (figure.Closed) {
            sink.Close();
        }
    }
}

GraphicsPath Transformed(const GraphicsPath& path, const Matrix& transform) {
    PathBuilder builder;
    WalkOutline(path, transform, builder);
    return builder.Take();
}

} // namespace penlode
