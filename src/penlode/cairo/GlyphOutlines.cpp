#include "penlode/cairo/CairoHandles.h"
#include "penlode/cairo/PangoText.h"
#include "penlode/engine/DeviceText.h"
#include "penlode/engine/EngineArguments.h"
#include "penlode/text/FontFace.h"

#include <pango/pangocairo.h>

namespace penlode {
namespace {

struct PathDeleter {
    void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
};

using CairoPath = std::unique_ptr<cairo_path_t, PathDeleter>;

/// The outlines of a set line, in its own units.
CairoPath OutlinesOf(const ShapedLine& line) {
    const CairoSurface surface(cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, nullptr));
    const CairoContext context(cairo_create(surface.get()));
    pango_cairo_layout_line_path(context.get(), line.Line);
    return CairoPath(cairo_copy_path(context.get()));
}

/// Adds Cairo's pieces one after the other, each point scaled.
class OutlineBuilder {
public:
    explicit OutlineBuilder(double scale) : m_scale(scale) {}

    void Add(const cairo_path_data_t* piece) {
        switch (piece->header.type) {
        case CAIRO_PATH_MOVE_TO:
            m_outline.StartFigure();
            m_last = At(piece[1]);
            break;
        case CAIRO_PATH_LINE_TO:
            m_outline.AddLine(m_last, At(piece[1]));
            m_last = At(piece[1]);
            break;
        case CAIRO_PATH_CURVE_TO:
            m_outline.AddBezier(m_last, At(piece[1]), At(piece[2]), At(piece[3]));
            m_last = At(piece[3]);
            break;
        case CAIRO_PATH_CLOSE_PATH:
            m_outline.CloseFigure();
            break;
        }
    }

    GraphicsPath Take() { return std::move(m_outline); }

private:
    PointF At(const cairo_path_data_t& data) const {
        return {static_cast<float>(data.point.x * m_scale), static_cast<float>(data.point.y * m_scale)};
    }

    double m_scale;
    GraphicsPath m_outline;
    PointF m_last;
};

} // namespace

GraphicsPath OutlineOfLine(std::wstring_view line, const Font& font) {
    const ShapedLine set = IsDrawable(font) ? ShapeLine(line, font) : ShapedLine{};
    if (set.Line == nullptr) {
        return {};
    }
    OutlineBuilder builder(font.Size / kShapingEm);
    const CairoPath path = OutlinesOf(set);
    for (int i = 0; i < path->num_data; i += path->data[i].header.length) {
        builder.Add(path->data + i);
    }
    GraphicsPath outline = builder.Take();
    AddDecorations(outline, {kShapingEm, set.Width}, font);
    return outline;
}

} // namespace penlode
