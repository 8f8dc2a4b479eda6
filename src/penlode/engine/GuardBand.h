#pragma once

#include "penlode/engine/DeviceGeometry.h"

#include <span>
#include <vector>

/// Keeps coordinates near the surface. Far from it every platform's numbers fail: Cairo's wrap around some
/// 8 million device units from the origin, and viewers of documents count in floats. So whatever may lie
/// farther out is cut to a generous box first. What lies inside the box comes out unchanged.
namespace penlode {

/// A connected part of a polyline, and the length along the polyline before it: where its dashes begin.
struct PolylineRun {
    std::vector<PointD> Points;
    double Before = 0.0;
};

std::vector<PolylineRun> ClippedPolyline(std::vector<PointD> points, const BoxD& box);

/// A closed figure as a polyline whose end reaches its beginning and, if its corner there is to be drawn,
/// goes a step beyond.
std::vector<PointD> ClosedPolyline(std::vector<PointD> points, bool withCorner);

/// The polygon's area within the box. Parts that touch may be joined along the box's edges.
std::vector<PointD> ClippedPolygon(std::vector<PointD> points, const BoxD& box);

/// One figure of an outline as straight lines.
struct FlatFigure {
    std::vector<PointD> Points;
    bool Closed = false;
};

/// Flattens an outline to within `tolerance` device units. Curve parts outside the box become few, long
/// lines.
class OutlineFlattener final : public OutlineSink {
public:
    explicit OutlineFlattener(const BoxD& box, double tolerance = 0.1) : m_box(box), m_tolerance(tolerance) {}

    void MoveTo(PointD point) override { m_figures.push_back({{point}, false}); }

    void LineTo(PointD point) override { m_figures.back().Points.push_back(point); }

    void CurveTo(PointD control1, PointD control2, PointD end) override;

    void Close() override {
        if (!m_figures.empty()) {
            m_figures.back().Closed = true;
        }
    }

    std::vector<FlatFigure> Take() { return std::move(m_figures); }

private:
    struct Cubic {
        PointD P0, P1, P2, P3;
    };

    void Flatten(const Cubic& curve, int depth);

    BoxD m_box;
    double m_tolerance;
    std::vector<FlatFigure> m_figures;
};

/// How an outline lies to a box.
enum class Reach { Inside, Beyond, NotFinite };

Reach ReachOf(const GraphicsPath& path, const Matrix& toDevice, const BoxD& box);

} // namespace penlode
