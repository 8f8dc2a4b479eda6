#include "penlode/cairo/CairoCanvas.h"
#include "penlode/cairo/CairoOutline.h"
#include "penlode/cairo/CairoStroke.h"

namespace penlode {
namespace {

/// Curve pieces in one stroke; longer outlines are flattened and stroked piece by piece.
constexpr std::size_t kMaxPieces = 64;

std::size_t PiecesIn(const GraphicsPath& path) {
    std::size_t count = 0;
    for (const GraphicsPath::Figure& figure : path.Figures()) {
        count += figure.Pieces.size();
    }
    return count;
}

} // namespace

void Painter::FillPolygon(std::span<const PointD> corners, Color color) const {
    AddPolygon(Context(), corners, GuardBand());
    SetColor(color);
    cairo_fill(Context());
}

Status Painter::FillPath(const GraphicsPath& path, Color color) const {
    if (!AddArea(Context(), path, ToDevice(), GuardBand())) {
        return Status::ValueOverflow;
    }
    SetColor(color);
    cairo_fill(Context());
    return Status::Ok;
}

Status Painter::StrokePath(const GraphicsPath& path, const Pen& pen) const {
    const DevicePen drawn(pen, *this, false);
    const BoxD box = GuardBand(drawn.Margin());
    const Reach reach = ReachOf(path, ToDevice(), box);
    if (reach == Reach::NotFinite) {
        return Status::ValueOverflow;
    }
    if (reach == Reach::Inside && PiecesIn(path) <= kMaxPieces) {
        CairoOutline outline(Context());
        WalkOutline(path, ToDevice(), outline);
        StrokeCurrentPath(*this, drawn);
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
