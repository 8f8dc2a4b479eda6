#include "penlode/engine/DeviceShapes.h"

#include "penlode/engine/Finite.h"

#include <array>
#include <utility>

namespace penlode {
namespace {

BoxD BoundsOf(std::span<const PointD> box) {
    return BoxBetween(box[0], box[2]);
}

Status FillCorners(const ShapePainter& painter, std::span<const PointD> corners, Color color) {
    if (!AreFinite(corners)) {
        return Status::ValueOverflow;
    }
    painter.FillPolygon(corners, color);
    return Status::Ok;
}

Status StrokePoints(const ShapePainter& painter, const DevicePen& pen, std::vector<PointD> points,
                    bool closed) {
    if (!AreFinite(points)) {
        return Status::ValueOverflow;
    }
    painter.StrokePolyline(pen, std::move(points), closed);
    return Status::Ok;
}

/// A box has an outline, or, when it has no extent one way, is a line.
Status StrokeSnappedBox(const ShapePainter& painter, const DevicePen& pen, const BoxD& box) {
    const std::array<PointD, 4> corners = CornersOf(box);
    if (box.Width() == 0.0 || box.Height() == 0.0) {
        const std::array<PointD, 2> line{corners[0], corners[2]};
        return StrokePoints(painter, pen, painter.Grid().Polyline(line, pen.Width()), false);
    }
    const std::array<PointD, 4> outline = CornersOf(painter.Grid().Outline(box, pen.Width()));
    return StrokePoints(painter, pen, {outline.begin(), outline.end()}, true);
}

Status StrokeCorners(const ShapePainter& painter, const Pen& pen, std::vector<PointD> corners) {
    const bool isFace = painter.Snaps() && PixelGrid::IsFace(corners) && AreFinite(corners);
    const DevicePen drawn(pen, painter, isFace);
    if (isFace && IsBox(corners)) {
        return StrokeSnappedBox(painter, drawn, BoundsOf(corners));
    }
    if (isFace) {
        corners = painter.Grid().FaceOutline(corners, drawn.Width());
    }
    return StrokePoints(painter, drawn, std::move(corners), true);
}

Status StrokeLine(const ShapePainter& painter, std::span<const PointF> points, const Pen& pen) {
    std::vector<PointD> line = MappedAll(painter.ToDevice(), points);
    const bool snapped = painter.Snaps() && AreFinite(line) && PixelGrid::IsAxisParallel(line);
    const DevicePen drawn(pen, painter, snapped);
    if (snapped) {
        line = painter.Grid().Polyline(line, drawn.Width());
    }
    return StrokePoints(painter, drawn, std::move(line), false);
}

struct Stroker {
    const ShapePainter& Surface;
    const Pen& Look;

    Status operator()(const Outline::Nothing&) const { return Status::Ok; }

    Status operator()(const Outline::Line& line) const {
        return StrokeLine(Surface, std::array{line.From, line.To}, Look);
    }

    Status operator()(const Outline::Polyline& line) const { return StrokeLine(Surface, line.Points, Look); }

    Status operator()(const Outline::Rectangle& rectangle) const {
        return StrokeCorners(Surface, Look, MappedAll(Surface.ToDevice(), CornersOf(rectangle.Box)));
    }

    Status operator()(const Outline::Polygon& polygon) const {
        return StrokeCorners(Surface, Look, MappedAll(Surface.ToDevice(), polygon.Points));
    }

    template <class Curved> Status operator()(const Curved& shape) const {
        return Surface.StrokePath(PathOf(shape), Look);
    }
};

struct Filler {
    const ShapePainter& Surface;
    Color Ink;

    Status operator()(const Outline::Rectangle& rectangle) const {
        const std::optional<BoxD> box = Surface.DeviceBox(rectangle.Box);
        return box ? FillCorners(Surface, CornersOf(*box), Ink)
                   : FillCorners(Surface, MappedAll(Surface.ToDevice(), CornersOf(rectangle.Box)), Ink);
    }

    Status operator()(const Outline::Polygon& polygon) const {
        std::vector<PointD> corners = MappedAll(Surface.ToDevice(), polygon.Points);
        if (Surface.Snaps() && IsBox(corners)) {
            return FillCorners(Surface, CornersOf(PixelGrid::Box(BoundsOf(corners))), Ink);
        }
        if (Surface.Snaps() && PixelGrid::IsFace(corners)) {
            corners = PixelGrid::Face(corners);
        }
        return FillCorners(Surface, corners, Ink);
    }

    template <class Shape> Status operator()(const Shape& shape) const {
        if constexpr (requires { PathOf(shape); }) {
            return Surface.FillPath(PathOf(shape), Ink);
        } else {
            return Status::Ok; // lines have no area
        }
    }
};

} // namespace

Status ShapePainter::Stroke(const Outline& outline, const Pen& pen) const {
    return std::visit(Stroker{*this, pen}, outline.Shape);
}

Status ShapePainter::Fill(const Outline& outline, Color color) const {
    return std::visit(Filler{*this, color}, outline.Shape);
}

Status ShapePainter::StrokePath(const GraphicsPath& path, const Pen& pen) const {
    const DevicePen drawn(pen, *this, false);
    const BoxD box = GuardBand(drawn.Margin());
    const Reach reach = ReachOf(path, ToDevice(), box);
    if (reach == Reach::NotFinite) {
        return Status::ValueOverflow;
    }
    if (reach == Reach::Inside && StrokeNear(path, drawn)) {
        return Status::Ok;
    }
    OutlineFlattener flattener(box);
    WalkOutline(path, ToDevice(), flattener);
    for (FlatFigure& figure : flattener.Take()) {
        StrokePolyline(drawn, std::move(figure.Points), figure.Closed);
    }
    return Status::Ok;
}

} // namespace penlode
