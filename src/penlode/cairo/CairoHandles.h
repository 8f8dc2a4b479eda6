#pragma once

#include <cairo.h>
#include <memory>

/// Owners of Cairo's counted objects.
namespace penlode {

struct CairoDeleter {
    void operator()(cairo_t* context) const { cairo_destroy(context); }

    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }

    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};

using CairoContext = std::unique_ptr<cairo_t, CairoDeleter>;
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoDeleter>;
using CairoPattern = std::unique_ptr<cairo_pattern_t, CairoDeleter>;

} // namespace penlode
