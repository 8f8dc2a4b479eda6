#pragma once

#include "penlode/engine/DeviceGeometry.h"

#include <cairo.h>
#include <span>

/// Adds shapes to a Cairo context's path, in device units, cut to `box` where they reach beyond it.
namespace penlode {

/// A closed polygon.
void AddPolygon(cairo_t* context, std::span<const PointD> corners, const BoxD& box);

void AddBox(cairo_t* context, const BoxD& area, const BoxD& box);

/// A path's figures, mapped by `toDevice`, as an area to fill. False, and nothing added, when a point of it
/// is not finite.
bool AddArea(cairo_t* context, const GraphicsPath& path, const Matrix& toDevice, const BoxD& box);

/// Sends an outline to a context as it is.
class CairoOutline final : public OutlineSink {
public:
    explicit CairoOutline(cairo_t* context) : m_context(context) {}

    void MoveTo(PointD p) override { cairo_move_to(m_context, p.X, p.Y); }

    void LineTo(PointD p) override { cairo_line_to(m_context, p.X, p.Y); }

    void CurveTo(PointD a, PointD b, PointD end) override {
        cairo_curve_to(m_context, a.X, a.Y, b.X, b.Y, end.X, end.Y);
    }

    void Close() override { cairo_close_path(m_context); }

private:
    cairo_t* m_context;
};

} // namespace penlode
