#include "ByHand.h"

#include <cstring>
#include <png.h>
#include <vector>
#include <zlib.h>

namespace byhand {
namespace {

void Append(png_structp png, png_bytep bytes, png_size_t count) {
    static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), count);
}

} // namespace

Picture::Picture(int width, int height)
    : Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height)),
      Context(cairo_create(Surface.get())) {
    cairo_set_source_rgb(Context.get(), 1.0, 1.0, 1.0);
    cairo_paint(Context.get());
}

std::string EncodePng(const Picture& picture) {
    cairo_surface_t* surface = picture.Surface.get();
    cairo_surface_flush(surface);
    const int width = cairo_image_surface_get_width(surface);
    const int height = cairo_image_surface_get_height(surface);
    std::string file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &file, Append, nullptr);
    png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8,
                 PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_set_compression_level(png, 1);
    png_set_compression_strategy(png, Z_RLE);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
    png_write_info(png, info);
    std::vector<unsigned char> row(static_cast<std::size_t>(width) * 3U);
    const unsigned char* pixels = cairo_image_surface_get_data(surface);
    for (int y = 0; y < height; ++y, pixels += cairo_image_surface_get_stride(surface)) {
        for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
            std::uint32_t pixel = 0;
            std::memcpy(&pixel, pixels + 4 * x, sizeof pixel);
            row[3 * x] = static_cast<unsigned char>(pixel >> 16U);
            row[3 * x + 1] = static_cast<unsigned char>(pixel >> 8U);
            row[3 * x + 2] = static_cast<unsigned char>(pixel);
        }
        png_write_row(png, row.data());
    }
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

} // namespace byhand
