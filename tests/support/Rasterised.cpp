#include "support/Rasterised.h"

#include "penlode/cairo/CairoHandles.h"
#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"

#include <cstring>
#include <librsvg/rsvg.h>
#include <memory>

using namespace penlode;

namespace {

/// What `paint` paints on white. Empty when it fails.
Image Painted(int width, int height, const std::function<bool(cairo_t*)>& paint) {
    const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height));
    const CairoContext context(cairo_create(surface.get()));
    cairo_set_source_rgb(context.get(), 1.0, 1.0, 1.0);
    cairo_paint(context.get());
    if (!paint(context.get())) {
        return {};
    }
    cairo_surface_flush(surface.get());
    Image image{width, height, 96.0F, 96.0F, {}};
    const unsigned char* data = cairo_image_surface_get_data(surface.get());
    for (std::size_t i = 0; i < static_cast<std::size_t>(width) * static_cast<std::size_t>(height); ++i) {
        std::uint32_t word = 0;
        std::memcpy(&word, data + 4 * i, sizeof word);
        image.Pixels.push_back({word | 0xFF000000U});
    }
    return image;
}

} // namespace

Image Raster::OnPixels(const Drawing& draw) const {
    const auto engine = CGraphicsEngine::ForRaster(Page, 25.4 * PixelsPerMillimetre, kWhite);
    draw(*engine);
    return engine->Pixels();
}

Image Raster::OnPage(const Drawing& draw) const {
    const cairo_rectangle_t extent{0.0, 0.0, static_cast<double>(Page.Width),
                                   static_cast<double>(Page.Height)};
    const CairoSurface page(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extent));
    const CairoContext context(cairo_create(page.get()));
    draw(*CGraphicsEngine::ForCairo(context.get(), 25.4));
    return Painted(Pixels(Page.Width), Pixels(Page.Height), [&](cairo_t* picture) {
        cairo_scale(picture, PixelsPerMillimetre, PixelsPerMillimetre);
        cairo_set_source_surface(picture, page.get(), 0.0, 0.0);
        cairo_paint(picture);
        return cairo_status(picture) == CAIRO_STATUS_SUCCESS;
    });
}

Image Raster::AsSvg(const Drawing& draw) const {
    CSvgEngine engine(Page, {"", "", kWhite, true});
    draw(engine);
    const std::string svg = engine.Text();
    const std::unique_ptr<RsvgHandle, decltype(&g_object_unref)> document(
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), nullptr),
        &g_object_unref);
    const RsvgRectangle whole{0.0, 0.0, static_cast<double>(Pixels(Page.Width)),
                              static_cast<double>(Pixels(Page.Height))};
    return Painted(Pixels(Page.Width), Pixels(Page.Height), [&](cairo_t* picture) {
        return document != nullptr &&
               rsvg_handle_render_document(document.get(), picture, &whole, nullptr) != 0;
    });
}
