#include "penlode/engine/GuardBand.h"

#include "penlode/engine/Finite.h"

#include <optional>
#include <utility>

namespace penlode {
namespace {

constexpr int kMaxSplit = 24;

bool AllInside(std::span<const PointD> points, const BoxD& box) {
    return std::all_of(points.begin(), points.end(), [&](PointD p) { return box.Contains(p); });
}

PointD Between(PointD a, PointD b, double t) {
    return {a.X + t * (b.X - a.X), a.Y + t * (b.Y - a.Y)};
}

struct Span {
    double From = 0.0;
    double To = 1.0;
};

/// Narrows `span` to where origin + t·step stays within low and high; false when nothing is left.
bool NarrowTo(Span& span, double origin, double step, double low, double high) {
    if (step == 0.0) {
        return origin >= low && origin <= high;
    }
    const double a = (low - origin) / step;
    const double b = (high - origin) / step;
    span.From = std::max(span.From, std::min(a, b));
    span.To = std::min(span.To, std::max(a, b));
    return span.From <= span.To;
}

/// The part of a segment inside the box (Liang and Barsky's method).
std::optional<Span> InsidePart(PointD a, PointD b, const BoxD& box) {
    Span span;
    if (NarrowTo(span, a.X, b.X - a.X, box.Left, box.Right) &&
        NarrowTo(span, a.Y, b.Y - a.Y, box.Top, box.Bottom)) {
        return span;
    }
    return std::nullopt;
}

/// A point of a far segment is only as exact as the segment is short; the clamp keeps it in the box all the
/// same.
PointD PointInBox(PointD a, PointD b, double t, const BoxD& box) {
    return box.Nearest(t == 0.0 ? a : t == 1.0 ? b : Between(a, b, t));
}

/// A side of the box: signed distance inwards from one of its edges.
struct HalfPlane {
    double PointD::*Coordinate;
    double Edge;
    double Inwards;

    double Depth(PointD p) const { return (p.*Coordinate - Edge) * Inwards; }

    PointD Crossing(PointD a, PointD b) const {
        PointD p = Between(a, b, Depth(a) / (Depth(a) - Depth(b)));
        p.*Coordinate = Edge;
        return p;
    }
};

/// One step of Sutherland and Hodgman's polygon clipping.
std::vector<PointD> CutBy(const HalfPlane& side, std::span<const PointD> polygon) {
    std::vector<PointD> kept;
    kept.reserve(polygon.size() + 4);
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const PointD from = polygon[i == 0 ? polygon.size() - 1 : i - 1];
        const PointD to = polygon[i];
        if ((side.Depth(from) >= 0.0) != (side.Depth(to) >= 0.0)) {
            kept.push_back(side.Crossing(from, to));
        }
        if (side.Depth(to) >= 0.0) {
            kept.push_back(to);
        }
    }
    return kept;
}

/// How far a cubic can stray from its chord, at most.
double Bend(PointD p0, PointD p1, PointD p2, PointD p3) {
    const auto off = [](PointD a, PointD b, PointD c) {
        return std::hypot(a.X - 2.0 * b.X + c.X, a.Y - 2.0 * b.Y + c.Y);
    };
    return 0.75 * std::max(off(p0, p1, p2), off(p1, p2, p3));
}

class ReachProbe final : public OutlineSink {
public:
    explicit ReachProbe(const BoxD& box) : m_box(box) {}

    void MoveTo(PointD p) override { Look(p); }

    void LineTo(PointD p) override { Look(p); }

    void CurveTo(PointD a, PointD b, PointD end) override {
        Look(a);
        Look(b);
        Look(end);
    }

    void Close() override {}

    Reach Found() const { return m_reach; }

private:
    void Look(PointD p) {
        if (!IsFinite(p)) {
            m_reach = Reach::NotFinite;
        } else if (m_reach == Reach::Inside && !m_box.Contains(p)) {
            m_reach = Reach::Beyond;
        }
    }

    BoxD m_box;
    Reach m_reach = Reach::Inside;
};

} // namespace

std::vector<PolylineRun> ClippedPolyline(std::vector<PointD> points, const BoxD& box) {
    std::vector<PolylineRun> runs;
    if (AllInside(points, box)) {
        runs.push_back({std::move(points), 0.0});
        return runs;
    }
    double travelled = 0.0;
    bool connected = false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PointD a = points[i - 1];
        const PointD b = points[i];
        const double length = std::hypot(b.X - a.X, b.Y - a.Y);
        const std::optional<Span> part = InsidePart(a, b, box);
        if (part) {
            if (!connected || part->From > 0.0) {
                runs.push_back({{PointInBox(a, b, part->From, box)}, travelled + part->From * length});
            }
            runs.back().Points.push_back(PointInBox(a, b, part->To, box));
        }
        connected = part && part->To >= 1.0;
        travelled += length;
    }
    return runs;
}

std::vector<PointD> ClosedPolyline(std::vector<PointD> points, bool withCorner) {
    if (points.size() > 1) {
        const PointD second = points[1];
        points.push_back(points.front());
        if (withCorner) {
            points.push_back(second);
        }
    }
    return points;
}

std::vector<PointD> ClippedPolygon(std::vector<PointD> points, const BoxD& box) {
    if (AllInside(points, box)) {
        return points;
    }
    for (const HalfPlane& side :
         {HalfPlane{&PointD::X, box.Left, 1.0}, HalfPlane{&PointD::X, box.Right, -1.0},
          HalfPlane{&PointD::Y, box.Top, 1.0}, HalfPlane{&PointD::Y, box.Bottom, -1.0}}) {
        points = CutBy(side, points);
    }
    for (PointD& p : points) {
        p = box.Nearest(p);
    }
    return points;
}

void OutlineFlattener::CurveTo(PointD control1, PointD control2, PointD end) {
    Flatten({m_figures.back().Points.back(), control1, control2, end}, 0);
}

void OutlineFlattener::Flatten(const Cubic& c, int depth) {
    const auto [left, right] = std::minmax({c.P0.X, c.P1.X, c.P2.X, c.P3.X});
    const auto [top, bottom] = std::minmax({c.P0.Y, c.P1.Y, c.P2.Y, c.P3.Y});
    const bool outside = !BoxD{left, top, right, bottom}.Meets(m_box);
    if (outside || depth == kMaxSplit || Bend(c.P0, c.P1, c.P2, c.P3) <= m_tolerance) {
        LineTo(c.P3);
        return;
    }
    const PointD a = Between(c.P0, c.P1, 0.5);
    const PointD m = Between(c.P1, c.P2, 0.5);
    const PointD b = Between(c.P2, c.P3, 0.5);
    const PointD am = Between(a, m, 0.5);
    const PointD mb = Between(m, b, 0.5);
    const PointD middle = Between(am, mb, 0.5);
    Flatten({c.P0, a, am, middle}, depth + 1);
    Flatten({middle, mb, b, c.P3}, depth + 1);
}

Reach ReachOf(const GraphicsPath& path, const Matrix& toDevice, const BoxD& box) {
    ReachProbe probe(box);
    WalkOutline(path, toDevice, probe);
    return probe.Found();
}

} // namespace penlode
