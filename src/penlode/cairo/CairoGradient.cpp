#include "penlode/cairo/CairoOperations.h"
#include "penlode/cairo/CairoOutline.h"
#include "penlode/engine/GradientColors.h"
#include "penlode/engine/GuardBand.h"

#include <array>

namespace penlode {
namespace {

Rgb Blend(std::span<const ColoredPoint, 3> corners, const std::array<double, 3>& weights) {
    Rgb sum{};
    for (std::size_t corner = 0; corner < 3; ++corner) {
        for (std::size_t channel = 0; channel < 3; ++channel) {
            sum[channel] += weights[corner] * corners[corner].Colour[channel];
        }
    }
    return sum;
}

double Cross(PointD origin, PointD a, PointD b) {
    return (a.X - origin.X) * (b.Y - origin.Y) - (a.Y - origin.Y) * (b.X - origin.X);
}

/// The colour of a flat triangle at a point of it, by the areas that the point cuts off.
Rgb RgbAt(std::span<const ColoredPoint, 3> t, PointD p) {
    const double whole = Cross(t[0].Place, t[1].Place, t[2].Place);
    const double first = std::clamp(Cross(p, t[1].Place, t[2].Place) / whole, 0.0, 1.0);
    const double second = std::clamp(Cross(p, t[2].Place, t[0].Place) / whole, 0.0, 1.0 - first);
    return Blend(t, {first, second, 1.0 - first - second});
}

void ClipToBounds(const Painter& painter, const RectL& bounds) {
    std::vector<PointD> corners = MappedAll(painter.ToDevice(), CornersOf(BoxOf(bounds)));
    if (painter.Snaps()) {
        corners = PixelGrid::Face(corners);
    }
    AddPolygon(painter.Context(), corners, painter.GuardBand());
    cairo_clip(painter.Context());
}

/// The world rectangle in which anything can be seen.
BoxD SeenWorld(const Painter& painter) {
    return Mapped(painter.ToDevice().Inverted(), painter.GuardBand());
}

/// A blend along one axis, in world coordinates, cut to what can be seen.
CairoPattern AxisBlend(const ColoredPoint& from, const ColoredPoint& to, bool vertical, const BoxD& seen) {
    const auto along = [&](PointD p) { return vertical ? p.Y : p.X; };
    const double start = along(from.Place);
    const double end = along(to.Place);
    const double low = vertical ? seen.Top : seen.Left;
    const double high = vertical ? seen.Bottom : seen.Right;
    const double first = std::clamp(start, low, high);
    const double last = std::clamp(end, low, high);
    CairoPattern pattern(vertical ? cairo_pattern_create_linear(0.0, first, 0.0, last)
                                  : cairo_pattern_create_linear(first, 0.0, last, 0.0));
    const auto stop = [&](double offset, double place) {
        const Rgb c = Between(from.Colour, to.Colour, end == start ? 0.0 : (place - start) / (end - start));
        cairo_pattern_add_color_stop_rgb(pattern.get(), offset, c[0] / 255.0, c[1] / 255.0, c[2] / 255.0);
    };
    stop(0.0, first);
    stop(1.0, last);
    return pattern;
}

void FillRect(const Painter& painter, const ColoredPoint& from, const ColoredPoint& to, bool vertical) {
    const BoxD seen = SeenWorld(painter);
    const RectF rect = Narrowed(BoxBetween(from.Place, to.Place));
    if (const std::optional<BoxD> box = painter.DeviceBox(rect)) {
        AddBox(painter.Context(), *box, painter.GuardBand());
    } else {
        GraphicsPath path;
        path.AddRectangle(rect);
        AddArea(painter.Context(), path, painter.ToDevice(), painter.GuardBand());
    }
    const CairoPattern pattern = AxisBlend(from, to, vertical, seen);
    const cairo_matrix_t matrix = ToCairo(painter.ToDevice().Inverted());
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    cairo_set_source(painter.Context(), pattern.get());
    cairo_fill(painter.Context());
}

/// A patch whose fourth side has shrunk to the first corner.
void AddPatch(cairo_pattern_t* mesh, std::span<const ColoredPoint, 3> corners) {
    cairo_mesh_pattern_begin_patch(mesh);
    cairo_mesh_pattern_move_to(mesh, corners[0].Place.X, corners[0].Place.Y);
    for (const std::size_t next : {1U, 2U, 0U}) {
        cairo_mesh_pattern_line_to(mesh, corners[next].Place.X, corners[next].Place.Y);
    }
    for (unsigned int corner = 0; corner < 4; ++corner) {
        const Rgb& c = corners[corner % 3].Colour;
        cairo_mesh_pattern_set_corner_color_rgb(mesh, corner, c[0] / 255.0, c[1] / 255.0, c[2] / 255.0);
    }
    cairo_mesh_pattern_end_patch(mesh);
}

/// The triangle in device units, cut to the surface's surroundings and handed on as a fan.
void FillTriangle(const Painter& painter, const std::array<ColoredPoint, 3>& corners) {
    if (Cross(corners[0].Place, corners[1].Place, corners[2].Place) == 0.0) {
        return;
    }
    const std::vector<PointD> cut =
        ClippedPolygon({corners[0].Place, corners[1].Place, corners[2].Place}, painter.GuardBand());
    const CairoPattern mesh(cairo_pattern_create_mesh());
    const auto colored = [&](PointD p) { return ColoredPoint{p, RgbAt(corners, p)}; };
    for (std::size_t i = 2; i < cut.size(); ++i) {
        const std::array<ColoredPoint, 3> piece{colored(cut[0]), colored(cut[i - 1]), colored(cut[i])};
        AddPatch(mesh.get(), piece);
    }
    cairo_set_source(painter.Context(), mesh.get());
    cairo_paint(painter.Context());
}

} // namespace

Status PaintGradient(const Painter& painter, const GradientMesh& mesh) {
    cairo_save(painter.Context());
    ClipToBounds(painter, mesh.Bounds);
    ForEachPatch(
        mesh, painter.ToDevice(),
        [&](const ColoredPoint& from, const ColoredPoint& to) {
            FillRect(painter, from, to, mesh.Mode == GradientMode::RectV);
        },
        [&](const std::array<ColoredPoint, 3>& corners) { FillTriangle(painter, corners); });
    cairo_restore(painter.Context());
    return Status::Ok;
}

} // namespace penlode
