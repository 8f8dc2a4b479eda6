#include "penlode/cairo/CairoShapes.h"

#include "penlode/cairo/CairoDataLine.h"
#include "penlode/cairo/CairoOutline.h"
#include "penlode/cairo/CairoStroke.h"
#include "penlode/engine/GuardBand.h"
#include "penlode/engine/LineThinning.h"

#include <array>

namespace penlode {
namespace {

/// Curve pieces in one stroke; longer outlines are flattened and stroked piece by piece.
constexpr std::size_t kMaxPieces = 64;

std::array<PointF, 4> CornersOf(const RectF& r) {
    return {{{r.X, r.Y}, {r.Right(), r.Y}, {r.Right(), r.Bottom()}, {r.X, r.Bottom()}}};
}

std::array<PointD, 4> CornersOf(const BoxD& b) {
    return {{{b.Left, b.Top}, {b.Right, b.Top}, {b.Right, b.Bottom}, {b.Left, b.Bottom}}};
}

std::vector<PointD> MapAll(const Painter& painter, std::span<const PointF> points) {
    std::vector<PointD> mapped;
    mapped.reserve(points.size());
    for (const PointF p : points) {
        mapped.push_back(painter.Map(p));
    }
    return mapped;
}

bool AreFinite(std::span<const PointD> points) {
    return std::all_of(points.begin(), points.end(), [](PointD p) { return IsFinite(p); });
}

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

} // namespace

std::optional<BoxD> DeviceBox(const Painter& painter, const RectF& rect) {
    if (!KeepsAxesNearly(painter.ToDevice())) {
        return std::nullopt;
    }
    const BoxD box =
        BoxBetween(painter.Map(rect.TopLeft()), painter.Map(PointF{rect.Right(), rect.Bottom()}));
    return painter.Snaps() ? PixelGrid::Box(box) : box;
}

Status FillBox(const Painter& painter, Color color, const RectF& rect) {
    if (rect.Width <= 0.0F || rect.Height <= 0.0F) {
        return Status::Ok;
    }
    const std::optional<BoxD> box = DeviceBox(painter, rect);
    return box ? FillCorners(painter, color, CornersOf(*box))
               : FillCorners(painter, color, MapAll(painter, CornersOf(rect)));
}

Status FillPolygon(const Painter& painter, Color color, std::span<const PointF> points) {
    std::vector<PointD> corners = MapAll(painter, points);
    if (painter.Snaps() && IsBox(corners)) {
        return FillCorners(painter, color, CornersOf(PixelGrid::Box(BoundsOf(corners))));
    }
    if (painter.Snaps() && PixelGrid::IsFace(corners)) {
        corners = PixelGrid::Face(corners);
    }
    return FillCorners(painter, color, corners);
}

Status FillPath(const Painter& painter, Color color, const GraphicsPath& path) {
    if (!AddArea(painter.Context(), path, painter.ToDevice(), painter.GuardBand())) {
        return Status::ValueOverflow;
    }
    painter.SetColor(color);
    cairo_fill(painter.Context());
    return Status::Ok;
}

Status StrokeBox(const Painter& painter, const Pen& pen, const RectF& rect) {
    if (rect.Width < 0.0F || rect.Height < 0.0F) {
        return Status::Ok;
    }
    return StrokeCorners(painter, pen, MapAll(painter, CornersOf(rect)));
}

Status StrokeLines(const Painter& painter, const Pen& pen, std::span<const PointF> points) {
    if (points.size() >= kMinDataLinePoints) {
        return StrokeDataLine(painter, pen, points);
    }
    std::vector<PointD> line = MapAll(painter, points);
    const bool snapped = painter.Snaps() && AreFinite(line) && PixelGrid::IsAxisParallel(line);
    const DevicePen drawn(pen, painter, snapped);
    if (snapped) {
        line = painter.Grid().Polyline(line, drawn.Width());
    }
    return StrokePoints(painter, drawn, std::move(line), false);
}

Status StrokePolygon(const Painter& painter, const Pen& pen, std::span<const PointF> points) {
    return StrokeCorners(painter, pen, MapAll(painter, points));
}

Status StrokePath(const Painter& painter, const Pen& pen, const GraphicsPath& path) {
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

} // namespace penlode
