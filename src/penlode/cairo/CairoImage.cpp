#include "penlode/cairo/CairoOperations.h"
#include "penlode/cairo/CairoOutline.h"
#include "penlode/engine/DeviceImage.h"

namespace penlode {
namespace {

/// A Cairo copy of a part of the image. Null when the callback asked to stop, or memory ran out.
CairoSurface Copied(const ImagePart& drawn, const PixelRect& part, Status& status) {
    CairoSurface copy(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, part.Width, part.Height));
    if (cairo_surface_status(copy.get()) != CAIRO_STATUS_SUCCESS) {
        status = Status::OutOfMemory;
        return nullptr;
    }
    status = CopyPixels(drawn, part, cairo_image_surface_get_data(copy.get()),
                        cairo_image_surface_get_stride(copy.get()));
    if (status != Status::Ok) {
        return nullptr;
    }
    cairo_surface_mark_dirty(copy.get());
    return copy;
}

/// A pattern that repeats the image's outermost pixels, so that an enlarged picture keeps its edges. One
/// pixel is the same everywhere, and needs no map that Cairo might not be able to count in.
CairoPattern PatternOf(cairo_surface_t* copy, const PlacedImage& image) {
    CairoPattern pattern(cairo_pattern_create_for_surface(copy));
    if (!image.Part.IsOnePixel()) {
        const cairo_matrix_t matrix =
            ToCairo(image.PixelsToDevice.Inverted() * Matrix::Translation(-image.Part.X, -image.Part.Y));
        cairo_pattern_set_matrix(pattern.get(), &matrix);
    }
    cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
    return pattern;
}

/// Fills the image's visible part.
void PaintPart(const Painter& painter, cairo_surface_t* copy, const PlacedImage& image) {
    GraphicsPath area;
    area.AddRectangle(Narrowed(image.Visible));
    if (!AddArea(painter.Context(), area, image.PixelsToDevice, painter.GuardBand())) {
        return;
    }
    const CairoPattern pattern = PatternOf(copy, image);
    cairo_set_source(painter.Context(), pattern.get());
    cairo_fill(painter.Context());
}

} // namespace

Status PaintImage(const Painter& painter, const ImagePart& drawn) {
    const std::optional<PlacedImage> image = Placed(painter, drawn);
    if (!image) {
        return Status::Ok;
    }
    if (image->Part.Width > kMaxImageSide || image->Part.Height > kMaxImageSide) {
        return Status::ValueOverflow;
    }
    Status status = Status::Ok;
    if (const CairoSurface copy = Copied(drawn, image->Part, status)) {
        PaintPart(painter, copy.get(), *image);
    }
    return status;
}

} // namespace penlode
