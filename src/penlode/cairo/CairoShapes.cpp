#include "penlode/cairo/CairoOperations.h"
#include "penlode/cairo/CairoOutline.h"
#include "penlode/cairo/CairoStroke.h"
#include "penlode/engine/Finite.h"
#include "penlode/engine/GuardBand.h"

#include <array>

namespace penlode {
namespace {

/// Curve pieces in one stroke; longer outlines are flattened and stroked piece by piece.
constexpr std::size_t kMaxPieces = 64;

BoxD BoundsOf(std::span<const PointD> box) {
    return BoxBetween(box[0], box[2]);
}

Status FillCorners(const Painter& painter, Color color, std::span<const PointD> corners) {
    if (!AreFinite(corners)) {
        return Status::ValueOverflow;
    }
    AddPolygon(painter.Context(), corners, painter.GuardBand());
    painter.SetColor(color);
    cairo_fill(painter.Context());
    return Status::Ok;
}

Status StrokePoints(const Painter& painter, const DevicePen& pen, std::vector<PointD> points, bool closed) {
    if (!AreFinite(points)) {
        return Status::ValueOverflow;
    }
    StrokePolyline(painter, pen, std::move(points), closed);
    return Status::Ok;
}

/// A box has an outline, or, when it has no extent one way, is a line.
Status StrokeSnappedBox(const Painter& painter, const DevicePen& pen, const BoxD& box) {
    const std::array<PointD, 4> corners = CornersOf(box);
    if (box.Width() == 0.0 || box.Height() == 0.0) {
        const std::array<PointD, 2> line{corners[0], corners[2]};
        return StrokePoints(painter, pen, painter.Grid().Polyline(line, pen.Width()), false);
    }
    const std::array<PointD, 4> outline = CornersOf(painter.Grid().Outline(box, pen.Width()));
    return StrokePoints(painter, pen, {outline.begin(), outline.end()}, true);
}

Status StrokeCorners(const Painter& painter, const Pen& pen, std::vector<PointD> corners) {
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

std::size_t PiecesIn(const GraphicsPath& path) {
    std::size_t count = 0;
    for (const GraphicsPath::Figure& figure : path.Figures()) {
        count += figure.Pieces.size();
    }
    return count;
}

Status FillPath(const Painter& painter, const GraphicsPath& path, Color color) {
    if (!AddArea(painter.Context(), path, painter.ToDevice(), painter.GuardBand())) {
        return Status::ValueOverflow;
    }
    painter.SetColor(color);
    cairo_fill(painter.Context());
    return Status::Ok;
}

Status StrokePath(const Painter& painter, const GraphicsPath& path, const Pen& pen) {
    const DevicePen drawn(pen, painter, false);
    const BoxD box = painter.GuardBand(drawn.Margin());
    const Reach reach = ReachOf(path, painter.ToDevice(), box);
    if (reach == Reach::NotFinite) {
        return Status::ValueOverflow;
    }
    if (reach == Reach::Inside && PiecesIn(path) <= kMaxPieces) {
        CairoOutline outline(painter.Context());
        WalkOutline(path, painter.ToDevice(), outline);
        StrokeCurrentPath(painter, drawn);
        return Status::Ok;
    }
    OutlineFlattener flattener(box);
    WalkOutline(path, painter.ToDevice(), flattener);
    for (FlatFigure& figure : flattener.Take()) {
        StrokePolyline(painter, drawn, std::move(figure.Points), figure.Closed);
    }
    return Status::Ok;
}

Status StrokeLine(const Painter& painter, std::span<const PointF> points, const Pen& pen) {
    std::vector<PointD> line = MappedAll(painter.ToDevice(), points);
    const bool snapped = painter.Snaps() && AreFinite(line) && PixelGrid::IsAxisParallel(line);
    const DevicePen drawn(pen, painter, snapped);
    if (snapped) {
        line = painter.Grid().Polyline(line, drawn.Width());
    }
    return StrokePoints(painter, drawn, std::move(line), false);
}

struct Stroker {
    const Painter& Surface;
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
        return StrokePath(Surface, PathOf(shape), Look);
    }
};

struct Filler {
    const Painter& Surface;
    Color Ink;

    Status operator()(const Outline::Rectangle& rectangle) const {
        const std::optional<BoxD> box = DeviceBox(Surface, rectangle.Box);
        return box ? FillCorners(Surface, Ink, CornersOf(*box))
                   : FillCorners(Surface, Ink, MappedAll(Surface.ToDevice(), CornersOf(rectangle.Box)));
    }

    Status operator()(const Outline::Polygon& polygon) const {
        std::vector<PointD> corners = MappedAll(Surface.ToDevice(), polygon.Points);
        if (Surface.Snaps() && IsBox(corners)) {
            return FillCorners(Surface, Ink, CornersOf(PixelGrid::Box(BoundsOf(corners))));
        }
        if (Surface.Snaps() && PixelGrid::IsFace(corners)) {
            corners = PixelGrid::Face(corners);
        }
        return FillCorners(Surface, Ink, corners);
    }

    template <class Shape> Status operator()(const Shape& shape) const {
        if constexpr (requires { PathOf(shape); }) {
            return FillPath(Surface, PathOf(shape), Ink);
        }
        return Status::Ok; // lines have no area
    }
};

} // namespace

std::optional<BoxD> DeviceBox(const Painter& painter, const RectF& rect) {
    if (!KeepsAxesNearly(painter.ToDevice())) {
        return std::nullopt;
    }
    const BoxD box =
        BoxBetween(painter.Map(rect.TopLeft()), painter.Map(PointF{rect.Right(), rect.Bottom()}));
    return painter.Snaps() ? PixelGrid::Box(box) : box;
}

Status Stroke(const Painter& painter, const Outline& outline, const Pen& pen) {
    return std::visit(Stroker{painter, pen}, outline.Shape);
}

Status Fill(const Painter& painter, const Outline& outline, Color color) {
    return std::visit(Filler{painter, color}, outline.Shape);
}

} // namespace penlode
