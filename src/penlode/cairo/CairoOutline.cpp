#include "penlode/cairo/CairoOutline.h"

#include "penlode/engine/GuardBand.h"

#include <utility>

namespace penlode {
void AddPolygon(cairo_t* context, std::span<const PointD> corners, const BoxD& box) {
    const std::vector<PointD> polygon = ClippedPolygon({corners.begin(), corners.end()}, box);
    cairo_new_sub_path(context);
    for (const PointD p : polygon) {
        cairo_line_to(context, p.X, p.Y);
    }
    if (!polygon.empty()) {
        cairo_close_path(context);
    }
}

void AddBox(cairo_t* context, const BoxD& area, const BoxD& box) {
    const BoxD cut = Common(area, box);
    cairo_rectangle(context, cut.Left, cut.Top, cut.Width(), cut.Height());
}

bool AddArea(cairo_t* context, const GraphicsPath& path, const Matrix& toDevice, const BoxD& box) {
    const Reach reach = ReachOf(path, toDevice, box);
    if (reach == Reach::Inside) {
        CairoOutline outline(context);
        WalkOutline(path, toDevice, outline);
    } else if (reach == Reach::Beyond) {
        OutlineFlattener flattener(box);
        WalkOutline(path, toDevice, flattener);
        for (const FlatFigure& figure : flattener.Take()) {
            AddPolygon(context, figure.Points, box);
        }
    }
    return reach != Reach::NotFinite;
}

} // namespace penlode
