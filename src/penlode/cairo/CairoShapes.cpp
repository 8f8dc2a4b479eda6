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

bool Painter::StrokeNear(const GraphicsPath& path, const DevicePen& pen) const {
    if (PiecesIn(path) > kMaxPieces) {
        return false;
    }
    CairoOutline outline(Context());
    WalkOutline(path, ToDevice(), outline);
    StrokeCurrentPath(*this, pen);
    return true;
}

} // namespace penlode
