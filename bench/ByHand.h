#pragma once

#include <cairo.h>
#include <memory>
#include <string>

/// What a programmer writes who draws one picture with Cairo and libpng, and needs no library for it.
namespace byhand {

struct Destroy {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }

    void operator()(cairo_t* context) const { cairo_destroy(context); }
};

/// A white picture.
struct Picture {
    Picture(int width, int height);

    std::unique_ptr<cairo_surface_t, Destroy> Surface;
    std::unique_ptr<cairo_t, Destroy> Context;
};

/// An RGB file, each row less the one above, its runs compressed.
std::string EncodePng(const Picture& picture);

} // namespace byhand
